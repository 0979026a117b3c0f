#include "pages/common/PageVeil.h"

#include <QPainter>

namespace AdvancedControl {

namespace {

constexpr int kOpacity = 190;  // of 255; the rows below remain just visible

}  // namespace

PageVeil::PageVeil(QWidget& page) : QWidget(&page) { setCursor(Qt::WaitCursor); }

void PageVeil::Cover(const QRect& area, const QRegion& dimmed, const QRegion& open) {
  setGeometry(area);
  dimmed_ = dimmed.translated(-area.topLeft());
  if (open.isEmpty()) {
    clearMask();
  } else {
    setMask(QRegion(rect()) - open.translated(-area.topLeft()));
  }
  raise();
  show();
  update();
}

void PageVeil::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor color = palette().color(QPalette::Window);
  color.setAlpha(kOpacity);
  for (const QRect& part : dimmed_) painter.fillRect(part, color);
}

}  // namespace AdvancedControl
