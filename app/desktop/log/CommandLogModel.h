#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <vector>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QTime>

#include "device/ProjectorChannel.h"

/// The commands given and what came back, oldest first; the oldest are dropped beyond a limit.
class CommandLogModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Time, Projector, Command, Value, Result, Duration, ColumnCount };
  static constexpr std::size_t kMaximumEntries = 20'000;

  struct Entry {
    QTime time;
    QString projector;
    QString setting;  ///< What the setting of a generic command is called; may be empty.
    PjtCommand command;
    PjtReply reply;
    std::chrono::microseconds elapsed;
  };

  using QAbstractTableModel::QAbstractTableModel;

  void Append(std::vector<Entry> entries);
  void Clear();

  /// Whether the entry of a row asked for a change, rather than read.
  bool IsChange(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  std::deque<Entry> entries_;
};

/// The log, or only what asked for a change.
class CommandLogFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void ShowChangesOnly(bool only);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  bool changesOnly_ = false;
};

/// Rows of a log as text: a line each, the columns separated by tabs.
QString LogText(const QAbstractItemModel& log, const std::vector<int>& rows);
