#pragma once

#include <string>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// A line of a table that was not understood.
struct CsvFault {
  int line;  ///< From 1.
  QString reason;

  friend bool operator==(const CsvFault&, const CsvFault&) = default;
};

/// A row of a table. Cells in quotation marks may hold line breaks, so that it may take several
/// lines.
struct CsvRow {
  int line;  ///< In which it begins, from 1.
  QStringList cells;
};

struct CsvTable {
  QStringList header;        ///< As it was written, without spaces around.
  std::vector<CsvRow> rows;  ///< With as many cells as the header.
  std::vector<CsvFault> faults;
};

/// Reads comma-separated values as spreadsheets export them: in UTF-8 or UTF-16, with or without a
/// byte order mark, or else in Windows' Western code page; separated by commas, semicolons or tabs,
/// whichever the header has most of, or a line "sep=;" before it says; cells may be in quotation
/// marks. Empty lines count for nothing. Rows with too few cells are filled up. What is wrong in
/// one row does not touch the others.
PROJECTOR_FLEET_EXPORT CsvTable ParseCsv(const QByteArray& bytes);

/// Writes comma-separated values that spreadsheets open as they are: in UTF-8 with a byte order
/// mark, quoted where necessary. A cell that a spreadsheet would take for a formula gets an
/// apostrophe before it, which `ParseCsv` takes off.
PROJECTOR_FLEET_EXPORT QByteArray WriteCsv(const std::vector<QStringList>& rows);

/// The text of a file of unknown encoding.
PROJECTOR_FLEET_EXPORT QString DecodeText(const QByteArray& bytes);

}  // namespace AdvancedControl
