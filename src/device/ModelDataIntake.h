#pragma once

#include <cstdint>
#include <string>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/CModelInfo2.h"
#include "device/CProjectorItem.h"
#include "device/ModelData.h"

namespace AdvancedControl {

/// The arguments of `CPjtInterface::CopyData`.
struct ConnectionData {
  std::int32_t Kind = 0;
  std::int32_t Number = 0;
  std::int32_t Parameter = 0;
  std::string Text1;
  std::string Text2;

  friend bool operator==(const ConnectionData&, const ConnectionData&) = default;
};

// The functions below may be called from any thread.

/// The model data of the record.
PROJECTOR_COMMON_EXPORT ModelData MakeModelData(const CModelInfo2& info);

/// The same from the item's model record, but with the item's own name. An item without a record
/// gives only the name.
PROJECTOR_COMMON_EXPORT ModelData MakeModelData(const CProjectorItem& item);

/// Connection `index` of the record; empty if the record has no such index.
PROJECTOR_COMMON_EXPORT ConnectionData MakeConnectionData(const CModelInfo2& info, int index);

/// The item's connection, with the dotted address as its first text.
PROJECTOR_COMMON_EXPORT ConnectionData MakeConnectionData(const CProjectorItem& item);

/// "a.b.c.d", `a` from the most significant byte.
PROJECTOR_COMMON_EXPORT std::string DottedAddress(std::uint32_t address);

}  // namespace AdvancedControl
