#include "i18n/MessageFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include <unicode/unistr.h>

namespace AdvancedControl {

namespace {

struct Conversion {
  std::string flags;
  int width = 0;
  int precision = -1;  // negative if none is given
  int bits = 32;
  char kind = 's';

  bool HasFlag(char flag) const { return flags.find(flag) != std::string::npos; }
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The first `count` characters of a UTF-8 text.
std::string_view FirstCharacters(std::string_view text, int count) {
  std::size_t end = 0;
  while (end < text.size()) {
    const bool startsCharacter = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
    if (startsCharacter && count-- == 0) break;
    ++end;
  }
  return text.substr(0, end);
}

int CharacterCount(std::string_view text) {
  return static_cast<int>(std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

// The integer value of an insert as 64 bits, signed or unsigned.
std::optional<std::uint64_t> NumberOf(const CatalogInsert& insert) {
  if (const auto* number = std::get_if<std::int64_t>(&insert.Get())) {
    return static_cast<std::uint64_t>(*number);
  }
  if (const auto* number = std::get_if<std::uint64_t>(&insert.Get())) return *number;
  const std::string_view text = std::get<std::string_view>(insert.Get());
  std::int64_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return {};
  return static_cast<std::uint64_t>(number);
}

std::string TextOf(const CatalogInsert& insert) {
  if (const auto* number = std::get_if<std::int64_t>(&insert.Get())) return std::to_string(*number);
  if (const auto* number = std::get_if<std::uint64_t>(&insert.Get())) {
    return std::to_string(*number);
  }
  return std::string(std::get<std::string_view>(insert.Get()));
}

// Expands one message. Members return false if the message has no result.
class Expansion {
 public:
  Expansion(std::string_view text, std::span<const CatalogInsert> inserts)
      : rest_(text), inserts_(inserts) {}

  bool Run() {
    while (!rest_.empty()) {
      const std::size_t literal = std::min(rest_.find_first_of("%\r\n"), rest_.size());
      result.append(rest_.substr(0, literal));
      rest_.remove_prefix(literal);
      if (result.size() > kMaxMessageBytes) return false;
      if (rest_.empty()) break;
      if (Take('%')) {
        if (!rest_.empty() && IsDigit(rest_.front())) {
          if (Take('0')) break;
          if (!TakeInsert()) return false;
        } else {
          TakeEscape();
        }
      } else {
        Take('\r');
        Take('\n');
        result += "\r\n";
      }
    }
    return result.size() <= kMaxMessageBytes;
  }

  std::string result;

 private:
  bool Take(char expected) {
    if (rest_.empty() || rest_.front() != expected) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeWord(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  void TakeEscape() {
    if (rest_.empty()) return;
    if (Take('n')) {
      result += "\r\n";
    } else if (Take('r')) {
      result += '\r';
    } else if (Take('t')) {
      result += '\t';
    } else if (Take('b')) {
      result += ' ';
    } else {
      result += rest_.front();
      rest_.remove_prefix(1);
    }
  }

  bool TakeInsert() {
    next_ = static_cast<std::size_t>(rest_.front() - '1');
    rest_.remove_prefix(1);
    if (!rest_.empty() && IsDigit(rest_.front())) {
      next_ = 10 * (next_ + 1) + static_cast<std::size_t>(rest_.front() - '0') - 1;
      rest_.remove_prefix(1);
    }
    Conversion conversion;
    if (Take('!') && !(TakeConversion(conversion) && Take('!'))) return false;
    const CatalogInsert* insert = NextInsert();
    return insert && Append(conversion, *insert);
  }

  const CatalogInsert* NextInsert() {
    return next_ < inserts_.size() ? &inserts_[next_++] : nullptr;
  }

  // Parses a width or precision: a decimal number, or "*" for the next insert.
  bool TakeMeasure(int& measure) {
    std::int64_t value = 0;
    if (Take('*')) {
      const CatalogInsert* insert = NextInsert();
      const auto number = insert ? NumberOf(*insert) : std::nullopt;
      if (!number) return false;
      value = static_cast<std::int64_t>(*number);
    } else {
      while (!rest_.empty() && IsDigit(rest_.front()) && value <= kMaxInsertWidth) {
        value = 10 * value + (rest_.front() - '0');
        rest_.remove_prefix(1);
      }
    }
    if (value < -kMaxInsertWidth || value > kMaxInsertWidth) return false;
    measure = static_cast<int>(value);
    return true;
  }

  bool TakeConversion(Conversion& conversion) {
    constexpr std::string_view kFlags = "-+ #0";
    while (!rest_.empty() && kFlags.find(rest_.front()) != std::string_view::npos) {
      conversion.flags += rest_.front();
      rest_.remove_prefix(1);
    }
    if (!TakeMeasure(conversion.width)) return false;
    if (conversion.width < 0) {
      conversion.width = -conversion.width;
      conversion.flags += '-';
    }
    if (Take('.') && !TakeMeasure(conversion.precision)) return false;
    conversion.bits = TakeSize();
    constexpr std::string_view kKinds = "diuoxXcCsSp";
    if (rest_.empty() || kKinds.find(rest_.front()) == std::string_view::npos) return false;
    conversion.kind = rest_.front();
    rest_.remove_prefix(1);
    return true;
  }

  // Parses a size prefix. Returns the number of bits; a long has 32 on the platform of the
  // catalogs.
  int TakeSize() {
    struct Size {
      std::string_view prefix;
      int bits;
    };
    constexpr Size kSizes[] = {{"I64", 64}, {"I32", 32}, {"ll", 64}, {"hh", 8},
                               {"I", 64},   {"l", 32},   {"h", 16},  {"w", 32},
                               {"j", 64},   {"z", 64},   {"t", 64}};
    for (const Size& size : kSizes) {
      if (TakeWord(size.prefix)) return size.bits;
    }
    return 32;
  }

  bool Append(const Conversion& conversion, const CatalogInsert& insert) {
    switch (conversion.kind) {
      case 's':
      case 'S':
        AppendText(conversion, TextOf(insert));
        return true;
      case 'c':
      case 'C':
        return AppendCharacter(conversion, insert);
      default:
        return AppendNumber(conversion, insert);
    }
  }

  void AppendText(const Conversion& conversion, std::string_view text) {
    if (conversion.precision >= 0) text = FirstCharacters(text, conversion.precision);
    const int missing = std::max(conversion.width - CharacterCount(text), 0);
    const std::string padding(static_cast<std::size_t>(missing), ' ');
    if (!conversion.HasFlag('-')) result += padding;
    result += text;
    if (conversion.HasFlag('-')) result += padding;
  }

  // An integer is a code point; of a text, the first character is used.
  bool AppendCharacter(Conversion conversion, const CatalogInsert& insert) {
    conversion.precision = 1;
    if (const auto* text = std::get_if<std::string_view>(&insert.Get())) {
      AppendText(conversion, *text);
      return true;
    }
    const std::uint64_t code = NumberOf(insert).value_or(0);
    if (code == 0 || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return false;
    std::string character;
    icu::UnicodeString(static_cast<UChar32>(code)).toUTF8String(character);
    AppendText(conversion, character);
    return true;
  }

  bool AppendNumber(const Conversion& conversion, const CatalogInsert& insert) {
    const auto number = NumberOf(insert);
    if (!number) return false;
    // Large enough for every width and precision, a prefix and a sign.
    std::array<char, kMaxInsertWidth + 64> digits;
    int length = 0;
    if (conversion.kind == 'p') {
      length = std::snprintf(digits.data(), digits.size(), "%016llX",
                             static_cast<unsigned long long>(*number));
      Conversion padding = conversion;
      padding.precision = -1;
      AppendText(padding, {digits.data(), static_cast<std::size_t>(length)});
      return true;
    }
    const std::string format = '%' + conversion.flags + "*.*ll" + conversion.kind;
    const int unused = 64 - conversion.bits;
    const bool isSigned = conversion.kind == 'd' || conversion.kind == 'i';
    if (isSigned) {
      const auto value = static_cast<std::int64_t>(*number << unused) >> unused;
      length = std::snprintf(digits.data(), digits.size(), format.c_str(), conversion.width,
                             conversion.precision, static_cast<long long>(value));
    } else {
      const std::uint64_t value = *number << unused >> unused;
      length = std::snprintf(digits.data(), digits.size(), format.c_str(), conversion.width,
                             conversion.precision, static_cast<unsigned long long>(value));
    }
    result.append(digits.data(), static_cast<std::size_t>(length));
    return true;
  }

  std::string_view rest_;
  std::span<const CatalogInsert> inserts_;
  std::size_t next_ = 0;
};

}  // namespace

std::optional<std::string> ExpandMessage(std::string_view text,
                                         std::span<const CatalogInsert> inserts) {
  Expansion expansion(text, inserts);
  if (!expansion.Run()) return {};
  return std::move(expansion.result);
}

}  // namespace AdvancedControl
