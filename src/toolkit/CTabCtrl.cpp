#include "toolkit/CTabCtrl.h"

#include <algorithm>
#include <vector>

#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

CTabCtrl::CTabCtrl(QWidget* parent) : QTabBar(parent) {
  setExpanding(false);
  setDrawBase(false);
  setElideMode(Qt::ElideRight);
  setFocusPolicy(Qt::StrongFocus);
}

QSize CTabCtrl::tabSizeHint(int index) const {
  const QSize natural = QTabBar::tabSizeHint(index);
  return {std::max(natural.width(), itemWidth_), natural.height()};
}

// With too little space, a tab is as wide as its caption needs, or less if that is long.
QSize CTabCtrl::minimumTabSizeHint(int index) const {
  const QSize natural = QTabBar::tabSizeHint(index);
  return {std::min(natural.width(), WidestTab()), natural.height()};
}

// The width to which the longest tabs are shortened so that all fit. If they cannot, the row
// scrolls.
int CTabCtrl::WidestTab() const {
  constexpr int kFewestLetters = 6;  // of a caption, with the space around it
  std::vector<int> widths;
  for (int i = 0; i < count(); ++i) widths.push_back(QTabBar::tabSizeHint(i).width());
  std::ranges::sort(widths);
  int space = width();
  int others = count();
  for (const int natural : widths) {
    if (natural > space / others)
      return std::max(space / others, kFewestLetters * fontMetrics().averageCharWidth());
    space -= natural;
    --others;
  }
  return QWIDGETSIZE_MAX;
}

bool CTabCtrl::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<QHelpEvent&>(*event);
    const int tab = tabAt(help.pos());
    if (tab >= 0 && tabRect(tab).width() < QTabBar::tabSizeHint(tab).width()) {
      QStringList texts{tabText(tab), tabToolTip(tab)};
      texts.removeAll(QString());
      QToolTip::showText(help.globalPos(), texts.join(QLatin1Char('\n')), this);
      return true;
    }
  }
  return QTabBar::event(event);
}

// Ignored, because an accidental wheel notch would leave the page that the user works on.
void CTabCtrl::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QTabBar::wheelEvent(event);
  } else {
    event->ignore();
  }
}
