#include "app/profiles/ProjectorProfile.h"

namespace {

constexpr int kNetworkKind = 1;
constexpr int kSerialKind = 0;

ProfileConnection ConnectionOf(const CModelInfo2& model) {
  const bool isNetwork = model.ConnectionKinds[0] == kNetworkKind;
  const std::int32_t parameter = model.ConnectionParameters[0];
  return {.isNetwork = isNetwork,
          .address = std::string(NameText(model.ConnectionTexts1[0])),
          .port = isNetwork ? parameter : model.ConnectionNumbers[0],
          .baud = isNetwork ? 0 : parameter,
          .secret = std::string(NameText(model.ConnectionTexts2[0]))};
}

}  // namespace

ProjectorProfile MakeProjectorProfile(const FleetProfile& profile) {
  ProjectorProfile made{.Name = profile.name,
                        .Model = profile.model->info,
                        .Lacks = profile.model->lacks,
                        .Link = profile.link};
  const ProfileConnection& connection = profile.connection;
  CModelInfo2& model = made.Model;
  model.ConnectionKinds[0] = connection.isNetwork ? kNetworkKind : kSerialKind;
  model.ConnectionNumbers[0] = connection.isNetwork ? 0 : connection.port;
  model.ConnectionParameters[0] = connection.isNetwork ? connection.port : connection.baud;
  model.ConnectionTexts1[0] = MakeNameSlot(connection.address);
  model.ConnectionTexts2[0] = MakeNameSlot(connection.secret);
  return made;
}

ProjectorAddress AddressOf(const ProjectorProfile& profile) {
  return AddressOf(profile.Link, ConnectionOf(profile.Model));
}

QString ConnectionText(const CModelInfo2& model) { return ConnectionText(ConnectionOf(model)); }
