#include "app/desktop/projectors/ProjectorTableModel.h"

#include <algorithm>
#include <utility>

#include <QFont>

#include "app/desktop/projectors/StateTexts.h"
#include "settings/PageTables.h"

namespace {

bool HasRows(PageId page, int modelCode) {
  const PageTable& table = TableOf(page);
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const bool isReset = std::holds_alternative<ResetRow>(table.rows[row]);
    if (!isReset && Has(table, row, modelCode)) return true;
  }
  return false;
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
  arrangement_.SetRows(rows_);
  positions_.clear();
  for (const ProjectorRow& row : rows_)
    positions_.emplace(row.id, static_cast<int>(positions_.size()));
  shown_ = arrangement_.Of(rows_);
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
  isOutOfDate_ = isOutOfDate_ || arrangement_.DependsOnState();
  if (const QModelIndex first = IndexOf(position); first.isValid()) {
    Q_EMIT dataChanged(first, first.siblingAtColumn(ProjectorColumns::ColumnCount - 1));
  }
}

void ProjectorTableModel::Rearrange() {
  if (isOutOfDate_) Arrange();
}

void ProjectorTableModel::Search(const QString& text) {
  arrangement_.Search(text);
  Arrange();
}

void ProjectorTableModel::SetGroup(const ProjectorGroup& group) {
  arrangement_.SetGroup(group);
  Arrange();
}

void ProjectorTableModel::sort(int column, Qt::SortOrder order) {
  arrangement_.Sort(column, order);
  Arrange();
}

// Views keep their selection and their place.
void ProjectorTableModel::Arrange() {
  std::vector<int> next = arrangement_.Of(rows_);
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

int ProjectorTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int ProjectorTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ProjectorColumns::ColumnCount;
}

QVariant ProjectorTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ProjectorRow& row = At(index);
  switch (role) {
    case Qt::DisplayRole:
      return ProjectorColumns::Text(row, index.column());
    case Qt::ToolTipRole:
      if (index.column() == ProjectorColumns::Name)
        return QString(ProjectorColumns::Text(row, index.column()) + QLatin1Char('\n') +
                       TabNames(row.profile.model->info).join(QStringLiteral(" · ")));
      return ProjectorColumns::Text(row, index.column());
    case Qt::DecorationRole:
      return index.column() == ProjectorColumns::State ? QVariant(StateTexts::Icon(HealthOf(row)))
                                                       : QVariant();
    case Qt::FontRole:
      if (!row.hasAlert || index.column() != ProjectorColumns::Name) return {};
      {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
    case kShareRole:
      if (index.column() != ProjectorColumns::Lamp || row.profile.ratedLampHours == 0 ||
          LampHoursOf(row.state) < 0)
        return {};
      return static_cast<double>(LampHoursOf(row.state)) / row.profile.ratedLampHours;
    default:
      return {};
  }
}

QVariant ProjectorTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return ProjectorColumns::Title(section);
}
