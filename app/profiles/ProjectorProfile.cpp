#include "app/profiles/ProjectorProfile.h"

#include <string_view>

#include <QCoreApplication>

namespace {

constexpr int kNetworkKind = 1;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

ProjectorAddress AddressOf(const ProjectorProfile& profile) {
  const CModelInfo2& model = profile.Model;
  const std::string text(NameText(model.ConnectionTexts1[0]));
  const auto port = static_cast<std::uint16_t>(model.ConnectionParameters[0]);
  const int baud = model.ConnectionParameters[0];
  switch (profile.Link) {
    case ProjectorLink::Network:
      return TcpAddress{.host = text, .port = port};
    case ProjectorLink::PjLink:
      return PjLinkAddress{
          .host = text, .port = port, .password = std::string(NameText(model.ConnectionTexts2[0]))};
    case ProjectorLink::Serial:
      return SerialAddress{.device = text.empty() ? SerialDevice(model.ConnectionNumbers[0]) : text,
                           .baud = baud == 0 ? SerialAddress::kDefaultBaud : baud};
    default:
      return AddressError{"the projector is simulated"};
  }
}

QString ConnectionText(const CModelInfo2& model) {
  if (model.ConnectionKinds[0] != kNetworkKind) {
    if (const auto device = NameText(model.ConnectionTexts1[0]); !device.empty()) {
      return Text(device);
    }
    return QCoreApplication::translate("ProfileFile", "serial port %1")
        .arg(model.ConnectionNumbers[0] + 1);
  }
  return QStringLiteral("%1:%2")
      .arg(Text(NameText(model.ConnectionTexts1[0])))
      .arg(model.ConnectionParameters[0]);
}
