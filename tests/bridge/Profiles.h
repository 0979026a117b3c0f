#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "fleet/FleetProfile.h"

/// The profile of a projector of this model.
inline FleetProfile ProfileOf(std::string name, ModelData data = {}, std::string identity = {},
                              std::vector<std::string> tags = {}) {
  auto model = std::make_shared<ProfileModel>();
  model->data = std::move(data);
  return {.name = std::move(name),
          .model = std::move(model),
          .connection = {.address = "127.0.0.1"},
          .link = ProjectorLink::PjLink,
          .identity = std::move(identity),
          .tags = std::move(tags)};
}
