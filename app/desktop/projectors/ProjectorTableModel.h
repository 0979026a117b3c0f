#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <vector>

#include <QAbstractTableModel>
#include <QTimer>

#include "app/desktop/projectors/ProjectorSession.h"

/// The captions of a model's tabs, in tab order, in the catalog's language.
QStringList TabNames(const CModelInfo2& model);

/// Whether every tab of the model's dialog has a setting.
bool HasRowsOnEveryTab(const CModelInfo2& model);

/// The state of a connection. If nothing is wrong and the last answer is long ago, also its age, in
/// steps of ten seconds, then minutes, then hours.
QString ConnectionStatusText(ConnectionState state,
                             std::optional<std::chrono::seconds> sinceAnswer);

/// The projectors in the order of their file.
class ProjectorTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Sessions = ProjectorSessions;

  enum Column { Name, State, Model, DialogType, ModelCode, Connection, ColumnCount };
  /// Names of the projector's tabs, one per line.
  static constexpr int kTabsRole = Qt::UserRole;

  explicit ProjectorTableModel(QObject* parent = nullptr);

  void SetSessions(Sessions sessions);
  const Sessions& All() const { return sessions_; }

  /// Sets a short text on what a projector is doing, empty for nothing. It is shown before the
  /// state of the connection, which the model updates by itself.
  void SetState(const ProjectorSession* session, const QString& state);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  void UpdateConnections();
  void StateChanged(std::size_t row);

  Sessions sessions_;
  QStringList connections_;  // the shown text of each session
  QTimer update_;
  std::map<const ProjectorSession*, QString> states_;
};
