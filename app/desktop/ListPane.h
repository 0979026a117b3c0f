#pragma once

#include <string>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "app/desktop/alerts/AlertRules.h"
#include "app/desktop/projectors/ProjectorView.h"

class DetailsPanel;
class FleetWatch;
class GroupList;
class QSplitter;

/// The groups, the list, and the details of the selected projector, side by side.
class ListPane : public QWidget {
  Q_OBJECT

 public:
  /// `watch` must outlive it.
  explicit ListPane(FleetWatch& watch, QWidget* parent = nullptr);

  ProjectorView& View() const { return *view_; }
  /// `actions` are the buttons of the details.
  void AddDetails(const QList<QAction*>& actions);

  /// Shows a line above the list that says that all projectors are simulated, with these actions
  /// as buttons, until the user closes it or a projector is real.
  void OfferRealOnes(const QList<QAction*>& actions);

  void SetProfiles(const std::vector<FleetProfile>& profiles);
  /// Shows the present states of these projectors.
  void Refresh(const std::vector<std::string>& ids);
  /// Marks the projectors that have alerts, and only these.
  void MarkAlerts(const std::vector<Alert>& alerts);
  /// The name of a projector; empty if it is not in the list.
  QString NameOf(const std::string& id) const;
  /// The selected projectors; valid until the list changes.
  std::vector<const ProjectorRow*> Selected() const;
  /// The selected projector; null if there is none, or more than one. It need not be the current
  /// one of the list.
  const ProjectorRow* OnlySelected() const;

  QByteArray SaveState() const;
  /// False if `state` is none.
  bool RestoreState(const QByteArray& state);
  /// The width at which the groups, all columns of the list, and the details have room.
  int UsualWidth() const;
  /// Gives the list the width that the groups and details do not need.
  void Spread(int width);

 Q_SIGNALS:
  /// Emitted once a second, and when the list has changed.
  void Counted(const std::vector<ProjectorRow>& rows);

 private:
  void Show(ProjectorRow& row) const;
  void ShowDetails();
  int DetailsWidth() const;
  void Count();

  FleetWatch& watch_;
  QSplitter* sides_;
  GroupList* groups_;
  ProjectorView* view_;
  DetailsPanel* details_ = nullptr;
  QWidget* detailsArea_ = nullptr;  ///< Scrolls the details.
  QWidget* offer_ = nullptr;
  QTimer counting_;
  std::size_t nextFetched_ = 0;  ///< Position of the row whose last answer was fetched last.
};
