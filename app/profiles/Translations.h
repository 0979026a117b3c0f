#pragma once

#include <cstdint>

#include <QStringList>

/// Shows the texts of the program and of Qt, and numbers and dates, in this language; 1033 is
/// English. What the language lacks is shown in English. The texts of settings are not changed:
/// they come from the catalog. Needs an application object; replaces what an earlier call chose.
void InstallTranslations(std::uint32_t languageId);

/// The same for the language that the arguments name with --language, or that of the system. An
/// argument that names none is reported by the reader of the arguments.
void InstallTranslations(const QStringList& arguments);
