#include "fleet/FleetProfile.h"

#include <QCoreApplication>
#include <QUuid>

namespace AdvancedControl {

std::string FleetIdOf(const FleetProfile& profile) {
  return profile.identity.empty() ? "name:" + profile.name : profile.identity;
}

std::string MakeIdentity() {
  return "id:" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

ProjectorAddress AddressOf(ProjectorLink link, const ProfileConnection& connection) {
  const auto port = static_cast<std::uint16_t>(connection.port);
  switch (link) {
    case ProjectorLink::Network:
      return TcpAddress{.host = connection.address, .port = port};
    case ProjectorLink::PjLink:
      return PjLinkAddress{.host = connection.address, .port = port, .password = connection.secret};
    case ProjectorLink::Serial:
      return SerialAddress{
          .device = connection.address.empty() ? SerialDevice(connection.port) : connection.address,
          .baud = connection.baud == 0 ? SerialAddress::kDefaultBaud : connection.baud};
    case ProjectorLink::Simulated:
      break;
  }
  return AddressError{"the projector is simulated"};
}

FleetTarget TargetOf(const FleetProfile& profile) {
  return {.id = FleetIdOf(profile),
          .address = AddressOf(profile),
          .model = {profile.model, &profile.model->data}};
}

CModelInfo2 ModelInfoOf(const FleetProfile& profile) {
  constexpr int kNetworkKind = 1;
  constexpr int kSerialKind = 0;
  const ProfileConnection& connection = profile.connection;
  CModelInfo2 info = profile.model->info;
  info.ConnectionKinds[0] = connection.isNetwork ? kNetworkKind : kSerialKind;
  info.ConnectionNumbers[0] = connection.isNetwork ? 0 : connection.port;
  info.ConnectionParameters[0] = connection.isNetwork ? connection.port : connection.baud;
  info.ConnectionTexts1[0] = MakeNameSlot(connection.address);
  info.ConnectionTexts2[0] = MakeNameSlot(connection.secret);
  return info;
}

QString ConnectionText(const ProfileConnection& connection) {
  const QString address = QString::fromStdString(connection.address);
  if (connection.isNetwork) {
    const bool isIpv6 = address.contains(QLatin1Char(':'));
    return (isIpv6 ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2"))
        .arg(address, QString::number(connection.port));
  }
  if (!address.isEmpty()) return address;
  return QCoreApplication::translate("ProfileFile", "serial port %1").arg(connection.port + 1);
}

}  // namespace AdvancedControl
