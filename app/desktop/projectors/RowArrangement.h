#pragma once

#include <vector>

#include <Qt>

#include "app/desktop/projectors/ProjectorRow.h"
#include "app/desktop/projectors/RowSearch.h"

/// Decides which projectors the list shows, and in which order: those of a group that match a
/// search, in the order of a column or of the file.
class RowArrangement {
 public:
  /// Prepares the search in these.
  void SetRows(const std::vector<ProjectorRow>& rows) { search_.SetRows(rows); }

  /// See `ProjectorTableModel::Search`.
  void Search(const QString& text) { search_.SetText(text); }
  void SetGroup(const ProjectorGroup& group) { group_ = group; }
  const ProjectorGroup& Group() const { return group_; }
  /// A column of −1 is the order of the file.
  void Sort(int column, Qt::SortOrder order);

  /// Whether a change of what a projector reports may make a difference.
  bool DependsOnState() const;

  /// The positions of those that are shown, in order.
  std::vector<int> Of(const std::vector<ProjectorRow>& rows);

 private:
  RowSearch search_;
  ProjectorGroup group_;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};
