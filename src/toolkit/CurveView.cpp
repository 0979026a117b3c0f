#include "toolkit/CurveView.h"

#include <algorithm>
#include <utility>

#include <QPainter>

namespace AdvancedControl {

namespace {

// In pixels.
constexpr double kWidth = 2;
constexpr double kMark = 2.5;  // radius, without the pen
constexpr double kEdges = 4;   // extra width of a line for each line that covers it

bool Coincide(const QPolygonF& a, const QPolygonF& b) {
  return std::ranges::equal(
      a, b, [](const QPointF& p, const QPointF& q) { return (p - q).manhattanLength() < kEdges; });
}

}  // namespace

void CurveView::Show(std::vector<Line> lines) {
  lines_ = std::move(lines);
  update();
}

QSize CurveView::sizeHint() const {
  const int side = 16 * fontMetrics().height();
  return {side, side};
}

QColor CurveView::ColorOf(const Line& line) const {
  if (line.hue == Line::kNoHue) return palette().color(QPalette::Highlight);
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  return QColor::fromHsl(line.hue, 200, dark ? 170 : 100);
}

void CurveView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

  const double labels = fontMetrics().height();
  const QRectF plot = QRectF(rect()).adjusted(labels / 2, labels / 2, -labels * 3, -labels / 2);
  const auto place = [&plot](QPolygonF points) {
    static constexpr double kMore = 0.375;
    for (QPointF& point : points) {
      const double height = (point.y() + kMore) / (1 + 2 * kMore);
      point = {plot.left() + point.x() * plot.width(), plot.bottom() - height * plot.height()};
    }
    return points;
  };

  QColor faint = palette().color(QPalette::Text);
  faint.setAlphaF(0.3F);
  painter.setPen(QPen(faint, 1, Qt::DashLine));
  painter.drawPolyline(place({QPointF(0, 0), QPointF(1, 1)}));

  double labelAt = labels / 2;  // spreads the labels, because lines may end in the same point
  for (auto line = lines_.begin(); line != lines_.end(); ++line) {
    if (line->accepted.isEmpty()) continue;
    const QColor color = ColorOf(*line);
    const QPolygonF accepted = place(line->accepted);
    const auto hiding = std::count_if(line + 1, lines_.end(), [&](const Line& later) {
      return Coincide(accepted, place(later.accepted));
    });
    const double width = kWidth + kEdges * static_cast<double>(hiding);
    if (line->tried != line->accepted) {
      painter.setPen(QPen(color, width, Qt::DotLine));
      painter.drawPolyline(place(line->tried));
    }
    painter.setPen(QPen(color, width));
    painter.drawPolyline(accepted);
    painter.setBrush(color);
    for (const QPointF& point : accepted) painter.drawEllipse(point, kMark, kMark);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(accepted.last() + QPointF(labelAt, labels / 3), line->label);
    labelAt += labels * 0.8;
  }
}

}  // namespace AdvancedControl
