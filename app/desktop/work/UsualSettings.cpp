#include "app/desktop/work/UsualSettings.h"

#include <utility>
#include <variant>

#include "settings/PageSets.h"

namespace {

constexpr int kUsualType = 5;
constexpr int kUsualCode = 30;

}  // namespace

FleetTarget UsualSettings::WithKnownModel(FleetTarget target) {
  const bool isPjLink = std::holds_alternative<PjLinkAddress>(target.address);
  if (!isPjLink || !target.model ||
      !TabsOf(target.model->DialogType, target.model->ModelCode).empty())
    return target;
  auto [usual, isNew] = usual_.try_emplace(target.model);
  if (isNew) {
    ModelData model = *target.model;
    model.DialogType = kUsualType;
    model.ModelCode = kUsualCode;
    usual->second = std::make_shared<const ModelData>(std::move(model));
  }
  target.model = usual->second;
  return target;
}

const ModelSettings& UsualSettings::Of(const std::shared_ptr<const ModelData>& model) {
  const auto found = models_.find(model);
  if (found != models_.end()) return found->second;
  return models_.emplace(model, ModelSettings(model ? *model : ModelData())).first->second;
}

std::string UsualSettings::InputKey(const std::shared_ptr<const ModelData>& model) {
  const ModelSetting* const input = Of(model).Input();
  return input == nullptr ? std::string() : std::string(input->key);
}

bool UsualSettings::Has(const std::shared_ptr<const ModelData>& model, const std::string& key) {
  const ModelSetting* const setting = Of(model).Find(key);
  return setting != nullptr && setting->changeable;
}
