#include "app/desktop/log/CommandLogModel.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include "app/desktop/log/SettingNames.h"
#include "device/channels/LoggingChannel.h"

namespace {

constexpr std::array<const char*, CommandLogModel::ColumnCount> kTitles{
    QT_TRANSLATE_NOOP("CommandLogModel", "Time"),
    QT_TRANSLATE_NOOP("CommandLogModel", "Projector"),
    QT_TRANSLATE_NOOP("CommandLogModel", "Setting"),
    QT_TRANSLATE_NOOP("CommandLogModel", "Command"),
    QT_TRANSLATE_NOOP("CommandLogModel", "Value"),
    QT_TRANSLATE_NOOP("CommandLogModel", "Result"),
    QT_TRANSLATE_NOOP("CommandLogModel", "ms")};

// "Get 0x2201", "SetBrightness", "GetInputSrcVolume(3)": without the value, which has a column.
QString CommandText(const PjtCommand& command) {
  QString text = QString::fromStdString(FormatCommand(command));
  const OperationForm& form = FormOf(command.operation);
  text.truncate(text.indexOf(QLatin1Char('(')) < 0 ? text.size() : text.indexOf(QLatin1Char('(')));
  if (form.first == Argument::Address) text += QStringLiteral("(%1)").arg(command.first);
  return text.trimmed();
}

// "4 (132)": as the dialog shows it, and as the projector takes it.
QString ValueText(const CommandLogModel::Entry& entry) {
  const auto value = ValueOf(entry.command, entry.reply);
  if (!value) return {};
  const QString raw = QString::number(*value);
  return entry.value.isEmpty() || entry.value == raw
             ? raw
             : QStringLiteral("%1 (%2)").arg(entry.value, raw);
}

/// The outcome of a command as a text.
struct Outcome {
  const char* text;
  bool failed;
};

Outcome OutcomeOf(const CommandLogModel::Entry& entry) {
  const PjtReply& reply = entry.reply;
  if (reply.abandoned) return {QT_TRANSLATE_NOOP("CommandLogModel", "abandoned"), false};
  if (!reply.answered) return {QT_TRANSLATE_NOOP("CommandLogModel", "no answer"), true};
  if (reply.busy) return {QT_TRANSLATE_NOOP("CommandLogModel", "busy"), true};
  if (!reply.offered) return {QT_TRANSLATE_NOOP("CommandLogModel", "not offered"), true};
  if (!IsSuccess(entry.command.operation, reply.result)) {
    return {QT_TRANSLATE_NOOP("CommandLogModel", "refused"), true};
  }
  if (reply.pending) return {QT_TRANSLATE_NOOP("CommandLogModel", "not yet so"), false};
  return {QT_TRANSLATE_NOOP("CommandLogModel", "ok"), false};
}

QColor FailureColor() {
  constexpr int kMiddle = 128;
  const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < kMiddle;
  return isDark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB0, 0x20, 0x20);
}

}  // namespace

void CommandLogModel::Append(std::vector<Entry> entries) {
  if (entries.empty()) return;
  if (entries.size() > kMaximumEntries) {
    entries.erase(entries.begin(), entries.end() - kMaximumEntries);
  }
  const std::size_t total = entries_.size() + entries.size();
  if (total > kMaximumEntries) {
    const auto surplus = static_cast<int>(total - kMaximumEntries);
    beginRemoveRows({}, 0, surplus - 1);
    entries_.erase(entries_.begin(), entries_.begin() + surplus);
    endRemoveRows();
  }
  const int first = rowCount();
  beginInsertRows({}, first, first + static_cast<int>(entries.size()) - 1);
  std::ranges::move(entries, std::back_inserter(entries_));
  endInsertRows();
}

void CommandLogModel::Clear() {
  beginResetModel();
  entries_.clear();
  endResetModel();
}

bool CommandLogModel::IsChange(int row) const {
  return !IsRead(entries_[static_cast<std::size_t>(row)].command.operation);
}

bool CommandLogModel::IsError(int row) const {
  return OutcomeOf(entries_[static_cast<std::size_t>(row)]).failed;
}

int CommandLogModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int CommandLogModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant CommandLogModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Entry& entry = entries_[static_cast<std::size_t>(index.row())];
  if (role == Qt::ForegroundRole && index.column() == Result && OutcomeOf(entry).failed) {
    return QBrush(FailureColor());
  }
  if (role == kDatedRole && index.column() == Time)
    return entry.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case Time:
      return entry.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case Projector:
      return entry.projector;
    case Setting:
      return entry.setting;
    case Command:
      return CommandText(entry.command);
    case Value:
      return ValueText(entry);
    case Result:
      return tr(OutcomeOf(entry).text);
    case Duration:
      return QString::number(static_cast<double>(entry.elapsed.count()) / 1000.0, 'f', 1);
    default:
      return {};
  }
}

QVariant CommandLogModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return tr(kTitles[static_cast<std::size_t>(section)]);
}

CommandLogFilter::CommandLogFilter(CommandLogModel& log, QObject* parent)
    : QSortFilterProxyModel(parent) {
  setSourceModel(&log);
}

void CommandLogFilter::ShowChangesOnly(bool only) {
  changesOnly_ = only;
  invalidateFilter();
}

void CommandLogFilter::ShowErrorsOnly(bool only) {
  errorsOnly_ = only;
  invalidateFilter();
}

void CommandLogFilter::ShowProjector(const QString& name) {
  projector_ = name;
  invalidateFilter();
}

void CommandLogFilter::ShowOnly(const QString& text) {
  words_ = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool CommandLogFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  const auto* log = static_cast<const CommandLogModel*>(sourceModel());
  if (changesOnly_ && !log->IsChange(row)) return false;
  if (errorsOnly_ && !log->IsError(row)) return false;
  const auto textOf = [&](int column) { return log->index(row, column).data().toString(); };
  if (!projector_.isEmpty() && textOf(CommandLogModel::Projector) != projector_) return false;
  if (words_.isEmpty()) return true;
  QString text;
  for (const auto column :
       {CommandLogModel::Projector, CommandLogModel::Setting, CommandLogModel::Command,
        CommandLogModel::Value, CommandLogModel::Result}) {
    text += textOf(column) + QLatin1Char('\n');
  }
  return std::ranges::all_of(
      words_, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

QString LogText(const QAbstractItemModel& log, const std::vector<int>& rows) {
  QString text;
  for (const int row : rows) {
    for (int column = 0; column < log.columnCount(); ++column) {
      if (column > 0) text += QLatin1Char('\t');
      const QModelIndex cell = log.index(row, column);
      const QVariant dated = cell.data(CommandLogModel::kDatedRole);
      text += (dated.isValid() ? dated : cell.data()).toString();
    }
    text += QLatin1Char('\n');
  }
  return text;
}
