#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"

namespace AdvancedControl {

/// The lines in bytes that arrive in pieces of any size. A line ends with CR, LF or both. Zero
/// bytes, which some projectors put around their lines, and empty lines count for nothing.
class PjLinkReader {
 public:
  /// Far more than the standard allows, as some names are longer than that.
  static constexpr std::size_t kLongest = 4096;

  void Add(std::string_view bytes);
  /// The next line without its end, or nothing as long as none is complete.
  std::optional<std::string> Next();
  /// Whether a line has begun and not ended.
  bool HasPart() const { return !bytes_.empty(); }
  /// Whether that one is longer than any line may be.
  bool IsTooLong() const { return bytes_.size() > kLongest; }
  void Clear() { bytes_.clear(); }

 private:
  std::string bytes_;
};

}  // namespace AdvancedControl
