#include "app/desktop/work/DifferenceTree.h"

#include <algorithm>
#include <set>

#include <QHeaderView>
#include <QSignalBlocker>

#include "toolkit/IsolatedText.h"

namespace {

enum Column { kSetting, kNow, kWanted, kColumnCount };

constexpr int kPlaceRole = Qt::UserRole;  // of the projector, or among its differences
constexpr int kBeforehand = -1;           // the position of the line for all of `beforehand`

QString Wide(const std::string& text) { return QString::fromStdString(text); }

void Check(QTreeWidgetItem& item, Qt::CheckState state) { item.setCheckState(kSetting, state); }

bool IsCheckable(const QTreeWidgetItem& item) {
  return item.data(kSetting, Qt::CheckStateRole).isValid();
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
}

void DifferenceTree::Show(const std::vector<ComparedProjector>& projectors,
                          const std::vector<WorkLine>& lines) {
  std::set<std::pair<QString, QString>> unchecked;
  for (int i = 0; i < topLevelItemCount(); ++i) {
    const QTreeWidgetItem& branch = *topLevelItem(i);
    for (int j = 0; j < branch.childCount(); ++j) {
      const QTreeWidgetItem& leaf = *branch.child(j);
      if (IsCheckable(leaf) && leaf.checkState(kSetting) == Qt::Unchecked)
        unchecked.emplace(branch.text(kSetting), leaf.text(kSetting));
    }
  }
  clear();
  for (std::size_t i = 0; i < projectors.size(); ++i) AddProjector(i, projectors[i], lines[i]);
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem& branch = *topLevelItem(i);
    for (int j = 0; j < branch.childCount(); ++j) {
      QTreeWidgetItem& leaf = *branch.child(j);
      if (IsCheckable(leaf) && unchecked.contains({branch.text(kSetting), leaf.text(kSetting)}))
        Check(leaf, Qt::Unchecked);
    }
  }
  // This measures the lines in sight alone.
  expandAll();
  for (int column = 0; column < kColumnCount; ++column) resizeColumnToContents(column);
  Q_EMIT CheckedChanged();
}

void DifferenceTree::AddProjector(std::size_t index, const ComparedProjector& projector,
                                  const WorkLine& line) {
  if (line.outcome <= WorkOutcome::Working) return;
  const auto found = line.differences ? *line.differences : std::vector<SettingDifference>();
  const bool hasBeforehand =
      isCheckable_ && line.differences && !projector.wanted->beforehand.empty();
  if (!line.HasFailed() && found.empty() && !hasBeforehand) return;
  auto* branch = new QTreeWidgetItem(this, {projector.name});
  branch->setData(kSetting, kPlaceRole, static_cast<int>(index));
  QFont bold = font();
  bold.setBold(true);
  branch->setFont(kSetting, bold);
  if (line.HasFailed()) return AddRemark(*branch, WorkRun::TextOf(line));
  if (hasBeforehand) {
    auto* leaf = new QTreeWidgetItem(
        branch,
        {tr("First the other sources and modes"), QString(),
         tr("%n settings", nullptr, static_cast<int>(projector.wanted->beforehand.size()))});
    leaf->setData(kSetting, kPlaceRole, kBeforehand);
    Check(*leaf, Qt::Checked);
  }
  int foreign = 0;
  int unread = 0;
  for (std::size_t i = 0; i < found.size(); ++i) {
    foreign += found[i].kind == SettingDifference::Kind::DoesNotApply;
    unread += found[i].kind == SettingDifference::Kind::NotRead;
    if (found[i].kind == SettingDifference::Kind::Differs)
      AddDifference(*branch, projector, found[i], static_cast<int>(i));
  }
  if (isCheckable_ && branch->childCount() > 0) Check(*branch, Qt::Checked);
  if (foreign > 0)
    AddRemark(*branch, tr("%n settings do not apply to this model", nullptr, foreign));
  if (unread > 0) AddRemark(*branch, tr("%n settings cannot be read now", nullptr, unread));
}

void DifferenceTree::AddDifference(QTreeWidgetItem& branch, const ComparedProjector& projector,
                                   const SettingDifference& difference, int place) {
  const auto& model = projector.target.model;
  const ModelSetting& setting = *models_.Of(model).Find(difference.saved.key);
  auto* leaf = new QTreeWidgetItem(
      &branch, {NameOf(model, difference.saved),
                difference.here ? Wide(texts_.Value(setting, *difference.here)) : QString(),
                Wide(texts_.Value(setting, difference.saved.value))});
  leaf->setData(kSetting, kPlaceRole, place);
  if (isCheckable_) Check(*leaf, Qt::Checked);
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

SnapshotsById DifferenceTree::Checked(const std::vector<ComparedProjector>& projectors,
                                      const std::vector<WorkLine>& lines) const {
  SnapshotsById all;
  for (int i = 0; i < topLevelItemCount(); ++i) {
    const QTreeWidgetItem& branch = *topLevelItem(i);
    const auto index = static_cast<std::size_t>(branch.data(kSetting, kPlaceRole).toInt());
    Snapshot part = *projectors[index].wanted;
    const auto beforehand = std::exchange(part.beforehand, {});
    part.settings.clear();
    for (int j = 0; j < branch.childCount(); ++j) {
      const QTreeWidgetItem& leaf = *branch.child(j);
      if (!IsCheckable(leaf) || leaf.checkState(kSetting) != Qt::Checked) continue;
      const int place = leaf.data(kSetting, kPlaceRole).toInt();
      if (place == kBeforehand) {
        part.beforehand = beforehand;
      } else {
        part.settings.push_back((*lines[index].differences)[static_cast<std::size_t>(place)].saved);
      }
    }
    if (!part.settings.empty() || !part.beforehand.empty())
      all[projectors[index].target.id] = std::make_shared<const Snapshot>(std::move(part));
  }
  return all;
}

bool DifferenceTree::HasChecked() const {
  for (int i = 0; i < topLevelItemCount(); ++i) {
    const QTreeWidgetItem& branch = *topLevelItem(i);
    if (IsCheckable(branch) && branch.checkState(kSetting) != Qt::Unchecked) return true;
  }
  return false;
}
