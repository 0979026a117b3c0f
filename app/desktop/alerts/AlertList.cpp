#include "app/desktop/alerts/AlertList.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/desktop/projectors/StateTexts.h"
#include "toolkit/IsolatedText.h"

AlertList::AlertList(QWidget* parent)
    : QWidget(parent),
      list_(new QTreeWidget),
      acknowledge_(new QPushButton(tr("&Acknowledge"))),
      acknowledgeAll_(new QPushButton(tr("Acknowledge A&ll"))) {
  list_->setHeaderLabels({tr("Since"), tr("Alert"), tr("State")});
  list_->setRootIsDecorated(false);
  list_->setSelectionMode(QTreeWidget::ExtendedSelection);
  list_->setItemDelegate(new IsolatedTexts(list_));
  list_->setAccessibleName(tr("Alerts"));
  list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
  list_->header()->setStretchLastSection(false);
  auto* buttons = new QHBoxLayout;
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

void AlertList::Look(const std::vector<ProjectorRow>& rows, WallTime now) {
  const std::vector<Alert> found = FindAlerts(rules_, rows, now);
  const std::set<Alert> present(found.begin(), found.end());
  bool hasChanged =
      std::erase_if(alerts_, [&](const auto& one) { return !present.contains(one.first); }) > 0;
  QStringList raised;
  for (const Alert& alert : present) {
    const auto [entry, isNew] = alerts_.try_emplace(alert);
    if (!isNew) continue;
    const auto row = std::ranges::find(rows, alert.id, &ProjectorRow::id);
    entry->second = {.text = TextOf(alert, *row), .since = QDateTime::currentDateTime()};
    raised += entry->second.text;
    hasChanged = true;
  }
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
  list_->clear();
  for (const auto& [alert, entry] : alerts_) {
    auto* item = new QTreeWidgetItem(
        list_, {QLocale().toString(entry.since, QLocale::ShortFormat), entry.text,
                entry.isAcknowledged ? tr("acknowledged") : tr("open")});
    item->setData(0, Qt::UserRole, QString::fromStdString(alert.id));
    QFont font = item->font(1);
    font.setBold(!entry.isAcknowledged);
    item->setFont(1, font);
  }
  list_->resizeColumnToContents(0);
  acknowledge_->setEnabled(!alerts_.empty());
  acknowledgeAll_->setEnabled(!Open().empty());
}
