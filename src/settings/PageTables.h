#pragma once

#include <vector>

#include "AdvancedControlExport.h"
#include "settings/PageSets.h"
#include "settings/Rows.h"

inline namespace AdvancedControl {

// The rows of every page, one line a row.

ADVANCED_CONTROL_EXPORT extern const PageTable kStatusRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kMainRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kMain2Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kPicture1Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kPicture12Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kPicture2Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kPicture22Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kInputRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kInput2Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kAutoRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kAuto2Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOptionRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOption2Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kScreenRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOtherRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kImageRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kImage4Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kVideoRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kInput4Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kScreen4Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kSetup4Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOption4Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOther4Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kPicRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kPictureType5Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kInputType5Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kSetupType5Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kAudioType5Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOptionType5Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kSetupRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kInput3Rows;
ADVANCED_CONTROL_EXPORT extern const PageTable kOption3Rows;

// The pop-ups of the pages.
ADVANCED_CONTROL_EXPORT extern const PageTable kServiceRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kGammaRows;
ADVANCED_CONTROL_EXPORT extern const PageTable kColorTempRows;

/// The rows of a page.
ADVANCED_CONTROL_EXPORT const PageTable& TableOf(PageId page);

/// A pop-up of a page: its rows, the control of the page's row that it belongs to, and the button
/// that opens it.
struct PagePopUp {
  const PageTable* table;
  int control;
  int button;
};
/// The pop-ups that a page opens on this model.
ADVANCED_CONTROL_EXPORT std::vector<PagePopUp> PopUpsOf(PageId page, const ModelData& model);

}  // namespace AdvancedControl
