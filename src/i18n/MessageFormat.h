#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "Namespace.h"

namespace AdvancedControl {

/// One insert of a message: a text (UTF-8) or an integer. Refers to the caller's text, so it is
/// made where it is passed and not kept.
class CatalogInsert {
 public:
  CatalogInsert(std::string_view text) : value_(text) {}
  CatalogInsert(const std::string& text) : value_(std::string_view(text)) {}
  /// Null stands for the empty text.
  CatalogInsert(const char* text) : value_(text ? std::string_view(text) : std::string_view()) {}
  template <std::signed_integral T>
  CatalogInsert(T number) : value_(std::int64_t{number}) {}
  template <std::unsigned_integral T>
  CatalogInsert(T number) : value_(std::uint64_t{number}) {}

  using Value = std::variant<std::string_view, std::int64_t, std::uint64_t>;
  const Value& Get() const { return value_; }

 private:
  Value value_;
};

/// Largest width and precision a message may ask for, in characters.
inline constexpr int kMaxInsertWidth = 4096;
/// Largest result, in bytes.
inline constexpr std::size_t kMaxMessageBytes = std::size_t{64} * 1024;

/// Expands the % sequences of a message text, both UTF-8.
///
/// %1 to %99 is an insert, with a printf conversion if "!...!" follows: flags "-+ #0", width,
/// precision ("*" takes the insert's own number, the next "*" and the value the numbers after it),
/// a size prefix and one of d i u o x X c C s S p. Without one it is "s". "%0" ends the message;
/// %n, %r, %t, %b are line break (CR LF), CR, tab and blank; % before anything else stands for that
/// character. A line break of the text becomes CR LF, however it is written.
///
/// Inserts are converted where that makes sense: an integer as text is shown in decimal, a text as
/// number or width must be a decimal integer. Numbers are cut to the size that the conversion
/// names, 32 bits if it names none; width and precision of a text count characters.
///
/// No result if the message asks for an insert that is not there or cannot be converted, is itself
/// malformed, or exceeds the limits above.
std::optional<std::string> ExpandMessage(std::string_view text,
                                         std::span<const CatalogInsert> inserts);

}  // namespace AdvancedControl
