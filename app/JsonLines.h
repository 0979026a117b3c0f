#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// Where each value of a JSON text stands. Paths are written "projectors[3].ranges.brightness"; the
/// whole text has an empty one.
class JsonLines {
 public:
  /// `text` must be well-formed JSON.
  explicit JsonLines(const QByteArray& text);

  /// Line, from 1, in which the value begins; for a path that the text does not have, that of the
  /// innermost value around it that it has.
  int LineOf(QString path) const;

  /// Path of the first key that stands twice in its object; empty when there is none.
  const QString& RepeatedKey() const { return repeatedKey_; }

  /// Line and column, from 1, of a byte; the column counts characters.
  struct Place {
    int line;
    int column;
  };
  static Place PlaceOf(const QByteArray& text, qsizetype offset);

 private:
  class Scanner;

  QHash<QString, int> lines_;
  QString repeatedKey_;
};
