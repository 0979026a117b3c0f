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

/// One insert of a message: a text (UTF-8) or an integer. It refers to the caller's text, so create
/// it in the call and do not keep it.
class CatalogInsert {
 public:
  CatalogInsert(std::string_view text) : value_(text) {}
  CatalogInsert(const std::string& text) : value_(std::string_view(text)) {}
  /// Null is the empty text.
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

/// Largest width and precision that a message may use, in characters.
inline constexpr int kMaxInsertWidth = 4096;
/// Largest result, in bytes.
inline constexpr std::size_t kMaxMessageBytes = std::size_t{64} * 1024;

/// Expands the % sequences of a message text. Text and result are UTF-8.
///
/// %1 to %99 is an insert, with a printf conversion if "!...!" follows: flags "-+ #0", width,
/// precision ("*" takes the insert's own number, the next "*" and the value the numbers after it),
/// a size prefix and one of d i u o x X c C s S p. The default conversion is "s". "%0" ends the
/// message; %n, %r, %t, %b are line break (CR LF), CR, tab and blank; % before any other character
/// is that character. Every kind of line break in the text becomes CR LF.
///
/// Inserts are converted if necessary: an integer becomes decimal text, and a text used as number
/// or width must be a decimal integer. Numbers are cut to the size that the conversion specifies,
/// by default 32 bits; width and precision of a text count characters.
///
/// No result if an insert is missing or cannot be converted, if the message is malformed, or if the
/// result exceeds the limits above. Any thread.
std::optional<std::string> ExpandMessage(std::string_view text,
                                         std::span<const CatalogInsert> inserts);

}  // namespace AdvancedControl
