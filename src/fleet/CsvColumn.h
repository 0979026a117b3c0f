#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "Namespace.h"

namespace AdvancedControl {

/// The meaning of a column in a table of projectors.
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

/// The meaning of a heading; nothing if it is unknown. Case, spaces and punctuation are ignored.
std::optional<CsvColumn> CsvColumnOf(const QString& heading);

}  // namespace AdvancedControl
