#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <vector>

#include <QAbstractTableModel>
#include <QTime>
#include <QTimer>
#include <QWidget>

#include "device/ProjectorChannel.h"

class QTableView;

/// The commands given and what came back, oldest first; the oldest are dropped beyond a limit.
class CommandLogModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Time, Projector, Command, Value, Result, Duration, ColumnCount };
  static constexpr std::size_t kMaximumEntries = 5000;

  struct Entry {
    QTime time;
    QString projector;
    PjtCommand command;
    PjtReply reply;
    std::chrono::microseconds elapsed;
  };

  using QAbstractTableModel::QAbstractTableModel;

  void Append(std::vector<Entry> entries);
  void Clear();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::deque<Entry> entries_;
};

/// Shows the log and follows its newest entry unless the user has scrolled back.
class CommandLog : public QWidget {
  Q_OBJECT

 public:
  explicit CommandLog(QWidget* parent = nullptr);

  /// Takes an entry; entries that come close upon each other are shown together.
  void Add(const QString& projector, const PjtCommand& command, const PjtReply& reply,
           std::chrono::microseconds elapsed);
  void Clear();

 Q_SIGNALS:
  /// New entries are shown.
  void Updated();

 private:
  void ShowPending();

  CommandLogModel* model_;
  QTableView* view_;
  std::vector<CommandLogModel::Entry> pending_;
  QTimer gather_;
};
