#pragma once

#include <cstdint>
#include <map>

#include <QString>

/// What a model's dialog calls the settings behind the generic commands, in the catalog's language,
/// by command code. A setting that has no row is called as the simulation calls it.
std::map<std::uint16_t, QString> SettingNames(int dialogType, int modelCode);
