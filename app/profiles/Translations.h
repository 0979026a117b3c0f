#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include <QStringList>

/// Shows the texts of the program and of Qt, and numbers and dates, in this language; 1033 is
/// English. What the language lacks is shown in English. The texts of settings are not changed:
/// they come from the catalog. Needs an application object; replaces what an earlier call chose.
void InstallTranslations(std::uint32_t languageId);

/// The same, with the texts of the first of these folders that has any.
void InstallTranslations(std::uint32_t languageId, std::span<const std::string> folders);

/// The language that the arguments name with --language; nothing if there is no such argument, or
/// no language of this name.
std::optional<std::uint32_t> NamedLanguage(const QStringList& arguments);
