#pragma once

#include <QString>

#include "Namespace.h"
#include "fleet/CsvColumn.h"
#include "fleet/FleetProfile.h"

namespace AdvancedControl {

/// Between the tags in one cell.
inline constexpr QChar kTagSeparator = u'|';

/// What the exported table has of a projector; empty if nothing, or if the column is not exported.
QString ExportedCell(const FleetProfile& profile, CsvColumn column);

}  // namespace AdvancedControl
