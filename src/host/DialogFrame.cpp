#include "host/DialogFrame.h"

#include <algorithm>

#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

#include "host/DialogPages.h"
#include "host/FindLine.h"
#include "pages/common/StatusLine.h"
#include "toolkit/CDialog.h"
#include "toolkit/CTabCtrl.h"
#include "toolkit/FittedScroll.h"

namespace AdvancedControl {

namespace {

constexpr QPoint kPagePosition{20, 64};
constexpr int kMargin = 12;
constexpr int kFindWidth = 300;
constexpr int kStripGap = 2;

// Below the usual position if a large font needs more room for the strip and the tabs.
QPoint PagePosition(const DialogFrame::Parts& parts) {
  const int strip = parts.strip.fontMetrics().height() + 2 * kStripGap;
  const int tabs = parts.pages.Tabs()->sizeHint().height();
  return {kPagePosition.x(), std::max(kPagePosition.y(), strip + tabs + kMargin)};
}

}  // namespace

void DialogFrame::FitToPages(const Parts& parts) {
  const QSize pages = parts.pages.FitPages();
  const int width = std::max(parts.pages.Tabs()->sizeHint().width() + 2 * kMargin,
                             kPagePosition.x() + pages.width() + kPagePosition.x());
  const int height = PagePosition(parts).y() + pages.height() + kPagePosition.x() +
                     parts.close.sizeHint().height() + 2 * kMargin;
  wholeSize_ = {width, height};
  dialog_.setMinimumSize(wholeSize_ / 3);
  dialog_.resize(FittedToScreen(dialog_, wholeSize_));
  Place(parts);  // a dialog that is created again keeps its size
}

void DialogFrame::Place(const Parts& parts) const {
  const int width = dialog_.width();
  const int height = dialog_.height();
  CTabCtrl& tabs = *parts.pages.Tabs();
  const QPoint page = PagePosition(parts);
  const int tabsHeight = tabs.sizeHint().height();
  tabs.setGeometry(kMargin, page.y() - kMargin - tabsHeight, width - 2 * kMargin, tabsHeight);
  const QRect strip(kPagePosition.x(), kStripGap, width - 2 * kPagePosition.x(),
                    tabs.y() - 2 * kStripGap);
  parts.strip.setGeometry(strip);
  const QSize button = parts.close.sizeHint().expandedTo(QSize(90, 0));
  const QRect bottomRight(width - kMargin - button.width(), height - kMargin - button.height(),
                          button.width(), button.height());
  const auto place = [this](QWidget& widget, const QRect& at) {
    widget.setGeometry(QStyle::visualRect(dialog_.layoutDirection(), dialog_.rect(), at));
  };
  place(parts.close, bottomRight);
  QRect line(kMargin, bottomRight.top(), bottomRight.left() - 2 * kMargin, bottomRight.height());
  place(parts.status, line);
  line.setLeft(std::max(line.left(), line.right() - kFindWidth));
  if (parts.find != nullptr) place(*parts.find, line);
  parts.pages.Area().setGeometry(
      QRect(page, QPoint(width, bottomRight.top()) -
                      QPoint(kPagePosition.x() + 1, kMargin + kPagePosition.x() + 1)));
}

void DialogFrame::Paint(const Parts& parts) const {
  QStylePainter painter(&dialog_);
  QStyleOptionTabWidgetFrame frame;
  frame.initFrom(&dialog_);
  const QWidget& tabs = *parts.pages.Tabs();
  const int top = tabs.geometry().bottom();
  frame.rect = QRect(kMargin, top, dialog_.width() - 2 * kMargin,
                     parts.close.geometry().top() - kMargin - top);
  frame.lineWidth = 1;
  frame.tabBarSize = tabs.size();
  painter.drawPrimitive(QStyle::PE_FrameTabWidget, frame);
}

}  // namespace AdvancedControl
