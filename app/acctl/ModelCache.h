#pragma once

#include <map>
#include <memory>
#include <mutex>

#include "fleet/FleetProfile.h"
#include "settings/ModelSettings.h"

/// The settings of models, made once for all projectors of a model. Any thread may call it.
class ModelCache {
 public:
  const ModelSettings& Of(const FleetProfile& profile) { return *Share(profile); }

  /// Never null.
  std::shared_ptr<const ModelSettings> Share(const FleetProfile& profile) {
    const std::lock_guard lock(mutex_);
    auto& model = models_[profile.model.get()];
    if (!model) model = std::make_shared<const ModelSettings>(profile.model->data);
    return model;
  }

 private:
  std::mutex mutex_;
  std::map<const ProfileModel*, std::shared_ptr<const ModelSettings>> models_;
};
