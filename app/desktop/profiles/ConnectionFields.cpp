#include "app/desktop/profiles/ConnectionFields.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QHostAddress>
#include <QIntValidator>
#include <QLineEdit>
#include <QRegularExpression>

#include "app/desktop/profiles/ConnectionTest.h"
#include "app/desktop/profiles/EntryForm.h"
#include "app/desktop/profiles/LinkNames.h"
#include "app/desktop/profiles/ModelFields.h"
#include "toolkit/CComboBox.h"

namespace {

void Put(QJsonObject& object, const char* key, const QJsonValue& value) {
  if (value.isUndefined()) {
    object.remove(QLatin1String(key));
  } else {
    object[QLatin1String(key)] = value;
  }
}

void TakeNumbersOnly(QLineEdit& field, int minimum, int maximum) {
  field.setValidator(new QIntValidator(minimum, maximum, &field));
}

}  // namespace

ConnectionFields::ConnectionFields(const ModelFields& model, EntryForm& form)
    : QObject(&form),
      model_(model),
      form_(form),
      link_(form.AddList(tr("&Reached through"), "link")),
      connection_(form.AddList(tr("Connect&ion"), "connection")),
      address_(form.AddField(tr("&Address"), "connection.network.address")),
      networkPort_(form.AddField(tr("&Port"), "connection.network.port")),
      secret_(form.AddField(tr("Pass&word"), "connection.network.secret")),
      serialPort_(form.AddField(tr("Port n&umber"), "connection.serial.port")),
      device_(form.AddField(tr("&Device"), "connection.serial.device")),
      baud_(form.AddField(tr("&Baud"), "connection.serial.baud")),
      test_(new ConnectionTest([this] { return Address(); })) {
  form.AddWideWidget(test_);
  connect(test_, &ConnectionTest::Told, &form, &EntryForm::RowsChanged);
  TakeNumbersOnly(*networkPort_, 1, 65535);
  TakeNumbersOnly(*serialPort_, 1, 256);
  TakeNumbersOnly(*baud_, 1, 4'000'000);
  secret_->setEchoMode(QLineEdit::PasswordEchoOnEdit);
  FillLists();
  for (const QLineEdit* field : {address_, networkPort_, secret_})
    connect(field, &QLineEdit::textChanged, test_, &ConnectionTest::Clear);
  connect(address_, &QLineEdit::textChanged, this, &ConnectionFields::CheckAddress);
  connect(&model_, &ModelFields::FamilyChanged, this, &ConnectionFields::TakeFamily);
  connect(link_, &QComboBox::activated, this, [this] {
    chosen_.insert(link_);
    ChooseFittingConnection();
    FillPort();
  });
  connect(connection_, &QComboBox::activated, this, [this] { chosen_.insert(connection_); });
  for (const CComboBox* list : {link_, connection_})
    connect(list, &QComboBox::currentIndexChanged, test_, &ConnectionTest::Clear);
  connect(connection_, &QComboBox::currentIndexChanged, this, &ConnectionFields::ShowRows);
  TakeFamily();
  ShowRows();
  FillPort();
}

// A connection of an unknown kind is added to the list unchanged.
void ConnectionFields::FillLists() {
  const QJsonObject& entry = form_.Entry();
  link_->addItem(tr("As its family"), QString());
  link_->addItem(tr("Simulated"), kSimulated);
  link_->addItem(tr("Network"), kNetwork);
  link_->addItem(QStringLiteral("PJLink"), kPjLink);
  link_->addItem(tr("Serial port"), kSerial);
  link_->setCurrentIndex(link_->findData(entry["link"].toString()));

  connection_->addItem(tr("As its family"), QString());
  connection_->addItem(tr("Network"), kNetwork);
  connection_->addItem(tr("Serial port"), kSerial);
  const QJsonObject written = entry["connection"].toObject();
  const QString kind = written.isEmpty() ? QString() : written.begin().key();
  if (connection_->findData(kind) < 0) connection_->addItem(kind, kind);
  connection_->setCurrentIndex(connection_->findData(kind));
}

// Until the user chooses the connection of a new projector, it is that of its family, or else
// PJLink, which most projectors speak.
void ConnectionFields::TakeFamily() {
  if (!form_.Entry().isEmpty()) return;
  const QJsonObject family = model_.Family();
  for (const auto& [list, usual] : {std::pair(link_, kPjLink), std::pair(connection_, kNetwork)}) {
    if (chosen_.contains(list)) continue;
    list->setCurrentIndex(list->findData(family.contains(list->objectName()) ? QString() : usual));
  }
  if (!chosen_.contains(connection_)) ChooseFittingConnection();
}

// The protocol's default port, unless the user has typed another one.
void ConnectionFields::FillPort() {
  const QString usual[] = {QString::number(PjLinkAddress::kDefaultPort),
                           QString::number(Wire::kDefaultPort), QString()};
  if (ConnectionKind() != kNetwork) return;
  if (!networkPort_->isModified() &&
      std::ranges::find(usual, networkPort_->text()) != std::end(usual) &&
      (form_.Entry().isEmpty() || chosen_.contains(link_))) {
    networkPort_->setText(link_->currentData() == kNetwork ? usual[1] : usual[0]);
  }
}

void ConnectionFields::CheckAddress() {
  const QString typed = address_->text().trimmed();
  const QHostAddress address(typed);
  static const QRegularExpression name(QStringLiteral(R"(^[\w][\w.-]*$)"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  static const QRegularExpression numbers(QStringLiteral(R"(^[\d.]+$)"));
  const bool isWrong = !typed.isEmpty() && address.isNull() &&
                       (!name.match(typed).hasMatch() || numbers.match(typed).hasMatch());
  Q_EMIT AddressChecked(isWrong ? tr("%1 is not an address.").arg(typed) : QString());
}

ProjectorAddress ConnectionFields::Address() const {
  const QString link = Link();
  if (link == kSerial) return SerialAddress{.device = device_->text().toStdString()};
  const bool isNetwork = link == kNetwork || link == kPjLink;
  if (!isNetwork || ConnectionKind() != kNetwork || EntryForm::IsBlank(address_))
    return AddressError{"no address"};
  const std::string host = address_->text().trimmed().toStdString();
  const auto port = static_cast<std::uint16_t>(networkPort_->text().toInt());
  if (link == kPjLink)
    return PjLinkAddress{.host = host, .port = port, .password = secret_->text().toStdString()};
  return TcpAddress{.host = host, .port = port};
}

void ConnectionFields::ShowRows() {
  const QString kind = ConnectionKind();
  for (QLineEdit* field : {address_, networkPort_, secret_})
    form_.SetRowVisible(field, kind == kNetwork);
  for (QLineEdit* field : {serialPort_, device_, baud_})
    form_.SetRowVisible(field, kind == kSerial);
}

QString ConnectionFields::Link() const {
  const QString own = link_->currentData().toString();
  return own.isEmpty() ? model_.Family()["link"].toString() : own;
}

// Selects a connection of the kind that the chosen link needs.
void ConnectionFields::ChooseFittingConnection() {
  const QString link = Link();
  const QString needed = link == kPjLink ? kNetwork : link;
  if (needed != kNetwork && needed != kSerial) return;
  const QJsonObject ofFamily = model_.Family()["connection"].toObject();
  const bool fits =
      ConnectionKind().isEmpty() ? ofFamily.contains(needed) : ConnectionKind() == needed;
  if (!fits) connection_->setCurrentIndex(connection_->findData(needed));
}

QString ConnectionFields::ConnectionKind() const { return connection_->currentData().toString(); }

QJsonValue ConnectionFields::Connection() const {
  const QString kind = ConnectionKind();
  QJsonObject written = form_.Entry()["connection"].toObject();
  if (kind.isEmpty()) return QJsonValue::Undefined;
  if (kind != kNetwork && kind != kSerial) return written;
  QJsonObject parameters = written[kind].toObject();
  if (kind == kNetwork) {
    Put(parameters, "address", form_.ValueOf(address_));
    Put(parameters, "port", form_.ValueOf(networkPort_));
    Put(parameters, "secret", form_.ValueOf(secret_, true));
  } else {
    Put(parameters, "port", form_.ValueOf(serialPort_));
    Put(parameters, "device", form_.ValueOf(device_));
    Put(parameters, "baud", form_.ValueOf(baud_));
  }
  return QJsonObject{{kind, parameters}};
}

JsonEdit::Members ConnectionFields::Members() const {
  return {{"connection", Connection()},
          {"link", EntryForm::TextOrNothing(link_->currentData().toString())}};
}

std::vector<QLineEdit*> ConnectionFields::Missing() const {
  std::vector<QLineEdit*> needed;
  if (ConnectionKind() == kNetwork) needed = {address_, networkPort_};
  if (ConnectionKind() == kSerial && EntryForm::IsBlank(device_)) needed = {serialPort_};
  std::erase_if(needed, [](const QLineEdit* field) { return !EntryForm::IsBlank(field); });
  return needed;
}

void ConnectionFields::AskForAddress() {
  address_->clear();
  if (ConnectionKind() == kNetwork) address_->setFocus();
}
