#pragma once

#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "settings/PageSets.h"
#include "settings/Rows.h"

namespace AdvancedControl {

// The rows of every page and pop-up. Any thread.

#define PAGE(identifier, number, pageClass) \
  PROJECTOR_SETTINGS_EXPORT extern const PageTable k##identifier##Rows;
#include "settings/Pages.def"

// The pop-ups of the pages.
PROJECTOR_SETTINGS_EXPORT extern const PageTable kServiceRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kGammaRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kColorTempRows;
inline constexpr const PageTable* kPopUpTables[] = {&kServiceRows, &kGammaRows, &kColorTempRows};

/// The rows of a page.
PROJECTOR_SETTINGS_EXPORT const PageTable& TableOf(PageId page);

/// A pop-up of a page: its rows, the control of the page's row that it belongs to, and the button
/// that opens it.
struct PagePopUp {
  const PageTable* table;
  int control;
  int button;
};
/// The pop-ups that a page opens on this model.
PROJECTOR_SETTINGS_EXPORT std::vector<PagePopUp> PopUpsOf(PageId page, const ModelData& model);

}  // namespace AdvancedControl
