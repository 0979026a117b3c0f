#include "toolkit/StateLabel.h"

#include <algorithm>

#include <QPainter>
#include <QStyle>

#include "toolkit/Contrast.h"

namespace AdvancedControl {

namespace {

constexpr double kReadable = 3;
constexpr int kBarLetters = 20;  // length of the bar, in average characters

// In the side length of the mark.
constexpr QPointF kTriangle[] = {{0.5, 0.05}, {1, 0.95}, {0, 0.95}};
constexpr QPointF kDiamond[] = {{0.5, 0}, {1, 0.5}, {0.5, 1}, {0, 0.5}};

QColor ColorOf(StateLabel::Mark mark, const QPalette& palette) {
  const QColor background = palette.color(QPalette::Window);
  switch (mark) {
    case StateLabel::Mark::Good:
      return ReadableOn(background, QColor(0x2e, 0xa0, 0x43), kReadable);
    case StateLabel::Mark::Attention:
      return ReadableOn(background, QColor(0xd9, 0x8e, 0x00), kReadable);
    case StateLabel::Mark::Bad:
      return ReadableOn(background, QColor(0xda, 0x36, 0x33), kReadable);
    default:
      return palette.color(QPalette::WindowText);
  }
}

}  // namespace

void StateLabel::SetMark(Mark mark) {
  mark_ = mark;
  setIndent(fontMetrics().height());  // also measures and draws it anew
}

void StateLabel::SetShare(std::optional<double> share) {
  share_ = share;
  updateGeometry();
  update();
}

QSize StateLabel::sizeHint() const {
  const int bar =
      share_ ? fontMetrics().height() + kBarLetters * fontMetrics().averageCharWidth() : 0;
  return LineLabel::sizeHint() + QSize(std::max(indent(), 0) + bar, 0);
}

void StateLabel::paintEvent(QPaintEvent* event) {
  LineLabel::paintEvent(event);
  if (mark_ == Mark::None) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int line = fontMetrics().height();
  const QRectF inside = contentsRect();
  const auto place = [&](double left, double width, double height) {
    return QRectF(inside.left() + (isRightToLeft() ? inside.width() - left - width : left),
                  inside.center().y() - height / 2, width, height);
  };
  const double side = line * 0.6;
  const QColor color = ColorOf(mark_, palette());
  painter.save();
  painter.setPen(mark_ == Mark::Idle ? QPen(color, 1.5) : QPen(Qt::NoPen));
  painter.setBrush(mark_ == Mark::Idle ? QBrush() : QBrush(color));
  painter.translate(place(0, side, side).topLeft());
  if (mark_ == Mark::Attention || mark_ == Mark::Bad) {
    painter.scale(side, side);
    mark_ == Mark::Bad ? painter.drawPolygon(kDiamond, 4) : painter.drawPolygon(kTriangle, 3);
  } else {
    painter.drawEllipse(QRectF(0, 0, side, side));
  }
  painter.restore();
  if (!share_) return;
  const double height = line * 0.4;
  const double width = kBarLetters * fontMetrics().averageCharWidth();
  const double left = std::max(indent(), 0) + TextWidth() + line;
  const double filled = width * std::clamp(*share_, 0.0, 1.0);
  QColor track = palette().color(QPalette::WindowText);
  track.setAlphaF(0.2F);
  painter.setPen(Qt::NoPen);
  painter.setBrush(track);
  painter.drawRoundedRect(place(left, width, height), height / 2, height / 2);
  painter.setBrush(color);
  painter.setClipRect(place(left, filled, height));
  painter.drawRoundedRect(place(left, width, height), height / 2, height / 2);
}

}  // namespace AdvancedControl
