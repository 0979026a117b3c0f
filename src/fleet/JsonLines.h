#pragma once

#include <optional>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Finds the line of each value of a JSON text. Paths are written
/// "projectors[3].ranges.brightness"; the path of the whole text is empty.
class PROJECTOR_FLEET_EXPORT JsonLines {
  Q_DECLARE_TR_FUNCTIONS(JsonLines)

 public:
  /// The largest text that is read.
  struct Limits {
    qsizetype bytes = qsizetype{4} << 20;
    int values = 100'000;
  };
  static constexpr int kMaximumDepth = 16;
  static constexpr qsizetype kMaximumStringBytes = 2048;

  struct Fault {
    qsizetype offset;
    QString message;
  };

  /// The first fault that a JSON reader must not be given: a limit exceeded, a control character in
  /// a string, or half a surrogate pair. The text need not be well-formed. Takes linear time and no
  /// memory.
  static std::optional<Fault> FaultOf(const QByteArray& text, const Limits& limits);

  /// `text` must be well-formed JSON without a fault, and must outlive this object.
  explicit JsonLines(const QByteArray& text) : text_(text) {}

  /// The line, from 1, in which the value at a path begins; if there is none, that of the innermost
  /// value around it.
  int LineOf(const QString& path) const;

  /// The path of the first key that an object has twice, and the line of its second value.
  struct Repeated {
    QString path;
    int line;
  };
  std::optional<Repeated> RepeatedKey() const;

  /// Line and column, from 1, of a byte; the column counts characters.
  struct Place {
    int line;
    int column;
  };
  static Place PlaceOf(const QByteArray& text, qsizetype offset);

 private:
  template <typename Visitor>
  class Walk;

  const QByteArray& text_;
};

}  // namespace AdvancedControl
