#pragma once

#include <vector>

#include "ProjectorSettingsExport.h"
#include "settings/PageSets.h"
#include "settings/Rows.h"

inline namespace AdvancedControl {

// The rows of every page, one line a row.

PROJECTOR_SETTINGS_EXPORT extern const PageTable kStatusRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kMainRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kMain2Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kPicture1Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kPicture12Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kPicture2Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kPicture22Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kInputRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kInput2Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kAutoRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kAuto2Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOptionRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOption2Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kScreenRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOtherRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kImageRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kImage4Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kVideoRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kInput4Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kScreen4Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kSetup4Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOption4Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOther4Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kPicRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kPictureType5Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kInputType5Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kSetupType5Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kAudioType5Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOptionType5Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kSetupRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kInput3Rows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kOption3Rows;

// The pop-ups of the pages.
PROJECTOR_SETTINGS_EXPORT extern const PageTable kServiceRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kGammaRows;
PROJECTOR_SETTINGS_EXPORT extern const PageTable kColorTempRows;

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
