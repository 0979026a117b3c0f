#pragma once

#include <string>
#include <vector>

#include "i18n/SystemLanguage.h"
#include "snapshots/SettingTexts.h"

/// The texts of settings in English.
inline const SettingTexts& Texts() {
  static const std::vector<std::string> folders{TEST_CATALOG_DIR};
  static const SettingTexts texts(folders, kEnglishUnitedStates);
  return texts;
}
