#include "app/desktop/projectors/ProjectorView.h"

#include <algorithm>
#include <utility>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/desktop/projectors/ProjectorFilter.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr int kColumnGap = 4;
constexpr int kMinimumWidth = 170;

}  // namespace

ProjectorView::ProjectorView(QWidget* parent)
    : QWidget(parent),
      model_(new ProjectorTableModel(this)),
      filter_(new ProjectorFilter(this)),
      search_(new QLineEdit),
      table_(new QTableView),
      open_(new QPushButton(tr("&Open"))) {
  filter_->setSourceModel(model_);
  search_->setClearButtonEnabled(true);
  search_->setPlaceholderText(tr("Find a name, a model, a tab …"));
  search_->setAccessibleName(tr("Find projectors"));
  search_->installEventFilter(this);
  table_->setModel(filter_);
  table_->setItemDelegate(new IsolatedTexts(table_));
  table_->setAccessibleName(tr("Projectors"));
  table_->setSelectionBehavior(QTableView::SelectRows);
  table_->setSelectionMode(QTableView::ExtendedSelection);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
  table_->setMinimumWidth(kMinimumWidth);
  MakeColumns();

  auto* caption = new QLabel(tr("Pro&jectors"));
  caption->setBuddy(table_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(caption);
  layout->addWidget(search_);
  layout->addWidget(table_);
  layout->addWidget(open_, 0, Qt::AlignRight);

  connect(search_, &QLineEdit::textChanged, this, [this](const QString& words) {
    filter_->Search(words);
    // When a row is removed, the next one becomes the current row without being selected.
    const QModelIndex current = table_->currentIndex();
    if (!table_->selectionModel()->hasSelection()) {
      SelectOnly(current.isValid() ? current : filter_->index(0, 0));
    }
    open_->setEnabled(CurrentRow() >= 0);
  });
  connect(search_, &QLineEdit::returnPressed, this, &ProjectorView::Activated);
  // Emitted for a double-click and Enter.
  connect(table_, &QTableView::activated, this, &ProjectorView::Activated);
  connect(open_, &QPushButton::clicked, this, &ProjectorView::Activated);
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
    open_->setEnabled(CurrentRow() >= 0);
    Q_EMIT CurrentChanged();
  });
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &ProjectorView::CurrentChanged);
}

// A third click on a title restores the order of the file.
void ProjectorView::MakeColumns() {
  QHeaderView& columns = Columns();
  columns.setHighlightSections(false);
  columns.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  columns.setSortIndicatorClearable(true);
  columns.setSortIndicator(-1, Qt::AscendingOrder);
  columns.setStretchLastSection(true);
  table_->setSortingEnabled(true);
}

QHeaderView& ProjectorView::Columns() const { return *table_->horizontalHeader(); }

void ProjectorView::AddContextActions(const QList<QAction*>& actions) {
  table_->addActions(actions);
}

void ProjectorView::SetSessions(ProjectorTableModel::Sessions sessions) {
  const ProjectorSession* current = Current();
  const std::string name = current == nullptr ? std::string() : current->Profile().Name;
  const bool isFirst = model_->rowCount() == 0;
  model_->SetSessions(std::move(sessions));
  if (isFirst) {
    table_->resizeColumnsToContents();
    for (int column = 0; column + 1 < ProjectorTableModel::ColumnCount; ++column) {
      table_->setColumnWidth(column, table_->columnWidth(column) + kColumnGap);
    }
    // The column's text becomes longer while a dialog is open, or if a real projector has not
    // answered for long.
    const bool isSimulated = std::ranges::all_of(model_->All(), [](const auto& session) {
      return session->Connection() == ConnectionState::None;
    });
    const QString state = ConnectionStatusText(
        isSimulated ? ConnectionState::None : ConnectionState::Connected, std::chrono::seconds(50));
    table_->setColumnWidth(
        ProjectorTableModel::State,
        table_->fontMetrics().horizontalAdvance(tr("Open") + QStringLiteral(" · ") + state) +
            4 * kColumnGap);
  }
  const auto& all = model_->All();
  const auto same = std::ranges::find_if(
      all, [&name](const auto& session) { return session->Profile().Name == name; });
  if (!all.empty()) Select(same == all.end() ? 0 : static_cast<int>(same - all.begin()));
  Q_EMIT CurrentChanged();
}

int ProjectorView::CurrentRow() const { return filter_->mapToSource(table_->currentIndex()).row(); }

ProjectorSessions ProjectorView::Selected() const {
  QModelIndexList rows = table_->selectionModel()->selectedRows();
  std::ranges::sort(rows, {}, &QModelIndex::row);
  ProjectorSessions selected;
  for (const QModelIndex& row : rows) {
    const int place = filter_->mapToSource(row).row();
    selected.push_back(model_->All()[static_cast<std::size_t>(place)]);
  }
  return selected;
}

ProjectorSession* ProjectorView::Current() const {
  const int row = CurrentRow();
  return row < 0 ? nullptr : model_->All()[static_cast<std::size_t>(row)].get();
}

void ProjectorView::Select(int row) {
  const QModelIndex source = model_->index(row, 0);
  if (!filter_->mapFromSource(source).isValid()) search_->clear();
  SelectOnly(filter_->mapFromSource(source));
}

// Ignores modifier keys; with Ctrl the table would toggle the row.
void ProjectorView::SelectOnly(const QModelIndex& index) {
  table_->selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  table_->scrollTo(index);
}

void ProjectorView::FocusSearch() {
  search_->setFocus(Qt::ShortcutFocusReason);
  search_->selectAll();
}

void ProjectorView::FocusTable() { table_->setFocus(); }

// Keys that lead from the search box into the list, and that clear the search.
bool ProjectorView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
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
