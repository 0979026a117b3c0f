#pragma once

#include <cstddef>
#include <vector>

#include <QHostAddress>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// IP addresses to be searched, each once, in ascending order, IPv4 first.
struct SearchRange {
  static constexpr std::size_t kMost = 65'536;

  std::vector<QHostAddress> addresses{};
  QString error{};  ///< One line; not empty where the text is wrong.
};

/// Parses addresses as people write them, separated by commas, spaces or line ends: "192.0.2.7",
/// "192.0.2.0/24" (without the first and the last one, which are those of the network),
/// "192.0.2.10-192.0.2.40" or "192.0.2.10-40", and in the same way "2001:db8::7",
/// "2001:db8::/120", "2001:db8::10-2001:db8::40" or "2001:db8::10-40". A range of IPv6 addresses
/// lies within their last 64 bits.
PROJECTOR_FLEET_EXPORT SearchRange ParseSearchRange(const QString& text);

}  // namespace AdvancedControl
