#include "toolkit/CurveView.h"

#include <algorithm>
#include <utility>

#include <QLineF>
#include <QMouseEvent>
#include <QPainter>

namespace AdvancedControl {

namespace {

// In pixels.
constexpr double kWidth = 2;
constexpr double kMark = 2.5;     // radius, without the pen
constexpr double kEdges = 4;      // extra width of a line for each line that covers it
constexpr double kFocusMark = 6;  // radius
constexpr double kReach = 10;     // of the mouse
constexpr double kAxisGap = 4;

constexpr double kMore = 0.375;  // shown above and below the axes' range

bool Coincide(const QPolygonF& a, const QPolygonF& b) {
  return std::ranges::equal(
      a, b, [](const QPointF& p, const QPointF& q) { return (p - q).manhattanLength() < kEdges; });
}

}  // namespace

CurveView::CurveView(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }

void CurveView::Show(std::vector<Line> lines, std::optional<int> marked) {
  lines_ = std::move(lines);
  marked_ = marked;
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

QRectF CurveView::Plot() const {
  const double text = fontMetrics().height();
  const double percents = fontMetrics().horizontalAdvance(QStringLiteral("100")) + 2 * kAxisGap;
  const bool labelled =
      std::ranges::any_of(lines_, [](const Line& line) { return !line.label.isEmpty(); });
  return QRectF(rect()).adjusted(percents, text / 2, labelled ? -text * 3 : -text,
                                 -text - 2 * kAxisGap);
}

QPointF CurveView::PlaceOf(const QPointF& point) const {
  const QRectF plot = Plot();
  const double height = (point.y() + kMore) / (1 + 2 * kMore);
  return {plot.left() + point.x() * plot.width(), plot.bottom() - height * plot.height()};
}

QPolygonF CurveView::Placed(QPolygonF points) const {
  for (QPointF& point : points) point = PlaceOf(point);
  return points;
}

void CurveView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  DrawAxes(painter);
  DrawLines(painter);
}

void CurveView::DrawAxes(QPainter& painter) const {
  const QColor text = palette().color(QPalette::Text);
  QColor faint = text;
  faint.setAlphaF(0.15F);
  const QRectF plot = Plot();
  const double height = fontMetrics().height();
  for (int percent = 0; percent <= 100; percent += 25) {
    const double share = percent / 100.0;
    const QPointF at = PlaceOf({share, share});
    painter.setPen(QPen(percent == 0 ? text : faint, 1));
    painter.drawLine(QPointF(at.x(), plot.top()), QPointF(at.x(), plot.bottom()));
    painter.drawLine(QPointF(plot.left(), at.y()), QPointF(plot.right(), at.y()));
    if (percent % 50 != 0) continue;
    painter.setPen(text);
    const QString number = QString::number(percent);
    painter.drawText(QRectF(at.x() - height * 2, plot.bottom() + kAxisGap, height * 4, height),
                     Qt::AlignHCenter | Qt::AlignTop, number);
    painter.drawText(QRectF(0, at.y() - height, plot.left() - kAxisGap, height * 2),
                     Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter, number);
  }
  faint.setAlphaF(0.3F);
  painter.setPen(QPen(faint, 1, Qt::DashLine));
  painter.drawPolyline(Placed({QPointF(0, 0), QPointF(1, 1)}));
}

void CurveView::DrawLines(QPainter& painter) const {
  const double labels = fontMetrics().height();
  double labelAt = labels / 2;  // spreads the labels, because lines may end in the same point
  for (auto line = lines_.begin(); line != lines_.end(); ++line) {
    if (line->accepted.isEmpty()) continue;
    const QColor color = ColorOf(*line);
    const QPolygonF accepted = Placed(line->accepted);
    const auto hiding = std::count_if(line + 1, lines_.end(), [&](const Line& later) {
      return Coincide(accepted, Placed(later.accepted));
    });
    const double width = kWidth + kEdges * static_cast<double>(hiding);
    if (line->tried != line->accepted) {
      painter.setPen(QPen(color, width, Qt::DotLine));
      painter.drawPolyline(Placed(line->tried));
    }
    painter.setPen(QPen(color, width));
    painter.drawPolyline(accepted);
    for (qsizetype i = 0; i < accepted.size(); ++i) {
      painter.setBrush(color);
      painter.drawEllipse(accepted[i], kMark, kMark);
      if (!marked_ || line->values[static_cast<std::size_t>(i)] != *marked_) continue;
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(accepted[i], kFocusMark, kFocusMark);
    }
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(accepted.last() + QPointF(labelAt, labels / 3), line->label);
    labelAt += labels * 0.8;
  }
}

// The nearest point within reach.
std::optional<int> CurveView::MovableAt(const QPointF& at) const {
  std::optional<int> nearest;
  double distance = kReach;
  for (const Line& line : lines_) {
    for (qsizetype i = 0; line.movable && i < line.accepted.size(); ++i) {
      const double away = QLineF(PlaceOf(line.accepted[i]), at).length();
      if (away >= distance) continue;
      distance = away;
      nearest = line.values[static_cast<std::size_t>(i)];
    }
  }
  return nearest;
}

void CurveView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  pressed_ = MovableAt(event->position());
  dragged_ = false;
}

void CurveView::mouseMoveEvent(QMouseEvent* event) {
  if (!pressed_)
    return setCursor(MovableAt(event->position()) ? Qt::SizeVerCursor : Qt::ArrowCursor);
  dragged_ = true;
  const QRectF plot = Plot();
  const double height = (plot.bottom() - event->position().y()) / plot.height();
  Q_EMIT Dragged(*pressed_, height * (1 + 2 * kMore) - kMore);
}

void CurveView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const auto dropped = std::exchange(pressed_, std::nullopt);
  if (dropped && dragged_) Q_EMIT Dropped(*dropped);
}

}  // namespace AdvancedControl
