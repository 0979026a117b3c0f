#pragma once

#include <functional>
#include <optional>

#include "device/CPjtInterface.h"

/// Reads one setting; nothing when the read fails.
using Reader = std::optional<int> (*)(CPjtInterface& projector);

/// The reader of a get operation, of one source where the operation takes a source.
template <auto operation, int... source>
std::optional<int> Read(CPjtInterface& projector) {
  short value = 0;
  if (std::invoke(operation, projector, source..., &value) == 0) return {};
  return value;
}
