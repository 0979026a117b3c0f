#include "pages/rows/RowMarks.h"

#include <utility>

#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>

#include "pages/common/SettingsDialog.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/LineLabel.h"

namespace AdvancedControl {

namespace {

// In pixels. Both marks fit between the frame of the page and the letters of the caption.
constexpr int kBarWidth = 3;
constexpr int kBarStart = 6;   // before the row
constexpr int kSignStart = 4;  // before the row
constexpr int kSpace = 10;     // beside a row

// What scrolls the page, or the rows of a page that is a window; null if nothing does.
const QScrollArea* AreaOf(const QWidget& page) {
  if (page.isWindow()) return page.findChild<FittedScroll*>(QString(), Qt::FindDirectChildrenOnly);
  for (const QWidget* part = &page; part != nullptr; part = part->parentWidget()) {
    if (const auto* area = qobject_cast<const QScrollArea*>(part)) return area;
  }
  return nullptr;
}

}  // namespace

RowMarks::RowMarks(SettingsDialog& page) : QWidget(page.window()), page_(page) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  page.installEventFilter(this);
}

void RowMarks::Show(std::vector<Mark> marks) {
  if (marks == marks_) return;
  marks_ = std::move(marks);
  Place();
}

void RowMarks::Place() {
  const QWidget* visible = &page_;
  if (const QScrollArea* area = AreaOf(page_)) {
    visible = area->viewport();
    // The contents move when they scroll.
    for (QObject* part : {area->widget(), area->viewport()}) part->installEventFilter(this);
  }
  // A window has space of its own beside the rows.
  const int space = page_.isWindow() ? 0 : kSpace;
  setGeometry(QRect(visible->mapTo(page_.window(), QPoint()), visible->size())
                  .adjusted(-space, 0, space, 0));
  setVisible(!marks_.empty() && page_.isVisible());
  raise();
  update();
}

bool RowMarks::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
      Place();
      break;
    default:
      break;
  }
  return false;
}

void RowMarks::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  const QPalette& colors = palette();
  const bool isDark = colors.color(QPalette::Window).lightness() < 128;
  const QColor warning = isDark ? QColor(255, 140, 120) : QColor(190, 30, 20);
  const int signWidth = kSignStart + LineLabel::MarginOf(fontMetrics());
  for (const Mark& mark : marks_) {
    const QWidget* rows = page_.GetDlgItem(mark.control)->parentWidget();
    QRect row = page_.RowRect(mark.control);
    row.moveTopLeft(rows->mapTo(window(), row.topLeft()) - pos());
    const auto place = [&](int left, int width) {
      const QRect at(row.left() - left, row.top(), width, row.height());
      return QStyle::visualRect(layoutDirection(), row, at);
    };
    if (mark.differs) {
      painter.fillRect(place(kBarStart, kBarWidth).adjusted(0, 2, 0, -2),
                       colors.color(QPalette::Highlight));
    }
    if (mark.refused) {
      painter.setPen(warning);
      painter.drawText(place(kSignStart, signWidth), Qt::AlignCenter | Qt::TextDontClip,
                       QStringLiteral("!"));
    }
  }
}

}  // namespace AdvancedControl
