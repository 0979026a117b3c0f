#include "app/desktop/work/UsualSettings.h"

const ModelSettings& UsualSettings::Of(const std::shared_ptr<const ModelData>& model) {
  const auto found = models_.find(model);
  if (found != models_.end()) return found->second;
  return models_.emplace(model, ModelSettings(model ? *model : ModelData())).first->second;
}

std::string UsualSettings::InputKey(const std::shared_ptr<const ModelData>& model) {
  return std::string(Of(model).Input().key);
}

bool UsualSettings::Has(const std::shared_ptr<const ModelData>& model, const std::string& key) {
  const ModelSetting* const setting = Of(model).Find(key);
  return setting != nullptr && setting->changeable;
}
