#pragma once

#include <vector>

#include "settings/PageSets.h"
#include "settings/Rows.h"

// The rows of every page, one line a row.

extern const PageTable kStatusRows;
extern const PageTable kMainRows;
extern const PageTable kMain2Rows;
extern const PageTable kPicture1Rows;
extern const PageTable kPicture12Rows;
extern const PageTable kPicture2Rows;
extern const PageTable kPicture22Rows;
extern const PageTable kInputRows;
extern const PageTable kInput2Rows;
extern const PageTable kAutoRows;
extern const PageTable kAuto2Rows;
extern const PageTable kOptionRows;
extern const PageTable kOption2Rows;
extern const PageTable kScreenRows;
extern const PageTable kOtherRows;
extern const PageTable kImageRows;
extern const PageTable kImage4Rows;
extern const PageTable kVideoRows;
extern const PageTable kInput4Rows;
extern const PageTable kScreen4Rows;
extern const PageTable kSetup4Rows;
extern const PageTable kOption4Rows;
extern const PageTable kOther4Rows;
extern const PageTable kPicRows;
extern const PageTable kPictureType5Rows;
extern const PageTable kInputType5Rows;
extern const PageTable kSetupType5Rows;
extern const PageTable kAudioType5Rows;
extern const PageTable kOptionType5Rows;
extern const PageTable kSetupRows;
extern const PageTable kInput3Rows;
extern const PageTable kOption3Rows;

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
std::vector<PagePopUp> PopUpsOf(PageId page, const ModelData& model);
