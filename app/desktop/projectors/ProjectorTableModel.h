#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <vector>

#include <QAbstractTableModel>
#include <QTimer>

#include "app/desktop/projectors/ProjectorSession.h"

/// The captions of a model's tabs, in their order, in the catalog's language.
QStringList TabNames(const CModelInfo2& model);

/// Whether every tab that the model's dialog shows has a setting on it.
bool HasRowsOnEveryTab(const CModelInfo2& model);

/// How a connection stands, and, where none is wrong, when the projector answered last if that is
/// long ago: in steps of ten seconds, then of minutes, then of hours.
QString ConnectionTold(ConnectionState state, std::optional<std::chrono::seconds> sinceAnswer);

/// The projectors in the order of their file.
class ProjectorTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Sessions = ProjectorSessions;

  enum Column { Name, State, Model, DialogType, ModelCode, Connection, ColumnCount };
  /// Names of the projector's tabs, a line each.
  static constexpr int kTabsRole = Qt::UserRole;

  explicit ProjectorTableModel(QObject* parent = nullptr);

  void SetSessions(Sessions sessions);
  const Sessions& All() const { return sessions_; }

  /// What is going on with a projector, in a word or two; empty when nothing is. Stands before how
  /// its connection stands, which the model keeps up by itself.
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
  QStringList connections_;  // as shown, of each session
  QTimer update_;
  std::map<const ProjectorSession*, QString> states_;
};
