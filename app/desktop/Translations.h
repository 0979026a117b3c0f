#pragma once

/// Sets the language of this program's and Qt's texts, and of numbers, to that of the catalog. The
/// texts of the settings dialogs come from the catalog itself. Needs an application object.
void InstallTranslations();
