#pragma once

#include <Qt>

#include "snapshots/SettingTexts.h"
#include "snapshots/Snapshot.h"

class QTreeWidget;

/// Where an entry of a preset's tree has the position of its setting.
inline constexpr int kPlaceRole = Qt::UserRole;

/// Makes an empty tree list the settings of a preset by page, with their values, as the texts of
/// this model call them.
void FillPresetTree(QTreeWidget& tree, const Snapshot& preset, const ModelSettings& model,
                    const SettingTexts& texts);
