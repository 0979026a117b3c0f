#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"

namespace AdvancedControl {

/// Splits bytes that arrive in pieces of any size into lines. A line ends with CR, LF or both.
/// Ignores empty lines, and zero bytes, which some projectors send around their lines.
class PjLinkReader {
 public:
  /// Far more than the standard allows, because some names are too long.
  static constexpr std::size_t kLongest = 4096;

  void Add(std::string_view bytes);
  /// The next line without its end; nothing if none is complete yet.
  std::optional<std::string> Next();
  /// Whether an incomplete line has arrived.
  bool HasPart() const { return !bytes_.empty(); }
  /// Whether the incomplete line is longer than any line may be.
  bool IsTooLong() const { return bytes_.size() > kLongest; }
  void Clear() { bytes_.clear(); }

 private:
  std::string bytes_;
};

}  // namespace AdvancedControl
