#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "snapshots/Snapshot.h"

/// The presets: files of saved settings in the user's folder `advanced-control/presets` below
/// `~/.local/share` (or XDG_DATA_HOME). A preset has the name of its file. Any thread.
namespace PresetFolder {

QString Path();
/// The names of all presets, sorted.
QStringList Names();
/// Whether a preset can have this name.
bool IsName(const QString& name);
/// The file of a preset, whether or not it exists.
QString FileOf(const QString& name);
/// The path of the snapshot that the user names with `text`: a preset of this name, if there is one
/// and no file or folder of that name; else `text` itself, which may be "-".
QString FileMeantBy(const QString& text);

struct Contents {
  std::shared_ptr<const Snapshot> snapshot;  ///< Null after an error.
  QString error;
};
Contents Read(const QString& name);

/// Writes a preset, and replaces one of the same name. Returns one line with what went wrong; empty
/// on success.
QString Write(const QString& name, const Snapshot& snapshot);
/// Gives a preset another name, which no preset may have yet. Returns as `Write`.
QString Rename(const QString& from, const QString& to);
/// Removes a preset. Returns as `Write`.
QString Remove(const QString& name);

}  // namespace PresetFolder
