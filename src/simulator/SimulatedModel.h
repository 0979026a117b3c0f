#pragma once

#include <map>
#include <set>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ModelData.h"
#include "simulator/Setting.h"

namespace AdvancedControl {

/// How a model's projector differs from the settings table.
struct SimulatedModel {
  int pageSet = 5;                                 ///< 1..5.
  std::map<SettingId, SettingRange> ranges;        ///< Instead of the table's, in device values.
  std::map<SettingId, std::vector<int>> values{};  ///< The device values allowed, in list order.
  std::set<SettingId> missing{};                   ///< Commands for these are refused.
};

/// The model that a host describes: its page set, ranges, sources, aspects, gammas and colour
/// temperatures. A range text without two ascending numbers is ignored. Any
/// thread.
PROJECTOR_COMMON_EXPORT SimulatedModel DescribeModel(const ModelData& data);

}  // namespace AdvancedControl
