#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"

namespace AdvancedControl {

/// Language identifiers that the catalog treats specially.
inline constexpr std::uint32_t kEnglishUnitedStates = 1033;
inline constexpr std::uint32_t kChineseSimplified = 2052;
inline constexpr std::uint32_t kChineseSingapore = 4100;  ///< Simplified too.

/// The languages made from English to test programs: "qps-ploc" has accents and longer texts, and
/// "qps-plocm" is for windows that run from right to left.
inline constexpr std::uint32_t kPseudo = 1281;
inline constexpr std::uint32_t kPseudoMirrored = 2559;

/// The language identifier of a locale's name or language tag, such as "de_AT.UTF-8" or "zh-Hant".
/// A name without a region gets the language's default region. Nothing for "C", "POSIX" and names
/// without an identifier. Any thread.
PROJECTOR_SETTINGS_EXPORT std::optional<std::uint32_t> LanguageIdOf(std::string_view name);

/// The system default language identifier: that of the locale in LC_ALL, LC_MESSAGES or LANG, the
/// first one that is set and not empty. Without a locale, or with one that has no identifier, the
/// result is 1033. Plain Chinese is 2052.
///
/// Reads the environment in each call. User-interface thread only.
PROJECTOR_SETTINGS_EXPORT std::uint32_t SystemLanguageId();

}  // namespace AdvancedControl
