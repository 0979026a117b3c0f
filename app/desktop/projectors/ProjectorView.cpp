#include "app/desktop/projectors/ProjectorView.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include "app/desktop/projectors/FocusedRows.h"
#include "app/desktop/projectors/LampDelegate.h"
#include "app/desktop/projectors/ProjectorSelection.h"
#include "app/desktop/projectors/StateTexts.h"

namespace {

constexpr int kColumnGap = 14;
constexpr int kIconWidth = 24;
constexpr int kMinimumWidth = 170;

}  // namespace

ProjectorView::ProjectorView(QWidget* parent)
    : QWidget(parent),
      model_(new ProjectorTableModel(this)),
      search_(new QLineEdit),
      found_(new QLabel),
      table_(new QTableView) {
  search_->setClearButtonEnabled(true);
  search_->setPlaceholderText(tr("Find a name, model, place, address, tab or setting"));
  search_->setAccessibleName(tr("Find projectors"));
  search_->installEventFilter(this);
  found_->setTextFormat(Qt::PlainText);
  found_->hide();
  table_->setModel(model_);
  table_->setItemDelegate(new FocusedRows(table_));
  table_->setItemDelegateForColumn(ProjectorColumns::Lamp, new LampDelegate(table_));
  table_->setAccessibleName(tr("Projectors"));
  table_->setSelectionBehavior(QTableView::SelectRows);
  table_->setSelectionMode(QTableView::ExtendedSelection);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->setShowGrid(false);
  table_->setAlternatingRowColors(true);
  table_->verticalHeader()->hide();
  // Measuring ten thousand rows one by one would be slow.
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
  table_->setMinimumWidth(kMinimumWidth);
  MakeColumns();

  auto* head = new QHBoxLayout;
  head->addWidget(search_, 1);
  head->addWidget(found_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(table_);

  connect(search_, &QLineEdit::textChanged, this, &ProjectorView::TakeSearch);
  connect(search_, &QLineEdit::returnPressed, this, [this] {
    if (model_->rowCount() == 0) return;
    SelectOnly(model_->index(0, 0));
    Q_EMIT Activated();
  });
  // Not the signal `activated`, which some desktops emit for a single click.
  table_->installEventFilter(this);
  connect(table_, &QTableView::doubleClicked, this, &ProjectorView::Activated);
  selection_ = new ProjectorSelection(*model_, *table_->selectionModel(), this);
  connect(selection_, &ProjectorSelection::Changed, this, &ProjectorView::SelectionChanged);
}

// A third click on a title restores the order of the file.
void ProjectorView::MakeColumns() {
  QHeaderView& columns = Columns();
  columns.setHighlightSections(false);
  columns.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  columns.setSortIndicatorClearable(true);
  columns.setSortIndicator(-1, Qt::AscendingOrder);
  columns.setStretchLastSection(true);
  columns.setSectionsMovable(true);
  table_->setSortingEnabled(true);
  for (int column = 0; column < ProjectorColumns::ColumnCount; ++column)
    table_->setColumnWidth(column, WidthOf(column, ProjectorColumns::Samples(column)));
  for (const auto column : {ProjectorColumns::Settings, ProjectorColumns::Address})
    columns.setSectionHidden(column, true);
  columns.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&columns, &QWidget::customContextMenuRequested, this, &ProjectorView::AskForColumns);
}

int ProjectorView::TitleWidth(int column) const {
  const QString title = model_->headerData(column, Qt::Horizontal).toString();
  return table_->fontMetrics().horizontalAdvance(title) + kColumnGap;
}

int ProjectorView::WidthOf(int column, const QStringList& samples) const {
  int text = TitleWidth(column);
  for (const QString& sample : samples)
    text = std::max(text, table_->fontMetrics().horizontalAdvance(sample));
  return text + kColumnGap + (column == ProjectorColumns::State ? kIconWidth : 0);
}

void ProjectorView::AskForColumns(const QPoint& place) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (int column = 1; column < ProjectorColumns::ColumnCount; ++column) {
    QAction* action = menu->addAction(model_->headerData(column, Qt::Horizontal).toString());
    action->setCheckable(true);
    action->setChecked(!Columns().isSectionHidden(column));
    connect(action, &QAction::toggled, this,
            [this, column](bool isShown) { Columns().setSectionHidden(column, !isShown); });
  }
  menu->popup(Columns().mapToGlobal(place));
}

QHeaderView& ProjectorView::Columns() const { return *table_->horizontalHeader(); }

void ProjectorView::AddContextActions(const QList<QAction*>& actions) {
  table_->addActions(actions);
}

void ProjectorView::TakeSearch(const QString& text) {
  model_->Search(text);
  const int count = model_->rowCount();
  found_->setVisible(!text.trimmed().isEmpty());
  found_->setText(count == 0 ? tr("Nothing found") : tr("%n found", "projectors", count));
  const bool isExact = count > 0 && QString::compare(model_->index(0, 0).data().toString(),
                                                     text.trimmed(), Qt::CaseInsensitive) == 0;
  if (count > 0 && (isExact || !table_->selectionModel()->hasSelection()))
    SelectOnly(model_->index(0, 0));
  Q_EMIT SelectionChanged();
}

void ProjectorView::SetRows(std::vector<ProjectorRow> rows) {
  std::set<std::string> selected;
  for (const int position : Selected())
    selected.insert(model_->All()[static_cast<std::size_t>(position)].id);
  const ProjectorRow* before = Current();
  const std::string current = before == nullptr ? std::string() : before->id;
  model_->SetRows(std::move(rows));
  std::vector<int> positions;
  positions.reserve(selected.size());
  for (const std::string& id : selected) positions.push_back(model_->Find(id));
  QItemSelection selection = selection_->RowsOf(positions);
  QModelIndex index = model_->IndexOf(model_->Find(current));
  if (!index.isValid()) index = model_->index(0, 0);
  if (selection.isEmpty() && index.isValid()) selection.select(index, index);
  table_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  table_->selectionModel()->select(selection,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  Q_EMIT SelectionChanged();
}

int ProjectorView::CurrentPosition() const { return selection_->Current(); }

const ProjectorRow* ProjectorView::Current() const {
  const int position = CurrentPosition();
  return position < 0 ? nullptr : &model_->All()[static_cast<std::size_t>(position)];
}

std::vector<int> ProjectorView::Selected() const { return selection_->Positions(); }

void ProjectorView::Select(int position) {
  if (!model_->IndexOf(position).isValid()) search_->clear();
  if (!model_->IndexOf(position).isValid()) {
    model_->SetGroup({});
    Q_EMIT GroupLeft();
  }
  SelectOnly(model_->IndexOf(position));
}

// Ignores modifier keys; with Ctrl the table would toggle the row.
void ProjectorView::SelectOnly(const QModelIndex& index) {
  table_->selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  table_->scrollTo(index);
}

std::size_t ProjectorView::SelectedCount() const {
  std::size_t count = 0;
  for (const QItemSelectionRange& range : table_->selectionModel()->selection())
    count += static_cast<std::size_t>(range.height());
  return count;
}

std::vector<int> ProjectorView::InSight() const {
  std::vector<int> positions;
  if (!isVisible() || model_->rowCount() == 0) return positions;
  const int last = table_->rowAt(table_->viewport()->height() - 1);
  const int end = last < 0 ? model_->rowCount() : last + 1;
  for (int row = std::max(0, table_->rowAt(0)); row < end; ++row)
    positions.push_back(model_->PositionAt(row));
  return positions;
}

int ProjectorView::UsualWidth() const {
  int columns = 0;
  for (int column = 0; column < ProjectorColumns::ColumnCount; ++column)
    columns += table_->columnWidth(column);  // 0 if it is hidden
  return columns + table_->verticalScrollBar()->sizeHint().width() + 2 * table_->frameWidth();
}

// First without what is rare, such as a second tag, then to the titles; only names stay whole.
void ProjectorView::FitColumns(int width) {
  using Columns = ProjectorColumns;
  int missing = UsualWidth() - width;
  const auto narrow = [&](int column, int least) {
    const int before = table_->columnWidth(column);
    if (missing <= 0 || least >= before) return;
    table_->setColumnWidth(column, std::max(least, before - missing));
    missing -= before - table_->columnWidth(column);
  };
  for (const int column : {Columns::Place, Columns::State})
    narrow(column, WidthOf(column, Columns::ShortSamples(column)));
  for (const int column : {Columns::Source, Columns::Problem, Columns::Model, Columns::Place})
    narrow(column, TitleWidth(column));
}

void ProjectorView::FocusSearch() {
  search_->setFocus(Qt::ShortcutFocusReason);
  search_->selectAll();
}

void ProjectorView::FocusTable() { table_->setFocus(); }

// Keys that open dialogs from the list, lead from the search box into the list, and clear the
// search.
bool ProjectorView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* press = static_cast<QKeyEvent*>(event);
    const int key = press->key();
    if (watched == table_) {
      const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
      if (!isEnter || (press->modifiers() & ~Qt::KeypadModifier) != 0) return false;
      Q_EMIT Activated();
      return true;
    }
    if (key == Qt::Key_Down) {
      FocusTable();
      return true;
    }
    if (key == Qt::Key_Escape) {
      search_->clear();
      FocusTable();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}
