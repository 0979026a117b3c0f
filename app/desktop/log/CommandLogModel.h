#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <vector>

#include <QAbstractTableModel>
#include <QDateTime>
#include <QSortFilterProxyModel>

#include "device/ProjectorChannel.h"

/// The commands sent and their replies, oldest first. Holds at most `kMaximumEntries`, and drops
/// the oldest ones.
class CommandLogModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Time, Projector, Setting, Command, Value, Result, Duration, ColumnCount };
  static constexpr std::size_t kMaximumEntries = 20'000;

  struct Entry {
    QDateTime time;
    QString projector;
    QString setting;  ///< As `SettingNames` calls it; may be empty.
    QString value;    ///< The same for its value.
    PjtCommand command;
    PjtReply reply;
    std::chrono::microseconds elapsed;
  };

  using QAbstractTableModel::QAbstractTableModel;

  void Append(std::vector<Entry> entries);
  void Clear();

  /// Of the time: with its date, for files.
  static constexpr int kDatedRole = Qt::UserRole;

  /// Whether the row's command asked for a change instead of reading.
  bool IsChange(int row) const;
  /// Whether the projector did not do what the row's command asked.
  bool IsError(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  std::deque<Entry> entries_;
};

/// Limits the log to changes, to errors, to a projector, and to rows that contain a text, if
/// wanted.
class CommandLogFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  CommandLogFilter(CommandLogModel& log, QObject* parent);

  void ShowChangesOnly(bool only);
  void ShowErrorsOnly(bool only);
  /// All of them if `name` is empty.
  void ShowProjector(const QString& name);
  /// Each word of `text` must occur in a row.
  void ShowOnly(const QString& text);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  bool changesOnly_ = false;
  bool errorsOnly_ = false;
  QString projector_;
  QStringList words_;
};

/// Rows of a log as text: one line per row, with columns separated by tabs, and dates before times.
QString LogText(const QAbstractItemModel& log, const std::vector<int>& rows);
