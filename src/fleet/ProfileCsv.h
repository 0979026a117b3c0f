#pragma once

#include <cstddef>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/Csv.h"
#include "fleet/FleetProfile.h"

namespace AdvancedControl {

/// The result of importing a table into a profile file.
struct CsvImport {
  QByteArray text;  ///< The new text of the profile file; unchanged if no row was imported.
  std::size_t added = 0;
  std::size_t changed = 0;         ///< Rows for projectors that the file already had.
  std::vector<CsvFault> faults{};  ///< Rows that were not imported, by line.
  /// Headings that are not known, or with a cell for which another column counted.
  QStringList unused{};
  QString error{};  ///< One line; empty unless nothing could be imported.
};

/// Imports a table into the text of a profile file, or into `ProfileEdits::kNoProfiles`. A row
/// changes the projector with the same identity or serial number, or else the one with the same
/// name; any other row adds a projector. Only what the row contains is changed. docs/profiles.md
/// lists the columns.
PROJECTOR_FLEET_EXPORT CsvImport ImportCsv(const QByteArray& profiles, const QByteArray& csv);

/// The profiles as a table, without passwords.
PROJECTOR_FLEET_EXPORT QByteArray ExportCsv(const std::vector<FleetProfile>& profiles);

}  // namespace AdvancedControl
