#include "i18n/CatalogLanguages.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <QString>
#include <unicode/uldnames.h>
#include <unicode/uloc.h>

#include "i18n/CatalogTexts.h"
#include "i18n/SystemLanguage.h"

namespace AdvancedControl {

namespace {

constexpr std::uint32_t kPrimary = 0x3FF;  // the part of an identifier that leaves out the region
constexpr std::uint32_t kChinesePrimary = 0x04;
constexpr std::uint32_t kChineseTraditional = 1028;

using Buffer = std::array<char, ULOC_FULLNAME_CAPACITY>;

// Language and region: "de_DE" for 1031, "zh_TW" for 1028.
std::string LocaleName(std::uint32_t languageId) {
  if (languageId == kPseudo) return "qps_PLOC";
  if (languageId == kPseudoMirrored) return "qps_PLOCM";
  Buffer locale{};
  Buffer language{};
  Buffer region{};
  UErrorCode error = U_ZERO_ERROR;
  uloc_getLocaleForLCID(languageId, locale.data(), ULOC_FULLNAME_CAPACITY, &error);
  uloc_getLanguage(locale.data(), language.data(), ULOC_FULLNAME_CAPACITY, &error);
  uloc_getCountry(locale.data(), region.data(), ULOC_FULLNAME_CAPACITY, &error);
  if (U_FAILURE(error)) return "en_US";
  return std::string(language.data()) + (region[0] != 0 ? "_" : "") + region.data();
}

std::string LanguagePart(const std::string& locale) { return locale.substr(0, locale.find('_')); }

// The name of a locale's language, and of its script if `withScript`, as a list shows it.
std::string DisplayName(const std::string& locale, const std::string& in, bool withScript) {
  std::string shown = LanguagePart(locale);
  if (withScript) {
    Buffer likely{};
    UErrorCode error = U_ZERO_ERROR;
    uloc_addLikelySubtags(locale.c_str(), likely.data(), ULOC_FULLNAME_CAPACITY, &error);
    const std::string whole = likely.data();
    shown = whole.substr(0, whole.rfind('_'));
  }
  std::array<UDisplayContext, 2> contexts{UDISPCTX_DIALECT_NAMES,
                                          UDISPCTX_CAPITALIZATION_FOR_UI_LIST_OR_MENU};
  UErrorCode error = U_ZERO_ERROR;
  ULocaleDisplayNames* const names =
      uldn_openForContext(in.c_str(), contexts.data(), std::ssize(contexts), &error);
  std::array<char16_t, 128> name{};
  uldn_localeDisplayName(names, shown.c_str(), name.data(), std::ssize(name) - 1, &error);
  uldn_close(names);
  // unreachable: a failure; the names of all languages fit, and memory does not fail here
  return U_FAILURE(error) ? locale : QString::fromUtf16(name.data()).toStdString();
}

bool SameName(const std::string& a, const QString& b) {
  return QString::fromStdString(a).compare(b, Qt::CaseInsensitive) == 0;
}

std::optional<std::uint32_t> IdentifierIn(std::string_view text) {
  std::uint32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::vector<CatalogLanguage> CatalogLanguages(std::span<const std::string> folders) {
  std::vector<CatalogLanguage> languages;
  for (const auto& [id, first] : CatalogTexts(folders).Languages()) {
    const auto known = std::ranges::find(languages, first, &CatalogLanguage::id);
    if (known != languages.end()) {
      known->regions.push_back(id);
    } else {
      languages.push_back({.id = id,
                           .locale = LocaleName(id),
                           .tag = {},
                           .name = {},
                           .englishName = {},
                           .regions = {id}});
    }
  }
  for (CatalogLanguage& language : languages) {
    const std::string plain = LanguagePart(language.locale);
    const bool isShared = std::ranges::count_if(languages, [&plain](const CatalogLanguage& other) {
                            return LanguagePart(other.locale) == plain;
                          }) > 1;
    language.tag = isShared ? language.locale : plain;
    std::ranges::replace(language.tag, '_', '-');
    language.name = DisplayName(language.locale, language.locale, isShared);
    language.englishName = DisplayName(language.locale, "en", isShared);
  }
  std::ranges::sort(languages, {}, &CatalogLanguage::tag);
  return languages;
}

std::optional<std::uint32_t> FindLanguage(std::span<const CatalogLanguage> languages,
                                          std::string_view text) {
  const QString wanted = QString::fromUtf8(text.data(), std::ssize(text)).trimmed();
  for (const CatalogLanguage& language : languages) {
    if (SameName(language.tag, wanted) || SameName(language.name, wanted) ||
        SameName(language.englishName, wanted)) {
      return language.id;
    }
  }
  auto id = IdentifierIn(text);
  if (!id) id = LanguageIdOf(text);
  if (!id) return {};
  std::optional<std::uint32_t> sameLanguage;
  for (const CatalogLanguage& language : languages) {
    if (std::ranges::find(language.regions, *id) != language.regions.end()) return id;
    if ((language.id & kPrimary) == (*id & kPrimary)) sameLanguage = language.id;
  }
  if ((*id & kPrimary) == kChinesePrimary && sameLanguage) {
    return *id == kChineseSingapore ? kChineseSimplified : kChineseTraditional;
  }
  return sameLanguage;
}

std::string LocaleOf(std::uint32_t languageId) { return LocaleName(languageId) + ".UTF-8"; }

bool IsRightToLeft(std::uint32_t languageId) {
  return languageId == kPseudoMirrored ||
         (languageId != kPseudo && uloc_isRightToLeft(LocaleName(languageId).c_str()) != 0);
}

}  // namespace AdvancedControl
