#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Namespace.h"

namespace AdvancedControl {

/// The settings that a projector should have, as device values. User-interface thread only.
class WantedSettings {
 public:
  /// `source` is the input source that the value belongs to, if the setting is kept for each one.
  void Add(std::string key, std::optional<int> source, int value) {
    values_.insert_or_assign({std::move(key), source}, value);
  }

  bool IsEmpty() const { return values_.empty(); }

  /// Whether there is a value for any input source, or for none.
  bool Names(std::string_view key) const {
    return std::ranges::any_of(values_,
                               [key](const auto& value) { return value.first.first == key; });
  }

  /// Nothing if any value will do.
  std::optional<int> ValueOf(std::string_view key, std::optional<int> source) const {
    const auto found = values_.find({std::string(key), source});
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  std::map<std::pair<std::string, std::optional<int>>, int> values_;
};

}  // namespace AdvancedControl
