#include "app/CommandLog.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <QBrush>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include "device/LoggingChannel.h"

namespace {

constexpr auto kGatherTime = std::chrono::milliseconds(40);

// Widest usual text of each column.
constexpr std::array<const char*, CommandLogModel::ColumnCount> kWidthSamples{
    "00:00:00.000", "Projector 5-30 b", "GetMonitorOutComputer1", "0xFFFF", "no answer", "2000.0"};
constexpr std::array<const char*, CommandLogModel::ColumnCount> kTitles{
    "Time", "Projector", "Command", "Value", "Result", "ms"};

struct EntryTexts {
  QString command;
  QString value;  ///< What was sent, or what came back.
  QString result;
};

EntryTexts Describe(const CommandLogModel::Entry& entry) {
  const std::string command = FormatCommand(entry.command);
  const std::string all = FormatCommand(entry.command, &entry.reply);
  const QString outcome = QString::fromStdString(all.substr(command.size())).trimmed();
  EntryTexts texts{QString::fromStdString(command), {}, outcome};
  if (outcome.startsWith(QStringLiteral("= "))) {
    texts.value = outcome.mid(2);
    texts.result = QStringLiteral("ok");
    return texts;
  }
  if (outcome.isEmpty()) texts.result = QStringLiteral("ok");
  // "SetBrightness(140)" is the command SetBrightness with the value 140.
  const auto open = texts.command.indexOf(QLatin1Char('('));
  if (open >= 0 && !IsRead(entry.command.operation)) {
    texts.value = texts.command.mid(open + 1).chopped(1);
    texts.command = texts.command.left(open).trimmed();
  }
  return texts;
}

bool Failed(const CommandLogModel::Entry& entry) {
  return !IsSuccess(entry.command.operation, entry.reply.result);
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

int CommandLogModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int CommandLogModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant CommandLogModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Entry& entry = entries_[static_cast<std::size_t>(index.row())];
  if (role == Qt::ForegroundRole && index.column() == Result && Failed(entry)) {
    return QBrush(QColor(0xB0, 0x20, 0x20));
  }
  if (role == Qt::TextAlignmentRole && index.column() == Duration) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case Time:
      return entry.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case Projector:
      return entry.projector;
    case Command:
      return Describe(entry).command;
    case Value:
      return Describe(entry).value;
    case Result:
      return Describe(entry).result;
    case Duration:
      return QString::number(static_cast<double>(entry.elapsed.count()) / 1000.0, 'f', 1);
    default:
      return {};
  }
}

QVariant CommandLogModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return QString::fromLatin1(kTitles[static_cast<std::size_t>(section)]);
}

CommandLog::CommandLog(QWidget* parent)
    : QWidget(parent), model_(new CommandLogModel(this)), view_(new QTableView) {
  view_->setModel(model_);
  view_->setAccessibleName(QStringLiteral("Command log"));
  view_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view_->setSelectionBehavior(QTableView::SelectRows);
  view_->setTabKeyNavigation(false);
  view_->setShowGrid(false);
  view_->setWordWrap(false);
  view_->verticalHeader()->hide();
  const QFontMetrics metrics(view_->font());
  view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view_->verticalHeader()->setDefaultSectionSize(metrics.height() + 2);
  QHeaderView* columns = view_->horizontalHeader();
  columns->setHighlightSections(false);
  columns->setFont(font());
  columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int column = 0; column < CommandLogModel::ColumnCount; ++column) {
    const QString sample = QString::fromLatin1(kWidthSamples[static_cast<std::size_t>(column)]);
    view_->setColumnWidth(column, metrics.horizontalAdvance(sample) + 12);
  }
  columns->setSectionResizeMode(CommandLogModel::Command, QHeaderView::Stretch);

  auto* clear = new QPushButton(QStringLiteral("C&lear"));
  auto* caption = new QLabel(QStringLiteral("Commands, newest last"));
  auto* head = new QHBoxLayout;
  head->addWidget(caption);
  head->addStretch();
  head->addWidget(clear);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(view_);

  connect(clear, &QPushButton::clicked, this, &CommandLog::Clear);
  gather_.setSingleShot(true);
  gather_.setInterval(kGatherTime);
  connect(&gather_, &QTimer::timeout, this, &CommandLog::ShowPending);
}

void CommandLog::Add(const QString& projector, const PjtCommand& command, const PjtReply& reply,
                     std::chrono::microseconds elapsed) {
  pending_.push_back({QTime::currentTime(), projector, command, reply, elapsed});
  if (!gather_.isActive()) gather_.start();
}

void CommandLog::Clear() {
  pending_.clear();
  model_->Clear();
}

void CommandLog::ShowPending() {
  const QScrollBar* bar = view_->verticalScrollBar();
  const bool follows = bar->value() == bar->maximum();
  model_->Append(std::exchange(pending_, {}));
  if (follows) view_->scrollToBottom();
  Q_EMIT Updated();
}
