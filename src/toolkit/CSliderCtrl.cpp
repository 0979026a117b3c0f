#include "toolkit/CSliderCtrl.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QStylePainter>
#include <QWheelEvent>

#include "toolkit/FocusPen.h"

namespace {

constexpr int kTickLength = 4;
constexpr int kTickGap = 1;  // between the handle and its ticks
constexpr int kTickHeight = kTickGap + kTickLength;
constexpr int kClosestTicks = 3;  // closer ticks would look like a line
constexpr double kZeroWidth = 2;
constexpr float kZeroOpacity = 0.7F;
constexpr double kTrack = 4;     // height
constexpr float kEmpty = 0.22F;  // opacity of the track
constexpr double kFocusRadius = 4;
constexpr double kCatch = 3;  // pixels from 0

}  // namespace

CSliderCtrl::CSliderCtrl(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::StrongFocus);
}

QRect CSliderCtrl::HandleRect() const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

void CSliderCtrl::SetRange(int minimum, int maximum, int tickFrequency) {
  setRange(minimum, maximum);
  setTickInterval(std::max(1, tickFrequency));
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

double CSliderCtrl::PlaceOf(int position) const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const int handle = HandleRect().width();
  return handle / 2.0 + QStyle::sliderPositionFromValue(minimum(), maximum(), position,
                                                        width() - handle, option.upsideDown);
}

void CSliderCtrl::DrawTrack(QPainter& painter, const QRect& handle) const {
  const double middle = QRectF(handle).center().y();
  const auto draw = [&](double from, double to, const QColor& color) {
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(QPointF(std::min(from, to), middle - kTrack / 2),
                                   QPointF(std::max(from, to), middle + kTrack / 2)),
                            kTrack / 2, kTrack / 2);
  };
  QColor empty = palette().color(QPalette::WindowText);
  empty.setAlphaF(kEmpty);
  painter.setPen(Qt::NoPen);
  draw(PlaceOf(minimum()), PlaceOf(maximum()), empty);
  if (!isEnabled()) return;
  draw(PlaceOf(HasZero() ? 0 : minimum()), PlaceOf(sliderPosition()),
       palette().color(QPalette::Highlight));
}

void CSliderCtrl::DrawTicks(QPainter& painter, const QRect& handle) const {
  const int span = maximum() - minimum();
  if (span <= 0 || tickInterval() <= 0) return;
  const int room = width() - handle.width();
  const int step = room / kClosestTicks < span / tickInterval() ? pageStep() : tickInterval();
  QColor color = palette().color(QPalette::WindowText);
  color.setAlphaF(0.5F);
  painter.setPen(color);
  const int top = handle.bottom() + 1 + kTickGap;
  // Counted from 0 if the range has it.
  const int first = HasZero() ? minimum() - minimum() % step : minimum();
  for (int value = first; value <= maximum(); value += step) {
    const int x = static_cast<int>(PlaceOf(value));
    painter.drawLine(x, top, x, top + kTickLength - 1);
  }
}

void CSliderCtrl::DrawZero(QPainter& painter, const QRect& handle) const {
  QColor color = palette().color(QPalette::WindowText);
  color.setAlphaF(kZeroOpacity);
  painter.setPen(QPen(color, kZeroWidth));
  const double x = PlaceOf(0);
  const double below = handle.bottom() + 1 + kTickGap;
  painter.drawLine(QPointF(x, below), QPointF(x, below + kTickLength));
  painter.drawLine(QPointF(x, handle.top() - kTickHeight), QPointF(x, handle.top() - kTickGap));
}

void CSliderCtrl::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionSlider option;
  initStyleOption(&option);
  const QRect handle = HandleRect();
  DrawTicks(painter, handle);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawTrack(painter, handle);
  if (HasZero()) DrawZero(painter, handle);
  option.subControls = QStyle::SC_SliderHandle;
  if (isSliderDown()) {
    option.activeSubControls = QStyle::SC_SliderHandle;
    option.state |= QStyle::State_Sunken;
  }
  painter.drawComplexControl(QStyle::CC_Slider, option);
  if (!ShowsFocus(*this)) return;
  painter.setPen(FocusPen(*this));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(handle).adjusted(-1, -1, 1, 1), kFocusRadius, kFocusRadius);
}

void CSliderCtrl::DragTo(int position) {
  setValue(position);
  Q_EMIT Scrolling(true);
}

void CSliderCtrl::mousePressEvent(QMouseEvent* event) {
  // Some styles also scroll with the middle button, but here only the left one does.
  if (event->button() != Qt::LeftButton) return event->ignore();
  pressed_ = true;
  QSlider::mousePressEvent(event);
  Q_EMIT Scrolling(true);
}

void CSliderCtrl::mouseMoveEvent(QMouseEvent* event) {
  QSlider::mouseMoveEvent(event);
  if (!isSliderDown() || !HasZero()) return;
  if (std::abs(PlaceOf(sliderPosition()) - PlaceOf(0)) <= kCatch) setSliderPosition(0);
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
