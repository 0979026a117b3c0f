#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/desktop/projectors/ByModel.h"
#include "fleet/FleetTarget.h"
#include "settings/ModelSettings.h"

/// The settings of models for everyday changes.
class UsualSettings {
 public:
  /// The key with which the model's input source is chosen; empty if it has none.
  std::string InputKey(const std::shared_ptr<const ModelData>& model);
  /// Whether the model has a setting of this key that can be changed.
  bool Has(const std::shared_ptr<const ModelData>& model, const std::string& key);
  const ModelSettings& Of(const std::shared_ptr<const ModelData>& model);

 private:
  ByModel<ModelData, ModelSettings> models_;
};
