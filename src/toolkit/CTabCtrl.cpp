#include "toolkit/CTabCtrl.h"

#include <algorithm>

#include <QWheelEvent>

CTabCtrl::CTabCtrl(QWidget* parent) : QTabBar(parent) {
  setExpanding(false);
  setDrawBase(false);
  setFocusPolicy(Qt::StrongFocus);
}

void CTabCtrl::SetItemWidth(int width) {
  itemWidth_ = width;
  updateGeometry();
}

QSize CTabCtrl::tabSizeHint(int index) const {
  const QSize natural = QTabBar::tabSizeHint(index);
  return {std::max(natural.width(), itemWidth_), natural.height()};
}

// Ignored, because an accidental wheel notch would leave the page that the user works on.
void CTabCtrl::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QTabBar::wheelEvent(event);
  } else {
    event->ignore();
  }
}
