#pragma once

#include <vector>

#include "app/desktop/projectors/ProjectorRow.h"
#include "app/desktop/projectors/SearchTexts.h"

/// Finds the projectors of a group in which every word of a text occurs.
class RowSearch {
 public:
  void SetRows(const std::vector<ProjectorRow>& rows);
  void SetText(const QString& text) { text_ = text.trimmed().toLower(); }

  /// The positions of those found, in ascending order.
  std::vector<int> Matching(const std::vector<ProjectorRow>& rows, const ProjectorGroup& group);
  /// Moves a projector whose name is the whole text to the beginning.
  void PutExactFirst(const std::vector<ProjectorRow>& rows, std::vector<int>& positions) const;

 private:
  SearchTexts texts_;
  std::vector<QString> searched_;  // the texts of each projector that are searched
  QString text_;
};
