#include "app/desktop/work/UsualSettings.h"

const ModelSettings& UsualSettings::Of(const std::shared_ptr<const ModelData>& model) {
  return models_.Of(model, [&] { return ModelSettings(model ? *model : ModelData()); });
}

std::string UsualSettings::InputKey(const std::shared_ptr<const ModelData>& model) {
  return std::string(Of(model).Input().key);
}

bool UsualSettings::Has(const std::shared_ptr<const ModelData>& model, const std::string& key) {
  const ModelSetting* const setting = Of(model).Find(key);
  return setting != nullptr && setting->changeable;
}
