#pragma once

#include <cstdint>
#include <string>

#include "ProjectorCommonExport.h"
#include "device/CModelInfo2.h"
#include "device/CProjectorItem.h"
#include "device/ModelData.h"

/// What `CPjtInterface::CopyData` takes.
struct ConnectionData {
  std::int32_t Kind = 0;
  std::int32_t Number = 0;
  std::int32_t Parameter = 0;
  std::string Text1;
  std::string Text2;

  friend bool operator==(const ConnectionData&, const ConnectionData&) = default;
};

/// Everything that the record says of the model.
PROJECTOR_COMMON_EXPORT ModelData MakeModelData(const CModelInfo2& info);

/// The same from the item's model record, under the item's own name. An item without a record
/// gives the name alone.
PROJECTOR_COMMON_EXPORT ModelData MakeModelData(const CProjectorItem& item);

/// Connection `index` of the record; an index that the record does not have gives an empty one.
PROJECTOR_COMMON_EXPORT ConnectionData MakeConnectionData(const CModelInfo2& info, int index);

/// The item's connection; its first text is the dotted address.
PROJECTOR_COMMON_EXPORT ConnectionData MakeConnectionData(const CProjectorItem& item);

/// "a.b.c.d", `a` from the most significant byte.
PROJECTOR_COMMON_EXPORT std::string DottedAddress(std::uint32_t address);
