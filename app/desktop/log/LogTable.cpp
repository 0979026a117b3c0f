#include "app/desktop/log/LogTable.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <QClipboard>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QToolTip>

#include "app/desktop/log/CommandLogModel.h"
#include "toolkit/IsolatedText.h"

namespace {

// The widest usual text of each column.
constexpr std::array<const char*, CommandLogModel::ColumnCount> kWidthSamples{"00:00:00.000",
                                                                              "Projector 5-30 b",
                                                                              "Digital Keystone V",
                                                                              "ExecAutoKeyStone",
                                                                              "Standard (12345)",
                                                                              "not offered",
                                                                              "2000.0"};

/// Shows the full text of a cell that is cut off as a tool tip.
class Cells : public IsolatedTexts {
 public:
  using IsolatedTexts::IsolatedTexts;

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const bool cutOff = sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !cutOff) {
      return IsolatedTexts::helpEvent(event, view, option, index);
    }
    QToolTip::showText(event->globalPos(), index.data().toString(), view);
    return true;
  }
};

}  // namespace

LogTable::LogTable(QAbstractItemModel& log, QWidget* parent) : QTableView(parent) {
  setModel(&log);
  setItemDelegate(new Cells(this));
  setSelectionBehavior(QTableView::SelectRows);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  verticalHeader()->hide();
}

// Loading and measuring the font takes a good part of the program's start, and the log is usually
// closed.
void LogTable::showEvent(QShowEvent* event) {
  const bool isFirst = !std::exchange(isSet_, true);
  if (isFirst) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    SetColumns();
    horizontalHeader()->restoreState(columns_);
  }
  QTableView::showEvent(event);
  if (isFirst) scrollToBottom();
}

QByteArray LogTable::SaveColumns() const {
  return isSet_ ? horizontalHeader()->saveState() : columns_;
}

void LogTable::RestoreColumns(const QByteArray& state) {
  columns_ = state;
  if (isSet_) horizontalHeader()->restoreState(state);
}

void LogTable::SetColumns() {
  const QFontMetrics metrics(font());
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(metrics.height() + 2);
  QHeaderView& columns = *horizontalHeader();
  columns.setHighlightSections(false);
  columns.setFont(QGuiApplication::font());
  columns.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int column = 0; column < CommandLogModel::ColumnCount; ++column) {
    const QString sample = QString::fromLatin1(kWidthSamples[static_cast<std::size_t>(column)]);
    setColumnWidth(column, metrics.horizontalAdvance(sample) + 12);
  }
  columns.setStretchLastSection(true);
}

void LogTable::CopySelected() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
  std::ranges::sort(rows);
  if (!rows.empty()) QGuiApplication::clipboard()->setText(LogText(*model(), rows));
}

void LogTable::updateGeometries() {
  QTableView::updateGeometries();
  free_ = std::max(0, viewport()->height() - verticalHeader()->length());
  if (free_ > 0) verticalHeader()->setOffset(-free_);
}

void LogTable::paintEvent(QPaintEvent* event) {
  QPaintEvent rows(event->region() & viewport()->rect().adjusted(0, free_, 0, 0));
  QTableView::paintEvent(&rows);
}
