#pragma once

#include <QDir>
#include <QString>

#include "snapshots/Snapshot.h"

struct SettingsFileContents {
  Snapshot snapshot{};
  QString name{};     ///< The file's name in messages.
  QByteArray text{};  ///< The file's contents.
  QString error{};    ///< One line with file, line and fault; empty on success.
};

/// Reads a file of saved settings; "-" is standard input.
SettingsFileContents ReadSettingsFile(const QString& path);

/// Parses the text of such a file; `name` is its name in error messages.
SettingsFileContents ParseSettingsFile(const QByteArray& text, const QString& name);

/// A projector's name in a form that is valid in a file name. Different names may give the same
/// result.
QString FileNameOf(const std::string& projector);

/// The file in a folder that has the settings of this projector, if they were saved there under its
/// name; else an empty text. Another projector or anything else may have taken the name before.
QString OwnFileIn(const QDir& folder, const std::string& projector);

/// Where to keep the values that a file of settings replaces now: `NAME.undo.TIME.json` beside it.
QString UndoFileOf(const QString& path);
/// Whether a file has such a name, which is given without its suffix.
bool IsUndoName(const QString& name);
