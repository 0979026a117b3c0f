#pragma once

#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "settings/ListEntry.h"

namespace AdvancedControl {

/// Function codes of the my-button lists of models that bring no list of their own; the list offers
/// the first of them.
inline constexpr int MyButtonTable[] = {0,  4,  3,  5,  2,  1,  6,  16, 17,
                                        18, 19, 20, 21, 22, 23, 24, -1};  // -1: 0xFFFFFFFF, the end

/// Stands in the lists of some models for an assignment that the list does not offer; nobody can
/// choose it.
inline constexpr int kOtherFunction = 255;
inline constexpr ModelCodes kCodesWithOtherFunction{44, 49, 50, 51, 53, 54};

PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> MyButtonEntries(const ModelData& model);

}  // namespace AdvancedControl
