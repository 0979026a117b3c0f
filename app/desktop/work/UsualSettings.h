#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "fleet/FleetTarget.h"
#include "settings/ModelSettings.h"

/// The settings of models for everyday changes.
class UsualSettings {
 public:
  /// If nobody knows the model of a projector on PJLink, its usual settings are those of any model:
  /// the protocol has no others.
  FleetTarget WithKnownModel(FleetTarget target);
  /// The key with which the model's input source is chosen; empty if it has none.
  std::string InputKey(const std::shared_ptr<const ModelData>& model);
  /// Whether the model has a setting of this key that can be changed.
  bool Has(const std::shared_ptr<const ModelData>& model, const std::string& key);
  const ModelSettings& Of(const std::shared_ptr<const ModelData>& model);

 private:
  using Model = std::shared_ptr<const ModelData>;

  std::map<Model, ModelSettings> models_;
  std::map<Model, Model> usual_;  // used instead of an unknown model
};
