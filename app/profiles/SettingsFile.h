#pragma once

#include <QString>

#include "snapshots/Snapshot.h"

struct SettingsFileContents {
  Snapshot snapshot{};
  QString name{};     ///< Of the file, as messages call it.
  QByteArray text{};  ///< What was read, for the line in which a value stands.
  QString error{};    ///< One line: file, line and what is wrong; empty when all is well.
};

/// Reads a file of saved settings; "-" is standard input.
SettingsFileContents ReadSettingsFile(const QString& path);

/// The same from a text; `name` stands in error messages.
SettingsFileContents ParseSettingsFile(const QByteArray& text, const QString& name);

/// A projector's name as part of a file's name. Several projectors may have the same.
QString FileNameOf(const std::string& projector);

/// The file that keeps the values that a restored one replaces: a new one, so that no other is
/// lost.
class UndoFile {
 public:
  /// Beside `file` where `folder` is empty.
  UndoFile(const QString& file, const QString& folder, const std::string& projector);

  /// Whether the file now holds this; where it cannot, it holds what it held before.
  bool Keep(const Snapshot& undo);

  /// Empty while nothing is kept.
  QString Path() const { return isThere_ ? path_ : QString(); }
  /// One line on what could not be kept; empty when all is well.
  QString Error() const;

 private:
  QString path_;
  QString error_;
  bool isThere_ = false;
};
