#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// IPv4 addresses to be searched, each once, in ascending order.
struct SearchRange {
  static constexpr std::size_t kMost = 65'536;

  std::vector<std::uint32_t> addresses{};  ///< 0x7F000001 for 127.0.0.1.
  QString error{};                         ///< One line; not empty where the text is wrong.
};

/// Parses addresses as people write them, separated by commas, spaces or line ends: "192.0.2.7",
/// "192.0.2.0/24" (without the first and the last one, which are those of the network),
/// "192.0.2.10-192.0.2.40" or "192.0.2.10-40".
PROJECTOR_FLEET_EXPORT SearchRange ParseSearchRange(const QString& text);

}  // namespace AdvancedControl
