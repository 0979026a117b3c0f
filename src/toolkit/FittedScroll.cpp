#include "toolkit/FittedScroll.h"

#include <algorithm>

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

namespace AdvancedControl {

namespace {

// A guess: the window manager's frame is unknown until the window is shown.
constexpr QSize kFrame{10, 40};

}  // namespace

FittedScroll::FittedScroll(QWidget* contents, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(contents);
  contents->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now != nullptr && widget()->isAncestorOf(now)) ScrollIntoView(*now);
  });
}

// Mirrored layouts need this, because Qt scrolls horizontally as if all text ran from left to
// right.
void FittedScroll::ScrollIntoView(QWidget& control) {
  ensureWidgetVisible(&control, 0, control.height());
  if (!isRightToLeft()) return;
  const int left = control.mapTo(viewport(), QPoint()).x();
  const int beyond = left + control.width() - viewport()->width();
  QScrollBar& bar = *horizontalScrollBar();
  bar.setValue(bar.value() - (beyond > 0 ? beyond : std::min(left, 0)));
}

QSize AvailableSize(const QWidget& window) {
  return window.screen()->availableGeometry().size() - kFrame;
}

QSize FittedToScreen(const QWidget& window, QSize wanted) {
  const QSize available = AvailableSize(window);
  const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const bool tooHigh = wanted.height() > available.height();
  const bool tooWide = wanted.width() > available.width();
  return (wanted + QSize(tooHigh ? bar : 0, tooWide ? bar : 0)).boundedTo(available);
}

void CentreOnScreen(QWidget& window, const QWidget& owner) {
  const QRect screen = owner.screen()->availableGeometry();
  const QPoint at = owner.frameGeometry().center() - window.rect().center();
  const QPoint last = screen.bottomRight() - QPoint(window.width(), window.height());
  window.move(std::max(screen.left(), std::min(at.x(), last.x())),
              std::max(screen.top(), std::min(at.y(), last.y())));
}

}  // namespace AdvancedControl
