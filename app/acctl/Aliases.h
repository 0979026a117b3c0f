#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "settings/ModelSettings.h"

/// A short name of a setting, for keys that mean the same on different models.
struct Alias {
  std::string_view name;
  std::vector<std::string_view> keys;  ///< The first one that a model has is meant.
};

std::span<const Alias> Aliases();

/// The setting of a key or of a short name, or null. Of several keys of a short name, one for which
/// `fits` is true comes first.
const ModelSetting* FindSetting(
    const ModelSettings& model, std::string_view word,
    bool (*fits)(const ModelSetting&) = [](const ModelSetting&) { return true; });

/// The short name of a key; empty if it has none.
std::string_view AliasOf(std::string_view key);
