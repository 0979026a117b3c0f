#include "app/desktop/projectors/RowArrangement.h"

#include "app/desktop/projectors/ProjectorColumns.h"
#include "app/desktop/projectors/RowOrder.h"

void RowArrangement::Sort(int column, Qt::SortOrder order) {
  sortColumn_ = column;
  sortOrder_ = order;
}

bool RowArrangement::DependsOnState() const {
  const bool groupDepends =
      group_.kind != ProjectorGroup::Kind::All && group_.kind != ProjectorGroup::Kind::Tag;
  return groupDepends || (sortColumn_ >= 0 && ProjectorColumns::ShowsState(sortColumn_));
}

std::vector<int> RowArrangement::Of(const std::vector<ProjectorRow>& rows) {
  std::vector<int> positions = search_.Matching(rows, group_);
  if (sortColumn_ >= 0) {
    const auto sort = [this, &rows, &positions](const auto& keyOf) {
      SortBy(positions, sortOrder_,
             [&](int position) { return keyOf(rows[static_cast<std::size_t>(position)]); });
    };
    if (!rows.empty() && ProjectorColumns::Number(rows.front(), sortColumn_)) {
      sort([this](const ProjectorRow& row) { return *ProjectorColumns::Number(row, sortColumn_); });
    } else {
      sort([this](const ProjectorRow& row) { return ProjectorColumns::Text(row, sortColumn_); });
    }
  }
  search_.PutExactFirst(rows, positions);
  return positions;
}
