#include "app/desktop/alerts/AlertList.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <unordered_set>
#include <utility>

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/desktop/projectors/StateTexts.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr int kGap = 30;  // beside the time
constexpr int kButtonMargin = 6;
constexpr int kIdentityRole = Qt::UserRole + 1;

QString IdentityOf(const Alert& alert) {
  return QStringLiteral("%1 %2 %3")
      .arg(static_cast<int>(alert.kind))
      .arg(static_cast<int>(alert.part))
      .arg(QString::fromStdString(alert.id));
}

std::optional<Alert> ParseIdentity(const QString& identity) {
  constexpr int kNumbers = 2;
  bool isKind = false, isPart = false;
  const int kind = identity.section(' ', 0, 0).toInt(&isKind);
  const int part = identity.section(' ', 1, 1).toInt(&isPart);
  if (!isKind || !isPart) return std::nullopt;
  return Alert{.id = identity.section(' ', kNumbers).toStdString(),
               .kind = static_cast<Alert::Kind>(kind),
               .part = static_cast<ProjectorPart>(part)};
}

/// Whether the state tells if there is such an alert.
bool IsKnown(Alert::Kind kind, const LiveState& state) {
  switch (kind) {
    case Alert::Kind::Silent:
      return state.reachability == Reachability::Answers;
    case Alert::Kind::Lamp:
      return !state.lamps.empty();
    case Alert::Kind::Drift:
      return state.drift.has_value();
    case Alert::Kind::Problem:
      return state.problems.has_value();
  }
  return true;
}

}  // namespace

AlertList::AlertList(QWidget* parent)
    : QWidget(parent),
      list_(new QTreeWidget),
      acknowledge_(new QPushButton(tr("&Acknowledge"))),
      acknowledgeAll_(new QPushButton(tr("Acknowledge A&ll"))) {
  list_->setHeaderLabels({tr("Since"), tr("Alert"), tr("State")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setSelectionMode(QTreeWidget::ExtendedSelection);
  list_->setItemDelegate(new IsolatedTexts(list_));
  list_->setAccessibleName(tr("Alerts"));
  list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
  list_->header()->setStretchLastSection(false);
  const QString time = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
  list_->setColumnWidth(0, list_->fontMetrics().horizontalAdvance(time) + kGap);
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(kButtonMargin, 0, kButtonMargin, kButtonMargin);
  buttons->addStretch();
  buttons->addWidget(acknowledge_);
  buttons->addWidget(acknowledgeAll_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list_);
  layout->addLayout(buttons);
  connect(acknowledge_, &QPushButton::clicked, this, [this] { Acknowledge(false); });
  connect(acknowledgeAll_, &QPushButton::clicked, this, [this] { Acknowledge(true); });
  connect(list_, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
    Q_EMIT Activated(item->data(0, Qt::UserRole).toString().toStdString());
  });
  Show();
}

QString AlertList::TextOf(const Alert& alert, const ProjectorRow& row) const {
  const QString name = QString::fromStdString(row.profile.name);
  switch (alert.kind) {
    case Alert::Kind::Silent:
      return tr("%1 does not answer").arg(name);
    case Alert::Kind::Lamp:
      return tr("%1: the lamp has %2 of %3")
          .arg(name, StateTexts::LampHours(row.state),
               StateTexts::Hours(row.profile.ratedLampHours));
    case Alert::Kind::Drift:
      return tr("%1: %n settings are not as they should be", nullptr,
                static_cast<int>(*row.state.drift))
          .arg(name);
    case Alert::Kind::Problem:
      break;
  }
  return tr("%1: %2").arg(name, StateTexts::Part(alert.part));
}

// Thousands of projectors may have alerts at the same time, so nothing here searches in a list.
void AlertList::Look(const std::vector<ProjectorRow>& rows, SessionTime now) {
  const QString since = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
  bool hasChanged = false;
  const std::size_t earlier = earlier_.size();
  QStringList raised;
  std::unordered_set<std::string_view> present;
  ++looks_;
  for (const ProjectorRow& row : rows) {
    present.insert(row.id);
    for (const Alert& alert : FindAlerts(rules_, row, now)) {
      const auto [found, isNew] = alerts_.try_emplace(alert, Entry{.since = since});
      Entry& entry = found->second;
      entry.seen = looks_;
      if (isNew) entry.isAcknowledged = earlier_.erase(alert) > 0;
      // Names, hours and numbers of settings change while the alert stays.
      QString text = TextOf(alert, row);
      if (entry.text == text) continue;
      entry.text = std::move(text);
      if (isNew && !entry.isAcknowledged) raised += entry.text;
      hasChanged = true;
    }
    ForgetGone(row);
  }
  const auto isGone = [&](const auto& one) {
    const auto& [alert, entry] = one;
    if (entry.seen == looks_) return false;
    if (entry.isAcknowledged && !present.contains(alert.id)) earlier_.insert(alert);
    return true;
  };
  hasChanged = std::erase_if(alerts_, isGone) > 0 || hasChanged || earlier_.size() != earlier;
  if (!hasChanged) return;
  Show();
  Q_EMIT Changed();
  if (!raised.isEmpty()) Q_EMIT Raised(raised);
}

std::vector<Alert> AlertList::Open() const {
  std::vector<Alert> open;
  for (const auto& [alert, entry] : alerts_) {
    if (!entry.isAcknowledged) open.push_back(alert);
  }
  return open;
}

QStringList AlertList::Acknowledged() const {
  QStringList acknowledged;
  for (const auto& [alert, entry] : alerts_) {
    if (entry.isAcknowledged) acknowledged += IdentityOf(alert);
  }
  for (const Alert& alert : earlier_) acknowledged += IdentityOf(alert);
  return acknowledged;
}

void AlertList::RememberAcknowledged(const QStringList& alerts) {
  for (const QString& one : alerts) {
    if (auto alert = ParseIdentity(one)) earlier_.insert(std::move(*alert));
  }
}

void AlertList::ForgetGone(const ProjectorRow& row) {
  for (auto one = earlier_.lower_bound({.id = row.id, .kind = Alert::Kind::Silent, .part = {}});
       one != earlier_.end() && one->id == row.id;) {
    one = IsKnown(one->kind, row.state) ? earlier_.erase(one) : std::next(one);
  }
}

void AlertList::Acknowledge(bool all) {
  int row = 0;
  for (auto& [alert, entry] : alerts_) {
    if (all || list_->topLevelItem(row)->isSelected()) entry.isAcknowledged = true;
    ++row;
  }
  Show();
  Q_EMIT Changed();
}

void AlertList::Show() {
  QFont bold = list_->font();
  bold.setBold(true);
  QSet<QString> selected;  // the user may be about to acknowledge these
  for (const QTreeWidgetItem* item : list_->selectedItems())
    selected.insert(item->data(0, kIdentityRole).toString());
  const QModelIndex current = list_->currentIndex().siblingAtColumn(0);
  const QString currentOne = current.data(kIdentityRole).toString();
  const qsizetype row = current.row();
  const int place = list_->verticalScrollBar()->value();
  QList<QTreeWidgetItem*> items;
  items.reserve(static_cast<qsizetype>(alerts_.size()));
  for (const auto& [alert, entry] : alerts_) {
    auto* item = new QTreeWidgetItem(
        {entry.since, entry.text, entry.isAcknowledged ? tr("acknowledged") : tr("open")});
    item->setData(0, Qt::UserRole, QString::fromStdString(alert.id));
    item->setData(0, kIdentityRole, IdentityOf(alert));
    if (!entry.isAcknowledged) item->setFont(1, bold);
    items += item;
  }
  list_->clear();
  list_->addTopLevelItems(items);
  // For one that is gone, the next one, so that the keyboard goes on from there.
  QTreeWidgetItem* next = items.value(std::min(row, items.size() - 1));
  for (QTreeWidgetItem* item : items) {
    const QString identity = item->data(0, kIdentityRole).toString();
    if (selected.contains(identity)) item->setSelected(true);
    if (identity == currentOne) next = item;
  }
  if (next) list_->setCurrentItem(next, 0, QItemSelectionModel::NoUpdate);
  list_->verticalScrollBar()->setValue(place);
  acknowledge_->setEnabled(!alerts_.empty());
  acknowledgeAll_->setEnabled(!Open().empty());
}
