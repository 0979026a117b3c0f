#pragma once

#include <cstdint>
#include <string>

#include "device/CModelInfo2.h"

/// One projector of a host's list: its name, its connection and its model.
struct CProjectorItem {
  std::string Name;  ///< Used instead of the model's name; UTF-8.
  std::int32_t ConnectionKind = 0;
  std::int32_t ConnectionNumber = 0;
  std::int32_t ConnectionParameter = 0;
  std::uint32_t Address = 0;  ///< Network address, its first part in the most significant byte.
  AdvancedControl::NameSlot ConnectionText2{};
  const CModelInfo2* Model = nullptr;  ///< Not owned; null if nothing is known of the model.
};
