#pragma once

#include <cstdint>
#include <string>

#include "ProjectorCommonExport.h"
#include "device/ModelData.h"

/// The short model record, for hosts without series codes and ranges. A value: copying it copies
/// every member.
class PROJECTOR_COMMON_EXPORT CModelInfo {
 public:
  CModelInfo() = default;
  CModelInfo(const CModelInfo& other);
  CModelInfo& operator=(const CModelInfo& other);

  std::string ModelName;
  std::int32_t DialogType = 0;  ///< Page set 1..5.
  AdvancedControl::SourceList MySourceList;
  AdvancedControl::CountedList AspectList;
  AdvancedControl::CountedList GammaList;
  AdvancedControl::CountedList ColorTempList;
};
