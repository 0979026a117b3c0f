#pragma once

#include <algorithm>

#include <QString>

#include "Namespace.h"

namespace AdvancedControl {

/// The text as a file of profiles may have it: without control characters at its ends, with spaces
/// for those between, and without halves of surrogate pairs. What was pasted or is from a table may
/// have several lines.
inline QString OneLine(const QString& text) {
  const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
  QString line = QString::fromUtf8(text.toUtf8());
  while (!line.isEmpty() && isControl(line.back())) line.chop(1);
  while (!line.isEmpty() && isControl(line.front())) line.remove(0, 1);
  std::ranges::replace_if(line, isControl, QLatin1Char(' '));
  return line;
}

}  // namespace AdvancedControl
