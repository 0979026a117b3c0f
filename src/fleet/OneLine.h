#pragma once

#include <QString>

#include "Namespace.h"

namespace AdvancedControl {

/// The text as a file of profiles may have it: spaces for control characters, and no half of a
/// surrogate pair. What was pasted or is from a table may have several lines.
inline QString OneLine(const QString& text) {
  QString line = QString::fromUtf8(text.toUtf8());
  for (QChar& c : line) {
    if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
  }
  return line;
}

}  // namespace AdvancedControl
