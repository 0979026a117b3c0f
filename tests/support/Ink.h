#pragma once

#include <algorithm>

#include <QLabel>
#include <QStyle>

/// Where a label draws something: accents may be higher than the font's ascent, and a letter may
/// begin left of its place.
inline QRect InkOf(const QLabel& label) {
  const QFontMetrics metrics = label.fontMetrics();
  const QString text = label.text().remove(QLatin1Char('&'));
  const int indent = std::max(label.indent(), 0);
  const QRect inside = label.isRightToLeft() ? label.contentsRect().adjusted(0, 0, -indent, 0)
                                             : label.contentsRect().adjusted(indent, 0, 0, 0);
  const QSize size(metrics.horizontalAdvance(text), metrics.height());
  const QRect line =
      QStyle::alignedRect(label.layoutDirection(), Qt::AlignVCenter | Qt::AlignLeft, size, inside);
  return metrics.tightBoundingRect(text).translated(line.topLeft() + QPoint(0, metrics.ascent()));
}
