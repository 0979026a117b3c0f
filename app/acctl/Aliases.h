#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "settings/ModelSettings.h"

/// A short name of a setting, for keys that mean the same on different models.
struct Alias {
  std::string_view name;
  std::vector<std::string_view> keys;  ///< The first one that a model has is used.
};

std::span<const Alias> Aliases();

/// The setting with this key or short name, or null. If several keys have the short name, one for
/// which `fits` is true is preferred.
const ModelSetting* FindSetting(
    const ModelSettings& model, std::string_view word,
    bool (*fits)(const ModelSetting&) = [](const ModelSetting&) { return true; });

/// The short name of a key; empty if it has none.
std::string_view AliasOf(std::string_view key);
