#include "i18n/SystemLanguage.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <string_view>

#include <unicode/uloc.h>

namespace AdvancedControl {

namespace {

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

std::uint32_t LanguageIdOf(std::string_view locale) {
  const std::string name(locale.substr(0, locale.find_first_of(".@")));
  if (!IsPlainName(name)) return kEnglishUnitedStates;
  std::array<char, ULOC_FULLNAME_CAPACITY> canonical{};
  UErrorCode error = U_ZERO_ERROR;
  uloc_canonicalize(name.c_str(), canonical.data(), ULOC_FULLNAME_CAPACITY, &error);
  if (U_FAILURE(error) || error == U_STRING_NOT_TERMINATED_WARNING) return kEnglishUnitedStates;
  // The upper half may contain a sort order.
  const std::uint32_t languageId = uloc_getLCID(canonical.data()) & 0xFFFF;
  return languageId == 0 ? kEnglishUnitedStates : WithRegion(languageId);
}

}  // namespace

std::uint32_t SystemLanguageId() {
  static std::string knownLocale;
  static std::uint32_t languageId = LanguageIdOf(knownLocale);
  const char* locale = EnvironmentLocale();
  if (knownLocale != locale) {
    knownLocale = locale;
    languageId = LanguageIdOf(knownLocale);
  }
  return languageId;
}

}  // namespace AdvancedControl
