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
  /// Moves one that is called like the whole text to the beginning.
  void PutExactFirst(const std::vector<ProjectorRow>& rows, std::vector<int>& positions) const;

 private:
  SearchTexts texts_;
  std::vector<QString> searched_;  // what is looked at of each projector
  QString text_;
};
