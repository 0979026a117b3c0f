#pragma once

/// Shows the texts of this program and of the toolkit in the language that the catalog has, and
/// numbers as that language writes them. Needs an application object; the dialogs' own texts are in
/// the catalog.
void InstallTranslations();
