#include "toolkit/CSliderCtrl.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include "toolkit/DragBubble.h"

namespace {

constexpr int kTickLength = 4;
constexpr int kTickGap = 1;  // between the handle and its ticks
constexpr int kTickHeight = kTickGap + kTickLength;
constexpr int kClosestTicks = 3;  // closer ticks would look like a line

}  // namespace

CSliderCtrl::CSliderCtrl(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::StrongFocus);
  AttachDragBubble(*this);
}

QRect CSliderCtrl::HandleRect() const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

void CSliderCtrl::SetRange(int minimum, int maximum, int tickFrequency) {
  setRange(minimum, maximum);
  setTickInterval(std::max(1, tickFrequency));
  setSingleStep(1);
  setPageStep(std::max(1, (maximum - minimum) / 10));
}

void CSliderCtrl::ScrollTo(int position) {
  const int before = value();
  setValue(position);
  if (value() != before) Q_EMIT EndScroll();
}

// The same space above the handle as below it, so that the track is in the middle.
QSize CSliderCtrl::sizeHint() const { return QSlider::sizeHint() + QSize(0, 2 * kTickHeight); }

// Some styles make the handle as high as the slider, so they do not get the ticks' space.
void CSliderCtrl::initStyleOption(QStyleOptionSlider* option) const {
  QSlider::initStyleOption(option);
  option->rect.adjust(0, kTickHeight, 0, -kTickHeight);
}

QSize CSliderCtrl::minimumSizeHint() const {
  return {QSlider::minimumSizeHint().width(), sizeHint().height()};
}

void CSliderCtrl::paintEvent(QPaintEvent* event) {
  QSlider::paintEvent(event);
  QStyleOptionSlider option;
  initStyleOption(&option);
  const QRect handle =
      style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
  const int room = width() - handle.width();
  const auto offset = [&](int value) {
    return QStyle::sliderPositionFromValue(minimum(), maximum(), value, room, option.upsideDown);
  };
  const int span = maximum() - minimum();
  if (span <= 0 || tickInterval() <= 0) return;
  const int step = room / kClosestTicks < span / tickInterval() ? pageStep() : tickInterval();
  QPainter painter(this);
  QColor color = palette().color(QPalette::WindowText);
  color.setAlphaF(0.5F);
  painter.setPen(color);
  const int top = handle.bottom() + 1 + kTickGap;
  for (int value = minimum(); value <= maximum(); value += step) {
    const int x = handle.width() / 2 + offset(value);
    painter.drawLine(x, top, x, top + kTickLength - 1);
  }
}

void CSliderCtrl::mousePressEvent(QMouseEvent* event) {
  // Some styles also scroll with the middle button, but here only the left one does.
  if (event->button() == Qt::LeftButton) {
    pressed_ = true;
    QSlider::mousePressEvent(event);
    Q_EMIT Scrolling(true);
  } else {
    event->ignore();
  }
}

void CSliderCtrl::mouseReleaseEvent(QMouseEvent* event) {
  // The press may have been dropped, so a release alone reports nothing.
  const bool scrolled = event->button() == Qt::LeftButton && std::exchange(pressed_, false);
  QSlider::mouseReleaseEvent(event);
  if (scrolled) Finish();
}

void CSliderCtrl::keyPressEvent(QKeyEvent* event) {
  const int before = value();
  QSlider::keyPressEvent(event);
  if (value() == before) return;
  keyScrolling_ = true;
  Q_EMIT Scrolling(true);
}

void CSliderCtrl::keyReleaseEvent(QKeyEvent* event) {
  QSlider::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) EndKeyScroll();
}

void CSliderCtrl::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  const int before = value();
  QSlider::wheelEvent(event);
  event->accept();  // even at the end of the range, otherwise the wheel would scroll the parent
  if (value() != before) Q_EMIT EndScroll();
}

void CSliderCtrl::focusOutEvent(QFocusEvent* event) {
  QSlider::focusOutEvent(event);
  // Disabling the slider takes its focus away; in that case the user did not finish.
  if (!isEnabled()) keyScrolling_ = false;
  EndKeyScroll();
}

void CSliderCtrl::EndKeyScroll() {
  if (std::exchange(keyScrolling_, false)) Finish();
}

void CSliderCtrl::Finish() {
  Q_EMIT Scrolling(false);
  Q_EMIT EndScroll();
}
