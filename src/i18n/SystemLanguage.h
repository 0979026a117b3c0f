#pragma once

#include <cstdint>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"

namespace AdvancedControl {

/// Language identifiers that the catalog treats specially.
inline constexpr std::uint32_t kEnglishUnitedStates = 1033;
inline constexpr std::uint32_t kChineseSimplified = 2052;

/// The system default language identifier: that of the locale in LC_ALL, LC_MESSAGES or LANG, the
/// first one that is set and not empty. Encoding and modifier are ignored. A locale without a
/// region gets the language's default region, so plain Chinese is 2052. Without a locale, and for
/// "C", "POSIX" and locales without an identifier, the result is 1033.
///
/// Reads the environment in each call. User-interface thread only.
PROJECTOR_SETTINGS_EXPORT std::uint32_t SystemLanguageId();

}  // namespace AdvancedControl
