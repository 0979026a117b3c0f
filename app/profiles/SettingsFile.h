#pragma once

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
