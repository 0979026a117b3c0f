#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "fleet/FleetProfile.h"

/// Whether a name is one of the patterns, or there are none.
bool IsLike(std::string_view name, const std::vector<std::string>& patterns);

struct Selection {
  std::vector<const FleetProfile*> projectors{};  ///< Each once, in the order of the words.
  std::string error{};                            ///< One line; empty on success.
};

/// The projectors that words such as "Lecture hall", "Seminar*", "@building-3", "model=Model 5-*",
/// "A,B" and "!C" select; all for no words. A whole name counts before a pattern.
Selection Select(const std::vector<std::string>& words, const std::vector<FleetProfile>& profiles);
