#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/ModelSettings.h"

/// Switching the power is not a setting, but may be commanded like one.
inline constexpr std::string_view kPowerKey = "power";

/// Which settings may be commanded. Without patterns none may be.
class KeyRules {
 public:
  KeyRules() = default;
  /// Patterns like those for file names: "picture.*".
  explicit KeyRules(std::vector<std::string> patterns);

  bool IsEmpty() const { return patterns_.empty(); }
  /// False for service settings, whatever the patterns are. Resets, also of the lamp's hours, have
  /// no key and are never allowed.
  bool Allows(std::string_view key) const;
  /// Whether commands can change the setting and are allowed to.
  bool Allows(const ModelSetting& setting) const;

 private:
  std::vector<std::string> patterns_;
};
