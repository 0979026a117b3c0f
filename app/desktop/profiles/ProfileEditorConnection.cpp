// The connection of a profile in its editor.

#include <algorithm>
#include <iterator>

#include <QFormLayout>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

#include "app/desktop/profiles/LinkNames.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileEditor.h"
#include "toolkit/CComboBox.h"

namespace {

void Put(QJsonObject& object, const char* key, const QJsonValue& value) {
  if (value.isUndefined()) {
    object.remove(QLatin1String(key));
  } else {
    object[QLatin1String(key)] = value;
  }
}

}  // namespace

// The protocol's own, unless another one was typed.
void ProfileEditor::FillPort() {
  const QString usual[] = {QString::number(PjLinkAddress::kDefaultPort),
                           QString::number(Wire::kDefaultPort), QString()};
  if (ConnectionKind() != kNetwork) return;
  if (!networkPort_->isModified() &&
      std::ranges::find(usual, networkPort_->text()) != std::end(usual) &&
      (entry_.isEmpty() || chosen_.contains(link_))) {
    networkPort_->setText(link_->currentData() == kNetwork ? usual[1] : usual[0]);
  }
}

void ProfileEditor::CheckAddress() {
  const QString typed = address_->text().trimmed();
  const QHostAddress address(typed);
  static const QRegularExpression name(QStringLiteral(R"(^[\w][\w.-]*$)"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  static const QRegularExpression numbers(QStringLiteral(R"(^[\d.]+$)"));
  const bool isWrong = !typed.isEmpty() && address.isNull() &&
                       (!name.match(typed).hasMatch() || numbers.match(typed).hasMatch());
  error_->setVisible(isWrong);
  if (isWrong) error_->setText(tr("%1 is no address.").arg(typed));
  FitHeight();
}

ProjectorAddress ProfileEditor::Address() const {
  const bool isPjLink = link_->currentData() == kPjLink;
  if (ConnectionKind() == kSerial) return SerialAddress{.device = device_->text().toStdString()};
  if (ConnectionKind() != kNetwork || address_->text().trimmed().isEmpty())
    return AddressError{"no address"};
  const std::string host = address_->text().trimmed().toStdString();
  const auto port = static_cast<std::uint16_t>(networkPort_->text().toInt());
  if (isPjLink)
    return PjLinkAddress{.host = host, .port = port, .password = secret_->text().toStdString()};
  return TcpAddress{.host = host, .port = port};
}

void ProfileEditor::ShowConnectionFields() {
  const QString kind = ConnectionKind();
  for (QLineEdit* field : {address_, networkPort_, secret_}) {
    form_->setRowVisible(field, kind == kNetwork);
  }
  for (QLineEdit* field : {serialPort_, device_, baud_}) {
    form_->setRowVisible(field, kind == kSerial);
  }
  FitHeight();
}

// Selects a connection of the kind that the chosen link needs.
void ProfileEditor::ChooseFittingConnection() {
  const QString own = link_->currentData().toString();
  const QString link = own.isEmpty() ? Family()["link"].toString() : own;
  const QString needed = link == kPjLink ? kNetwork : link;
  if (needed != kNetwork && needed != kSerial) return;
  const QJsonObject ofFamily = Family()["connection"].toObject();
  const bool fits =
      ConnectionKind().isEmpty() ? ofFamily.contains(needed) : ConnectionKind() == needed;
  if (!fits) connection_->setCurrentIndex(connection_->findData(needed));
}

QString ProfileEditor::ConnectionKind() const { return connection_->currentData().toString(); }

QJsonValue ProfileEditor::Connection() const {
  const QString kind = ConnectionKind();
  QJsonObject written = entry_["connection"].toObject();
  if (kind.isEmpty()) return QJsonValue::Undefined;
  if (kind != kNetwork && kind != kSerial) return written;
  QJsonObject parameters = written[kind].toObject();
  if (kind == kNetwork) {
    Put(parameters, "address", ValueOf(address_));
    Put(parameters, "port", ValueOf(networkPort_));
    Put(parameters, "secret", ValueOf(secret_));
  } else {
    Put(parameters, "port", ValueOf(serialPort_));
    Put(parameters, "device", ValueOf(device_));
    Put(parameters, "baud", ValueOf(baud_));
  }
  return QJsonObject{{kind, parameters}};
}
