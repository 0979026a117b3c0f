#pragma once

#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "settings/ListEntry.h"

namespace AdvancedControl {

/// Function codes of the my-button lists, for models without their own list. Each list shows the
/// first few of them.
inline constexpr int MyButtonTable[] = {0,  4,  3,  5,  2,  1,  6,  16, 17,
                                        18, 19, 20, 21, 22, 23, 24, -1};  // −1 marks the end

/// The value of the entry that shows, on some models, an assigned function that is not in the list.
/// Choosing it sends nothing.
inline constexpr int kOtherFunction = 255;
inline constexpr ModelCodes kCodesWithOtherFunction{44, 49, 50, 51, 53, 54};

PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> MyButtonEntries(const ModelData& model);

}  // namespace AdvancedControl
