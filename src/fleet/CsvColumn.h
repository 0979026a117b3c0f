#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "Namespace.h"

namespace AdvancedControl {

/// What a column of a table of projectors tells.
enum class CsvColumn : std::uint8_t {
  Name,
  Address,
  Port,
  Link,
  Password,
  Family,
  Model,
  Identity,
  Serial,
  Mac,
  Tags,
  Notes,
  RatedLampHours,
  Snapshot,
};

/// By the column's heading, whose case, spaces and marks do not count.
std::optional<CsvColumn> CsvColumnOf(const QString& heading);

}  // namespace AdvancedControl
