#include "app/profiles/ProjectorProfile.h"

ProjectorProfile MakeProjectorProfile(const FleetProfile& profile) {
  return {.Name = profile.name,
          .Model = ModelInfoOf(profile),
          .Lacks = profile.model->lacks,
          .Link = profile.link};
}

FleetProfile MakeFleetProfile(const ProjectorProfile& profile) {
  constexpr int kNetworkKind = 1;
  const CModelInfo2& model = profile.Model;
  const bool isNetwork = model.ConnectionKinds[0] == kNetworkKind;
  const std::int32_t parameter = model.ConnectionParameters[0];
  return {.name = profile.Name,
          .model = std::make_shared<const ProfileModel>(
              ProfileModel{.info = model, .lacks = profile.Lacks, .data = MakeModelData(model)}),
          .connection = {.isNetwork = isNetwork,
                         .address = std::string(NameText(model.ConnectionTexts1[0])),
                         .port = isNetwork ? parameter : model.ConnectionNumbers[0],
                         .baud = isNetwork ? 0 : parameter,
                         .secret = std::string(NameText(model.ConnectionTexts2[0]))},
          .link = profile.Link};
}

ProjectorAddress AddressOf(const ProjectorProfile& profile) {
  return AddressOf(MakeFleetProfile(profile));
}

QString ConnectionText(const CModelInfo2& model) {
  return ConnectionText(MakeFleetProfile({.Name = {}, .Model = model, .Lacks = {}}).connection);
}
