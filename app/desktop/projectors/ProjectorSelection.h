#pragma once

#include <vector>

#include <QItemSelection>
#include <QObject>

class ProjectorTableModel;
class QItemSelectionModel;

/// Which projectors of the list are selected. Those that are still shown stay so when the list is
/// arranged anew. Positions are those in the file.
class ProjectorSelection : public QObject {
  Q_OBJECT

 public:
  /// `model` and `rows` must outlive it.
  ProjectorSelection(const ProjectorTableModel& model, QItemSelectionModel& rows, QObject* parent);

  /// In the order of the list.
  std::vector<int> Positions() const;
  /// −1 if there is none.
  int Current() const;
  /// The rows that show these projectors.
  QItemSelection RowsOf(const std::vector<int>& positions) const;

 Q_SIGNALS:
  /// Others are selected, or another one is the current one.
  void Changed();

 private:
  void Keep();

  const ProjectorTableModel& model_;
  QItemSelectionModel& rows_;
  // Before the list was arranged anew.
  std::vector<int> before_;
  int currentBefore_ = -1;
};
