#include "toolkit/CSliderCtrl.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include "toolkit/DragBubble.h"

CSliderCtrl::CSliderCtrl(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::StrongFocus);
  setTickPosition(QSlider::TicksBelow);
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

void CSliderCtrl::mousePressEvent(QMouseEvent* event) {
  // Some styles also scroll with the middle button; here only the left one acts.
  if (event->button() == Qt::LeftButton) {
    pressed_ = true;
    QSlider::mousePressEvent(event);
  } else {
    event->ignore();
  }
}

void CSliderCtrl::mouseReleaseEvent(QMouseEvent* event) {
  // The press may have been dropped.
  const bool scrolled = event->button() == Qt::LeftButton && std::exchange(pressed_, false);
  QSlider::mouseReleaseEvent(event);
  if (scrolled) Q_EMIT EndScroll();
}

void CSliderCtrl::keyPressEvent(QKeyEvent* event) {
  const int before = value();
  QSlider::keyPressEvent(event);
  if (value() != before) keyScrolling_ = true;
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
  event->accept();  // at the end of the range too, or the wheel would scroll something behind
  if (value() != before) Q_EMIT EndScroll();
}

void CSliderCtrl::focusOutEvent(QFocusEvent* event) {
  QSlider::focusOutEvent(event);
  // A slider that is disabled in mid-step loses the focus by that: the user did not finish.
  if (!isEnabled()) keyScrolling_ = false;
  EndKeyScroll();
}

void CSliderCtrl::EndKeyScroll() {
  if (std::exchange(keyScrolling_, false)) Q_EMIT EndScroll();
}
