#include "app/desktop/groups/GroupList.h"

#include <algorithm>
#include <array>
#include <map>

#include <QCollator>
#include <QIcon>
#include <QPixmap>

#include "app/desktop/projectors/FocusedRows.h"
#include "app/desktop/projectors/StateTexts.h"

namespace {

using Kind = ProjectorGroup::Kind;

constexpr int kLeastWidth = 160;
constexpr int kMostWidth = 240;
constexpr int kRowGap = 8;
constexpr int kIconSize = 16;
constexpr std::array kKinds{Kind::All, Kind::Problems, Kind::Off, Kind::Unreachable};

}  // namespace

GroupList::GroupList(QWidget* parent) : QListWidget(parent) {
  setAccessibleName(tr("Groups"));
  setItemDelegate(new FocusedRows(this));
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) Q_EMIT Chosen(groups_[static_cast<std::size_t>(row)]);
  });
}

QSize GroupList::sizeHint() const {
  constexpr int kAround = kIconSize + 24;  // the icon, margins, and a digit more
  int text = 0;
  for (int row = 0; row < count(); ++row)
    text = std::max(text, fontMetrics().horizontalAdvance(item(row)->text()));
  return {std::clamp(text + kAround, kLeastWidth, kMostWidth), QListWidget::sizeHint().height()};
}

void GroupList::Show(const std::vector<ProjectorRow>& rows) {
  std::array<int, kKinds.size()> counts{};
  std::map<std::string, int> tags;
  for (const ProjectorRow& row : rows) {
    for (std::size_t i = 0; i < kKinds.size(); ++i) counts[i] += ProjectorGroup{kKinds[i]}.Has(row);
    for (const std::string& tag : row.profile.tags) ++tags[tag];
  }
  std::vector<ProjectorGroup> groups;
  groups.reserve(kKinds.size() + tags.size());
  for (const Kind kind : kKinds) groups.push_back({kind});
  for (const auto& [tag, count] : tags) groups.push_back({Kind::Tag, QString::fromStdString(tag)});
  QCollator collator;
  collator.setNumericMode(true);
  std::ranges::stable_sort(groups.begin() + kKinds.size(), groups.end(),
                           [&collator](const ProjectorGroup& a, const ProjectorGroup& b) {
                             return collator.compare(a.tag, b.tag) < 0;
                           });
  if (groups != groups_) {
    const int row = currentRow();
    const ProjectorGroup chosen =
        row < 0 ? ProjectorGroup() : groups_[static_cast<std::size_t>(row)];
    const bool isLeft = std::ranges::find(groups, chosen) == groups.end();
    {
      const QSignalBlocker quiet(this);
      groups_ = groups;
      clear();
      QPixmap blank(kIconSize, kIconSize);
      blank.fill(Qt::transparent);
      const QIcon noIcon(blank);  // so that all names begin in one column
      for (const ProjectorGroup& group : groups_) {
        auto* entry = new QListWidgetItem(this);
        entry->setSizeHint({0, fontMetrics().height() + kRowGap});
        entry->setIcon(noIcon);
        if (group.kind == Kind::Problems) entry->setIcon(StateTexts::Icon(Health::Error));
        if (group.kind == Kind::Unreachable) entry->setIcon(StateTexts::Icon(Health::Unreachable));
      }
      Choose(chosen);
    }
    if (isLeft) Q_EMIT Chosen({});
  }
  const std::array<QString, kKinds.size()> names{tr("All"), tr("Problems"), tr("Off"),
                                                 tr("Not reachable")};
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    const bool isTag = i >= kKinds.size();
    const QString name = isTag ? groups_[i].tag : names[i];
    const int count = isTag ? tags[groups_[i].tag.toStdString()] : counts[i];
    item(static_cast<int>(i))->setText(tr("%1 (%2)").arg(name).arg(count));
  }
}

void GroupList::Choose(const ProjectorGroup& group) {
  const auto found = std::ranges::find(groups_, group);
  setCurrentRow(found == groups_.end() ? 0 : static_cast<int>(found - groups_.begin()));
}
