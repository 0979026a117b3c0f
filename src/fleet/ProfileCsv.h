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

/// What came of a table that was taken into a profile file.
struct CsvImport {
  QByteArray text;  ///< Of the profile file with what was taken; as it was if nothing was.
  std::size_t added = 0;
  std::size_t changed = 0;         ///< Those that the file had, whether or not something differed.
  std::vector<CsvFault> faults{};  ///< Of the rows that were not taken, by line.
  QStringList unused{};            ///< Columns that mean nothing here.
  QString error{};                 ///< Not empty where nothing could be taken: one line.
};

/// Takes the rows of comma-separated values into the text of a profile file, or into
/// `ProfileEdits::kNoProfiles`. A row is that of a projector with its identity, or else with its
/// name; another row adds a projector. Only what the row tells is changed; docs/profiles.md lists
/// the columns.
PROJECTOR_FLEET_EXPORT CsvImport ImportCsv(const QByteArray& profiles, const QByteArray& csv);

/// The profiles as comma-separated values, without passwords.
PROJECTOR_FLEET_EXPORT QByteArray ExportCsv(const std::vector<FleetProfile>& profiles);

}  // namespace AdvancedControl
