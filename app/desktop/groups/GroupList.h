#pragma once

#include <vector>

#include <QListWidget>

#include "app/desktop/projectors/ProjectorRow.h"

/// The groups beside the list, each with the number of its projectors: all, those with problems,
/// off or not reachable, and the tags.
class GroupList : public QListWidget {
  Q_OBJECT

 public:
  explicit GroupList(QWidget* parent = nullptr);

  /// Counts the projectors.
  void Show(const std::vector<ProjectorRow>& rows);
  void Choose(const ProjectorGroup& group);

  QSize sizeHint() const override;

 Q_SIGNALS:
  void Chosen(const ProjectorGroup& group);

 private:
  std::vector<ProjectorGroup> groups_;
};
