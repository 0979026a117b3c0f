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
  /// Patterns as of file names: "picture.*".
  explicit KeyRules(std::vector<std::string> patterns);

  bool IsEmpty() const { return patterns_.empty(); }
  /// False for service settings, whatever the patterns say. Resets, that of the lamp's hours among
  /// them, are no settings and have no key.
  bool Allows(std::string_view key) const;
  /// Whether it can be commanded at all, and may be.
  bool Allows(const ModelSetting& setting) const;

 private:
  std::vector<std::string> patterns_;
};
