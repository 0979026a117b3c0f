#include "i18n/SystemLanguage.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include <unicode/uloc.h>

namespace AdvancedControl {

namespace {

// Whether the environment has changed since the last call. Comparing the addresses of all entries
// is faster than searching for one variable.
bool HasEnvironmentChanged() {
  static std::vector<const char*> known;  // with the null at the end
  static char* none = nullptr;
  char** const now = environ != nullptr ? environ : &none;
  std::size_t i = 0;
  while (i < known.size() && known[i] == now[i]) {
    if (now[i++] == nullptr) return false;
  }
  while (now[i] != nullptr) ++i;
  known.assign(now, now + i + 1);
  return true;
}

const char* EnvironmentLocale() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value && *value) return value;
  }
  return "";
}

// Adds the default region to identifiers without a region, if it is not the first one.
std::uint32_t WithRegion(std::uint32_t languageId) {
  constexpr std::uint32_t kChinese = 0x7804;
  constexpr std::uint32_t kSimplifiedScript = 0x0004;
  constexpr std::uint32_t kTraditionalScript = 0x7C04;
  constexpr std::uint32_t kTaiwan = 0x0404;
  constexpr std::uint32_t kFirstRegion = 0x0400;
  if (languageId == kChinese || languageId == kSimplifiedScript) return kChineseSimplified;
  if (languageId == kTraditionalScript) return kTaiwan;
  return languageId < kFirstRegion ? languageId | kFirstRegion : languageId;
}

// Whether a name is a language of two or three letters, with an optional script, region and
// variants. No other name, such as "C" or "i-default", may be passed to the locale library: it may
// ask for the system's locale while it determines that locale, and deadlock.
bool IsPlainName(std::string_view name) {
  constexpr std::size_t kLongest = 64;
  const std::size_t language = std::min(name.find_first_of("_-"), name.size());
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  return name.size() <= kLongest && (language == 2 || language == 3) &&
         std::ranges::all_of(name.substr(0, language), isLetter);
}

// Whether a name is `wanted`, except for the case of letters and "-" instead of "_".
bool IsNamed(std::string_view name, std::string_view wanted) {
  return std::ranges::equal(name, wanted, [](char a, char b) {
    return a == '-' ? b == '_' : (a >= 'A' && a <= 'Z' ? a + 'a' - 'A' : a) == b;
  });
}

}  // namespace

std::optional<std::uint32_t> LanguageIdOf(std::string_view name) {
  const std::string plain(name.substr(0, name.find_first_of(".@")));
  if (!IsPlainName(plain)) return {};
  if (IsNamed(plain, "qps_ploc")) return kPseudo;
  if (IsNamed(plain, "qps_plocm")) return kPseudoMirrored;
  std::array<char, ULOC_FULLNAME_CAPACITY> canonical{};
  UErrorCode error = U_ZERO_ERROR;
  uloc_canonicalize(plain.c_str(), canonical.data(), ULOC_FULLNAME_CAPACITY, &error);
  // The upper half may contain a sort order. A name that was refused leaves no text, which is 0.
  const std::uint32_t languageId = uloc_getLCID(canonical.data()) & 0xFFFF;
  return languageId == 0 ? std::nullopt : std::optional(WithRegion(languageId));
}

std::uint32_t SystemLanguageId() {
  static std::string knownLocale;
  static std::uint32_t languageId = kEnglishUnitedStates;
  static const char* locale = "";
  if (HasEnvironmentChanged()) locale = EnvironmentLocale();
  if (knownLocale != locale) {
    knownLocale = locale;
    languageId = LanguageIdOf(knownLocale).value_or(kEnglishUnitedStates);
  }
  return languageId;
}

}  // namespace AdvancedControl
