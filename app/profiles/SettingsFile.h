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

/// The file with the values that a restored file replaces. Always a new file.
class UndoFile {
 public:
  /// The file will be in `folder`, or if that is empty, beside `file`.
  UndoFile(const QString& file, const QString& folder, const std::string& projector);

  /// Writes the file. On failure returns false and leaves the earlier contents.
  bool Keep(const Snapshot& undo);

  /// Empty until something was written.
  QString Path() const { return isThere_ ? path_ : QString(); }
  /// One line with the failure of the last `Keep`; empty on success.
  QString Error() const;

 private:
  QString path_;
  QString error_;
  bool isThere_ = false;
};
