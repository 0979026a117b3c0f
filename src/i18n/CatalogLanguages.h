#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"

namespace AdvancedControl {

/// A language that the catalog modules have texts in.
struct CatalogLanguage {
  std::uint32_t id;                    ///< The system's language identifier, such as 1031.
  std::string locale;                  ///< Its locale, such as "de_DE".
  std::string tag;                     ///< The shortest tag that means it: "de", "zh-TW".
  std::string name;                    ///< In the language itself: "Deutsch".
  std::string englishName;             ///< "German".
  std::vector<std::uint32_t> regions;  ///< All identifiers that have these texts, also `id`.
};

/// The languages of all modules in `folders`, by tag. Skips damaged modules. May be called from
/// any thread.
PROJECTOR_SETTINGS_EXPORT std::vector<CatalogLanguage> CatalogLanguages(
    std::span<const std::string> folders);

/// The identifier of the language that the user calls `text`: a tag or the name of a locale ("de",
/// "zh-TW", "pt_BR.UTF-8"), a name of the language ("Deutsch", "german"), or an identifier
/// ("1031"). Regions that the modules do not list get the language itself, so "en-GB" is 1033.
/// Nothing if none of `languages` is meant. Any thread.
PROJECTOR_SETTINGS_EXPORT std::optional<std::uint32_t> FindLanguage(
    std::span<const CatalogLanguage> languages, std::string_view text);

/// The value of LC_ALL that makes `languageId` the system language: "de_AT.UTF-8" for 3079. Any
/// thread.
PROJECTOR_SETTINGS_EXPORT std::string LocaleOf(std::uint32_t languageId);

/// Whether the language is written from right to left. Any thread.
PROJECTOR_SETTINGS_EXPORT bool IsRightToLeft(std::uint32_t languageId);

}  // namespace AdvancedControl
