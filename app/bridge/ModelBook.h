#pragma once

#include <map>
#include <memory>

#include "fleet/FleetProfile.h"
#include "settings/ModelSettings.h"

/// The settings of each model, made once. One thread at a time.
class ModelBook {
 public:
  const ModelSettings& Of(const FleetProfile& profile) {
    auto& settings = settings_[profile.model];
    if (!settings) settings = std::make_unique<const ModelSettings>(profile.model->data);
    return *settings;
  }

 private:
  std::map<std::shared_ptr<const ProfileModel>, std::unique_ptr<const ModelSettings>> settings_;
};
