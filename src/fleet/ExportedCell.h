#pragma once

#include <utility>

#include <QString>

#include "Namespace.h"
#include "fleet/CsvColumn.h"
#include "fleet/FleetProfile.h"

namespace AdvancedControl {

/// Between the tags in one cell.
inline constexpr QChar kTagSeparator = u'|';

/// The columns of the exported table.
inline constexpr std::pair<CsvColumn, const char*> kExported[] = {
    {CsvColumn::Name, "name"},
    {CsvColumn::Address, "address"},
    {CsvColumn::Port, "port"},
    {CsvColumn::Link, "link"},
    {CsvColumn::Model, "model"},
    {CsvColumn::Identity, "identity"},
    {CsvColumn::Tags, "tags"},
    {CsvColumn::Notes, "notes"},
    {CsvColumn::RatedLampHours, "rated lamp hours"},
    {CsvColumn::Snapshot, "snapshot"}};

/// What the exported table has of a projector; empty if nothing, or if the column is not exported.
QString ExportedCell(const FleetProfile& profile, CsvColumn column);

}  // namespace AdvancedControl
