#include "app/desktop/work/DifferenceTree.h"

#include <algorithm>

#include <QHeaderView>
#include <QSignalBlocker>

#include "toolkit/IsolatedText.h"

namespace {

enum Column { kSetting, kNow, kWanted, kColumnCount };

constexpr int kPlaceRole = Qt::UserRole;  // of the projector, or among its differences
constexpr int kBeforehand = -1;           // the position of the line for all of `beforehand`
constexpr int kOpenedLines = 2000;        // branches are opened until there are so many

QString Wide(const std::string& text) { return QString::fromStdString(text); }

void Check(QTreeWidgetItem& item, Qt::CheckState state) { item.setCheckState(kSetting, state); }

bool IsCheckable(const QTreeWidgetItem& item) {
  return item.data(kSetting, Qt::CheckStateRole).isValid();
}

/// Whether its box is checked, or partly so.
bool IsChosen(const QTreeWidgetItem& item) {
  return IsCheckable(item) && item.checkState(kSetting) != Qt::Unchecked;
}

}  // namespace

DifferenceTree::DifferenceTree(const QString& column, bool isCheckable, const SettingTexts& texts,
                               QWidget* parent)
    : QTreeWidget(parent), isCheckable_(isCheckable), texts_(texts) {
  setHeaderLabels({tr("Setting"), tr("Now"), column});
  setUniformRowHeights(true);
  setItemDelegate(new IsolatedTexts(this));
  setAccessibleName(tr("Differences"));
  connect(this, &QTreeWidget::itemChanged, this, &DifferenceTree::TakeCheck);
  connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { Fill(*item); });
}

void DifferenceTree::Show(const std::vector<ComparedProjector>& projectors,
                          const std::vector<WorkLine>& lines) {
  projectors_ = &projectors;
  lines_ = &lines;
  branches_.resize(projectors.size());
  int at = 0;
  int opened = 0;
  for (std::size_t i = 0; i < projectors.size(); ++i) {
    QTreeWidgetItem*& branch = branches_[i];
    const bool isKept = branch != nullptr && IsCheckable(*branch);
    if (!isKept) {
      delete branch;
      branch = MakeBranch(i);
    }
    if (branch == nullptr) continue;
    if (!isKept) insertTopLevelItem(at, branch);
    ++at;
    if (isKept || opened >= kOpenedLines) continue;
    Fill(*branch);
    branch->setExpanded(true);
    opened += branch->childCount();
  }
  // This measures the lines in sight alone.
  for (int column = 0; column < kColumnCount; ++column) resizeColumnToContents(column);
  Q_EMIT CheckedChanged();
}

QTreeWidgetItem* DifferenceTree::MakeBranch(std::size_t index) const {
  const WorkLine& line = (*lines_)[index];
  const bool hasChoice = isCheckable_ && !PlacesOf(index).empty();
  const bool isAsItShould = line.differences && line.differences->empty();
  if (line.outcome <= WorkOutcome::Working || (isAsItShould && !hasChoice)) return nullptr;
  auto* branch = new QTreeWidgetItem({(*projectors_)[index].name});
  branch->setData(kSetting, kPlaceRole, static_cast<int>(index));
  branch->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  QFont bold = font();
  bold.setBold(true);
  branch->setFont(kSetting, bold);
  if (hasChoice) Check(*branch, Qt::Checked);
  return branch;
}

std::vector<int> DifferenceTree::PlacesOf(std::size_t index) const {
  std::vector<int> places;
  const auto& found = (*lines_)[index].differences;
  if (!found) return places;
  if (isCheckable_ && !(*projectors_)[index].wanted->beforehand.empty())
    places.push_back(kBeforehand);
  for (std::size_t i = 0; i < found->size(); ++i) {
    if ((*found)[i].kind == SettingDifference::Kind::Differs) places.push_back(static_cast<int>(i));
  }
  return places;
}

void DifferenceTree::Fill(QTreeWidgetItem& branch) {
  if (branch.parent() != nullptr || branch.childCount() > 0) return;
  const auto index = static_cast<std::size_t>(branch.data(kSetting, kPlaceRole).toInt());
  const WorkLine& line = (*lines_)[index];
  QList<QTreeWidgetItem*> leaves;
  for (const int place : PlacesOf(index)) {
    leaves += MakeLeaf(index, place);
    if (isCheckable_) Check(*leaves.back(), branch.checkState(kSetting));
  }
  QStringList remarks;
  if (line.differences) {
    const auto count = [&line](SettingDifference::Kind kind) {
      return static_cast<int>(
          std::ranges::count(*line.differences, kind, &SettingDifference::kind));
    };
    if (const int foreign = count(SettingDifference::Kind::DoesNotApply); foreign > 0)
      remarks += tr("%n settings do not apply to this model", nullptr, foreign);
    if (const int unread = count(SettingDifference::Kind::NotRead); unread > 0)
      remarks += tr("%n settings cannot be read now", nullptr, unread);
  } else {
    remarks += WorkRun::TextOf(line);
  }
  branch.addChildren(leaves);
  for (const QString& remark : remarks) AddRemark(branch, remark);
}

QTreeWidgetItem* DifferenceTree::MakeLeaf(std::size_t index, int place) {
  const ComparedProjector& projector = (*projectors_)[index];
  QStringList texts;
  if (place == kBeforehand) {
    const auto count = static_cast<int>(projector.wanted->beforehand.size());
    texts = {tr("First the other sources and modes"), QString(), tr("%n settings", nullptr, count)};
  } else {
    const auto& model = projector.target.model;
    const SettingDifference& difference =
        (*(*lines_)[index].differences)[static_cast<std::size_t>(place)];
    const ModelSetting& setting = *models_.Of(model).Find(difference.saved.key);
    texts = {NameOf(model, difference.saved),
             difference.here ? Wide(texts_.Value(setting, *difference.here)) : QString(),
             Wide(texts_.Value(setting, difference.saved.value))};
  }
  auto* leaf = new QTreeWidgetItem(texts);
  leaf->setData(kSetting, kPlaceRole, place);
  return leaf;
}

void DifferenceTree::AddRemark(QTreeWidgetItem& branch, const QString& text) {
  auto* leaf = new QTreeWidgetItem(&branch, {text});
  leaf->setFirstColumnSpanned(true);
  QFont italic = font();
  italic.setItalic(true);
  leaf->setFont(kSetting, italic);
}

QString DifferenceTree::NameOf(const std::shared_ptr<const ModelData>& model,
                               const SavedSetting& saved) {
  const std::string id = saved.source ? saved.key + ' ' + std::to_string(*saved.source) : saved.key;
  const auto [name, isNew] = names_.try_emplace({model.get(), id});
  if (isNew) {
    const ModelSettings& settings = models_.Of(model);
    const ModelSetting& setting = *settings.Find(saved.key);
    name->second = tr("%1: %2").arg(Wide(texts_.Tab(setting)),
                                    Wide(texts_.Name(settings, setting, saved.source)));
  }
  return name->second;
}

// A projector's box checks all its settings, and shows whether they are checked.
void DifferenceTree::TakeCheck(QTreeWidgetItem* item) {
  if (!IsCheckable(*item)) return;
  {
    const QSignalBlocker quiet(this);
    QTreeWidgetItem* branch = item->parent();
    for (int i = 0; branch == nullptr && i < item->childCount(); ++i) {
      if (IsCheckable(*item->child(i))) Check(*item->child(i), item->checkState(kSetting));
    }
    if (branch != nullptr) {
      int checked = 0;
      int checkable = 0;
      for (int i = 0; i < branch->childCount(); ++i) {
        if (!IsCheckable(*branch->child(i))) continue;
        ++checkable;
        checked += branch->child(i)->checkState(kSetting) == Qt::Checked;
      }
      Check(*branch, checked == 0           ? Qt::Unchecked
                     : checked == checkable ? Qt::Checked
                                            : Qt::PartiallyChecked);
    }
  }
  Q_EMIT CheckedChanged();
}

SnapshotsById DifferenceTree::Checked() const {
  SnapshotsById all;
  for (std::size_t i = 0; i < branches_.size(); ++i) {
    const QTreeWidgetItem* branch = branches_[i];
    if (branch == nullptr || !IsChosen(*branch)) continue;
    std::vector<int> places;
    for (int j = 0; j < branch->childCount(); ++j) {
      const QTreeWidgetItem& leaf = *branch->child(j);
      if (IsChosen(leaf)) places.push_back(leaf.data(kSetting, kPlaceRole).toInt());
    }
    if (branch->childCount() == 0) places = PlacesOf(i);
    const Snapshot& wanted = *(*projectors_)[i].wanted;
    Snapshot part{.projector = wanted.projector,
                  .model = wanted.model,
                  .dialogType = wanted.dialogType,
                  .modelCode = wanted.modelCode,
                  .time = wanted.time,
                  .settings = {},
                  .isUndo = wanted.isUndo};
    for (const int place : places) {
      if (place == kBeforehand) {
        part.beforehand = wanted.beforehand;
      } else {
        part.settings.push_back((*(*lines_)[i].differences)[static_cast<std::size_t>(place)].saved);
      }
    }
    all[(*projectors_)[i].target.id] = std::make_shared<const Snapshot>(std::move(part));
  }
  return all;
}

bool DifferenceTree::HasChecked() const {
  return std::ranges::any_of(branches_, [](const QTreeWidgetItem* branch) {
    return branch != nullptr && IsChosen(*branch);
  });
}
