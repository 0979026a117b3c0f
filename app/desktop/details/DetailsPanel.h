#pragma once

#include <array>
#include <vector>

#include <QList>
#include <QStringList>
#include <QWidget>

#include "app/desktop/projectors/ProjectorRow.h"
#include "fleet/StateChange.h"

class QAction;
class QGridLayout;
class QLabel;
class QListWidget;
class QProgressBar;

/// Shows one projector: its state, lamp and filter, its recent events, and buttons for the everyday
/// changes.
class DetailsPanel : public QWidget {
  Q_OBJECT

 public:
  /// `actions` become buttons; those with a menu open it.
  explicit DetailsPanel(const QList<QAction*>& actions, QWidget* parent = nullptr);

  /// `row` is the only one that is selected, or null. `count` is how many projectors are selected.
  void Show(const ProjectorRow* row, std::size_t count, const std::vector<StateChange>& history);

 private:
  enum Fact {
    State,
    Power,
    Source,
    Problem,
    Switches,
    Lamp,
    Filter,
    Settings,
    Answered,
    FactCount
  };

  void ShowFacts(const ProjectorRow& row);
  void ShowHistory(const ProjectorRow& row, const std::vector<StateChange>& history);

  QLabel* name_;
  QLabel* place_;
  QLabel* sign_;
  std::array<QLabel*, FactCount> facts_{};
  QProgressBar* lamp_;
  QListWidget* events_;
  QStringList shown_;  // the lines of `events_`
  QWidget* body_;
};
