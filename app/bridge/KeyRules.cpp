#include "app/bridge/KeyRules.h"

#include <algorithm>
#include <fnmatch.h>
#include <utility>

KeyRules::KeyRules(std::vector<std::string> patterns) : patterns_(std::move(patterns)) {}

bool KeyRules::Allows(std::string_view key) const {
  if (key.starts_with("service.")) return false;
  const std::string text(key);
  return std::ranges::any_of(patterns_, [&text](const std::string& pattern) {
    return fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
  });
}

bool KeyRules::Allows(const ModelSetting& setting) const {
  return (setting.changeable || setting.kind == ModelSetting::Kind::Action) && Allows(setting.key);
}
