#include "app/desktop/profiles/SearchDialog.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "fleet/SearchProfiles.h"
#include "fleet/SearchRange.h"
#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr QSize kUsualSize{640, 420};
constexpr std::chrono::milliseconds kShow{200};

}  // namespace

SearchDialog::SearchDialog(const std::vector<FleetProfile>& known, QWidget* parent)
    : QDialog(parent),
      known_(known),
      addresses_(new QLineEdit),
      password_(new QLineEdit),
      search_(new QPushButton(tr("&Search"))),
      list_(new QTreeWidget),
      text_(new QLabel) {
  setWindowTitle(tr("Find Projectors"));
  addresses_->setPlaceholderText(tr("the networks of this computer"));
  addresses_->setToolTip(tr("For example 192.0.2.0/24, or 192.0.2.10-40"));
  password_->setEchoMode(QLineEdit::PasswordEchoOnEdit);
  list_->setHeaderLabels({tr("Name"), tr("Model"), tr("Address"), tr("Remark")});
  list_->setRootIsDecorated(false);
  list_->setItemDelegate(new IsolatedTexts(list_));
  list_->setAccessibleName(tr("Projectors found"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  auto* form = new QFormLayout;
  form->addRow(tr("&Addresses"), addresses_);
  form->addRow(tr("Pass&word"), password_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  buttons->addButton(search_, QDialogButtonBox::ActionRole);
  add_ = buttons->addButton(tr("Add the &Checked"), QDialogButtonBox::AcceptRole);
  add_->setEnabled(false);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(list_, 1);
  layout->addWidget(text_);
  layout->addWidget(buttons);
  search_->setDefault(true);  // only now that the dialog knows the buttons
  RemoveForeignButtonIcons(*this);
  resize(kUsualSize);
  list_->setColumnWidth(0, kUsualSize.width() / 4);
  list_->setColumnWidth(1, kUsualSize.width() / 4);
  list_->setColumnWidth(2, kUsualSize.width() / 4);
  connect(search_, &QPushButton::clicked, this, &SearchDialog::Begin);
  connect(list_, &QTreeWidget::itemChanged, this, [this] { add_->setEnabled(!Chosen().empty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(&showing_, &QTimer::timeout, this, &SearchDialog::ShowProgress);
}

SearchDialog::~SearchDialog() = default;

void SearchDialog::Begin() {
  SearchOptions options{.password = Password()};
  options.hostNames = HostNamesOf(known_, options.port);
  if (addresses_->text().trimmed().isEmpty()) {
    options.broadcasts = NetworkBroadcasts();
  } else {
    SearchRange range = ParseSearchRange(addresses_->text());
    if (!range.error.isEmpty()) return text_->setText(range.error);
    options.addresses = std::move(range.addresses);
  }
  list_->clear();
  found_.clear();
  isOver_ = false;
  driver_ = std::make_unique<SearchDriver>(
      std::move(options), [this](const FoundProjector& found) { Add(found); },
      [this] { isOver_ = true; });
  driver_->Start();
  showing_.start(kShow);
  ShowProgress();
}

bool SearchDialog::IsKnown(const FoundProjector& found) const {
  return std::ranges::any_of(known_, [&found](const FleetProfile& profile) {
    const ProfileConnection& connection = profile.connection;
    return profile.link != ProjectorLink::Simulated && connection.isNetwork &&
           connection.port == found.port &&
           (connection.address == found.address ||
            std::ranges::count(found.hostNames, connection.address) != 0);
  });
}

void SearchDialog::Add(const FoundProjector& found) {
  const bool isKnown = IsKnown(found);
  const QString remark = isKnown               ? tr("known already")
                         : found.needsPassword ? tr("wants a password")
                                               : QString();
  found_.push_back(found);
  auto* item =
      new QTreeWidgetItem({QString::fromStdString(found.name), QString::fromStdString(found.model),
                           ConnectionText({.address = found.address, .port = found.port}), remark});
  item->setCheckState(0, isKnown ? Qt::Unchecked : Qt::Checked);
  list_->addTopLevelItem(item);
  add_->setEnabled(!Chosen().empty());
}

void SearchDialog::ShowProgress() {
  if (isOver_) showing_.stop();
  search_->setEnabled(isOver_);
  QString text = isOver_ ? tr("%n found", "projectors", static_cast<int>(found_.size()))
                         : tr("%n found, %1 of %2 addresses asked…", "projectors",
                              static_cast<int>(found_.size()))
                               .arg(driver_->Done())
                               .arg(driver_->Count());
  if (!driver_->Problem().isEmpty()) text += QLatin1Char('\n') + driver_->Problem();
  text_->setText(text);
}

std::vector<FoundProjector> SearchDialog::Chosen() const {
  std::vector<FoundProjector> chosen;
  for (std::size_t i = 0; i < found_.size(); ++i) {
    const QTreeWidgetItem* item = list_->topLevelItem(static_cast<int>(i));
    if (item != nullptr && item->checkState(0) == Qt::Checked) chosen.push_back(found_[i]);
  }
  return chosen;
}

std::string SearchDialog::Password() const { return password_->text().toStdString(); }
