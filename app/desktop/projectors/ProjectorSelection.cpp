#include "app/desktop/projectors/ProjectorSelection.h"

#include <algorithm>

#include <QItemSelectionModel>

#include "app/desktop/projectors/ProjectorTableModel.h"

ProjectorSelection::ProjectorSelection(const ProjectorTableModel& model, QItemSelectionModel& rows,
                                       QObject* parent)
    : QObject(parent), model_(model), rows_(rows) {
  connect(&rows_, &QItemSelectionModel::currentRowChanged, this, &ProjectorSelection::Changed);
  connect(&rows_, &QItemSelectionModel::selectionChanged, this, &ProjectorSelection::Changed);
  connect(&model_, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] {
    before_ = Positions();
    currentBefore_ = Current();
  });
  connect(&model_, &QAbstractItemModel::layoutChanged, this, &ProjectorSelection::Keep);
}

std::vector<int> ProjectorSelection::Positions() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : rows_.selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::ranges::sort(rows);
  // Not ranges::unique: clang 14 cannot use its result with this standard library.
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  std::ranges::transform(rows, rows.begin(), [this](int row) { return model_.PositionAt(row); });
  return rows;
}

int ProjectorSelection::Current() const {
  const QModelIndex current = rows_.currentIndex();
  return current.isValid() ? model_.PositionAt(current.row()) : -1;
}

// Rows side by side are one range: thousands of ranges would be slow.
QItemSelection ProjectorSelection::RowsOf(const std::vector<int>& positions) const {
  std::vector<int> shown;
  for (const int position : positions) {
    if (const QModelIndex index = model_.IndexOf(position); index.isValid())
      shown.push_back(index.row());
  }
  std::ranges::sort(shown);
  QItemSelection rows;
  for (auto first = shown.begin(); first != shown.end();) {
    const auto end = std::adjacent_find(first, shown.end(), [](int a, int b) { return b > a + 1; });
    const int last = end == shown.end() ? shown.back() : *end;
    rows.select(model_.index(*first, 0), model_.index(last, 0));
    first = end == shown.end() ? end : end + 1;
  }
  return rows;
}

// If a row disappears, its selection ends without a signal. If all rows of a long list were
// selected, the table selects as many rows as before, whatever they show.
void ProjectorSelection::Keep() {
  const std::size_t count = before_.size();
  std::erase_if(before_, [this](int one) { return !model_.IndexOf(one).isValid(); });
  std::vector<int> now = Positions();
  std::ranges::sort(now);
  std::ranges::sort(before_);
  if (now != before_) {
    rows_.select(RowsOf(before_), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  } else if (now.size() != count || Current() != currentBefore_) {
    Q_EMIT Changed();
  }
}
