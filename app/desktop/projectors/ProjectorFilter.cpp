#include "app/desktop/projectors/ProjectorFilter.h"

#include <algorithm>

#include "app/desktop/projectors/ProjectorTableModel.h"

ProjectorFilter::ProjectorFilter(QObject* parent) : QSortFilterProxyModel(parent) {
  collator_.setNumericMode(true);
  collator_.setCaseSensitivity(Qt::CaseInsensitive);
}

void ProjectorFilter::Search(const QString& words) {
  words_ = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool ProjectorFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  if (words_.isEmpty()) return true;
  QString text =
      sourceModel()->index(row, 0, parent).data(ProjectorTableModel::kTabsRole).toString();
  for (int column = 0; column < sourceModel()->columnCount(parent); ++column) {
    text += QLatin1Char('\n') + sourceModel()->index(row, column, parent).data().toString();
  }
  return std::ranges::all_of(
      words_, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

bool ProjectorFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  return collator_.compare(left.data().toString(), right.data().toString()) < 0;
}
