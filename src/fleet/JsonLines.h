#pragma once

#include <optional>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Where each value of a JSON text stands. Paths are written "projectors[3].ranges.brightness"; the
/// whole text has an empty one.
class PROJECTOR_FLEET_EXPORT JsonLines {
  Q_DECLARE_TR_FUNCTIONS(JsonLines)

 public:
  /// What a text may hold at most. What exceeds it is not read at all.
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

  /// The first thing in a text, well-formed or not, that no reader should be given: what exceeds a
  /// limit, control characters in a string, half a surrogate pair. Takes linear time and no memory.
  static std::optional<Fault> FaultOf(const QByteArray& text, const Limits& limits);

  /// `text` must be well-formed JSON without a fault, and live as long as this.
  explicit JsonLines(const QByteArray& text) : text_(text) {}

  /// Line, from 1, in which the value begins; for a path that the text does not have, that of the
  /// innermost value around it that it has.
  int LineOf(const QString& path) const;

  /// Path of the first key that stands twice in its object, and the line of its second value.
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
