#pragma once

#include <cstdint>
#include <map>

#include <QString>

/// Names of the settings behind the generic commands, by command code, in the catalog's language:
/// the captions of the model's dialog, or the simulation's names for settings without a row.
std::map<std::uint16_t, QString> SettingNames(int dialogType, int modelCode);
