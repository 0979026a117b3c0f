#include "app/desktop/projectors/ProjectorTableModel.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QFont>

#include "app/desktop/projectors/RowOrder.h"
#include "app/desktop/projectors/StateTexts.h"
#include "settings/PageTables.h"

namespace {

constexpr std::array<const char*, ProjectorTableModel::ColumnCount> kTitles{
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Name"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "State"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Power"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Source"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Lamp"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Problem"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Model"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Place"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Settings"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Last answer"),
    QT_TRANSLATE_NOOP("ProjectorTableModel", "Address")};

bool HasRows(PageId page, int modelCode) {
  const PageTable& table = TableOf(page);
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const bool isReset = std::holds_alternative<ResetRow>(table.rows[row]);
    if (!isReset && Has(table, row, modelCode)) return true;
  }
  return false;
}

bool ShowsState(int column) {
  using enum ProjectorTableModel::Column;
  return column != Name && column != Model && column != Place && column != Address;
}

/// A number to sort by; nothing for a column of texts.
std::optional<double> NumberOf(const ProjectorRow& row, int column) {
  switch (column) {
    case ProjectorTableModel::State:
      return -static_cast<double>(HealthOf(row));  // the most urgent first
    case ProjectorTableModel::Power:
      return row.state.power ? static_cast<double>(*row.state.power) : -1;
    case ProjectorTableModel::Lamp:
      return LampHoursOf(row.state);
    case ProjectorTableModel::Settings:
      return row.state.drift.value_or(-1);
    case ProjectorTableModel::Answered:
      return row.state.answered
                 ? static_cast<double>(-row.state.answered->time_since_epoch().count())
                 : 0.0;
    default:
      return std::nullopt;
  }
}

}  // namespace

bool HasRowsOnEveryTab(const CModelInfo2& model) {
  const auto tabs = TabsOf(model.DialogType, model.ModelCode);
  return !tabs.empty() && std::ranges::all_of(tabs, [&model](const PageTab& tab) {
    return HasRows(tab.page, model.ModelCode);
  });
}

ProjectorTableModel::ProjectorTableModel(QObject* parent) : QAbstractTableModel(parent) {}

void ProjectorTableModel::SetRows(std::vector<ProjectorRow> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  search_.SetRows(rows_);
  positions_.clear();
  for (const ProjectorRow& row : rows_)
    positions_.emplace(row.id, static_cast<int>(positions_.size()));
  shown_ = Arranged();
  rowsOf_.assign(rows_.size(), -1);
  for (std::size_t i = 0; i < shown_.size(); ++i)
    rowsOf_[static_cast<std::size_t>(shown_[i])] = static_cast<int>(i);
  isOutOfDate_ = false;
  endResetModel();
}

int ProjectorTableModel::Find(const std::string& id) const {
  const auto found = positions_.find(id);
  return found == positions_.end() ? -1 : found->second;
}

QModelIndex ProjectorTableModel::IndexOf(int position) const {
  if (position < 0 || position >= static_cast<int>(rowsOf_.size())) return {};
  const int row = rowsOf_[static_cast<std::size_t>(position)];
  return row < 0 ? QModelIndex() : index(row, 0);
}

void ProjectorTableModel::ShowChanged(int position) {
  isOutOfDate_ =
      isOutOfDate_ || ShowsState(sortColumn_) ||
      (group_.kind != ProjectorGroup::Kind::All && group_.kind != ProjectorGroup::Kind::Tag);
  if (const QModelIndex first = IndexOf(position); first.isValid()) {
    Q_EMIT dataChanged(first, first.siblingAtColumn(ColumnCount - 1));
  }
}

void ProjectorTableModel::Rearrange() {
  if (isOutOfDate_) Arrange();
}

void ProjectorTableModel::Search(const QString& text) {
  search_.SetText(text);
  Arrange();
}

void ProjectorTableModel::SetGroup(const ProjectorGroup& group) {
  group_ = group;
  Arrange();
}

void ProjectorTableModel::sort(int column, Qt::SortOrder order) {
  sortColumn_ = column;
  sortOrder_ = order;
  Arrange();
}

// Views keep their selection and their place.
void ProjectorTableModel::Arrange() {
  std::vector<int> next = Arranged();
  isOutOfDate_ = false;
  if (next == shown_) return;
  Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const QModelIndexList before = persistentIndexList();
  std::vector<int> positions;
  positions.reserve(static_cast<std::size_t>(before.size()));
  for (const QModelIndex& kept : before) positions.push_back(PositionAt(kept.row()));
  shown_ = std::move(next);
  std::ranges::fill(rowsOf_, -1);
  for (std::size_t i = 0; i < shown_.size(); ++i)
    rowsOf_[static_cast<std::size_t>(shown_[i])] = static_cast<int>(i);
  QModelIndexList after;
  after.reserve(before.size());
  for (qsizetype i = 0; i < before.size(); ++i) {
    const QModelIndex first = IndexOf(positions[static_cast<std::size_t>(i)]);
    after.append(first.isValid() ? first.siblingAtColumn(before[i].column()) : QModelIndex());
  }
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

std::vector<int> ProjectorTableModel::Arranged() {
  std::vector<int> positions = search_.Matching(rows_, group_);
  if (sortColumn_ >= 0) {
    const auto sort = [this, &positions](const auto& keyOf) {
      SortBy(positions, sortOrder_,
             [&](int position) { return keyOf(rows_[static_cast<std::size_t>(position)]); });
    };
    if (!rows_.empty() && NumberOf(rows_.front(), sortColumn_)) {
      sort([this](const ProjectorRow& row) { return *NumberOf(row, sortColumn_); });
    } else {
      sort([this](const ProjectorRow& row) { return TextOf(row, sortColumn_); });
    }
  }
  search_.PutExactFirst(rows_, positions);
  return positions;
}

int ProjectorTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int ProjectorTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QString ProjectorTableModel::TextOf(const ProjectorRow& row, int column) const {
  switch (column) {
    case Name:
      return QString::fromStdString(row.profile.name);
    case State:
      return row.isOpen ? tr("%1 · open").arg(StateTexts::State(row)) : StateTexts::State(row);
    case Power:
      return StateTexts::Power(row.state);
    case Source:
      return StateTexts::Source(row.state);
    case Lamp:
      return StateTexts::LampHours(row.state);
    case Problem:
      return StateTexts::Problems(row.state);
    case Model:
      return QString::fromStdString(row.profile.model->info.ModelName);
    case Place: {
      QStringList tags;
      for (const std::string& tag : row.profile.tags) tags += QString::fromStdString(tag);
      return tags.join(QStringLiteral(", "));
    }
    case Settings:
      return StateTexts::Drift(row.state);
    case Answered:
      return StateTexts::Answered(row.state, std::chrono::system_clock::now());
    case Address:
      return ConnectionText(row.profile.connection);
    default:
      return {};
  }
}

QVariant ProjectorTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ProjectorRow& row = At(index);
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(row, index.column());
    case Qt::ToolTipRole:
      if (index.column() == Name)
        return TabNames(row.profile.model->info).join(QStringLiteral(" · "));
      return TextOf(row, index.column());
    case Qt::DecorationRole:
      return index.column() == State ? QVariant(StateTexts::Icon(HealthOf(row))) : QVariant();
    case Qt::FontRole:
      if (!row.hasAlert || index.column() != Name) return {};
      {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
    case kShareRole:
      if (index.column() != Lamp || row.profile.ratedLampHours == 0 || LampHoursOf(row.state) < 0)
        return {};
      return static_cast<double>(LampHoursOf(row.state)) / row.profile.ratedLampHours;
    default:
      return {};
  }
}

QVariant ProjectorTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return tr(kTitles[static_cast<std::size_t>(section)]);
}
