#pragma once

#include <string>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// A row of a table that could not be read.
struct CsvFault {
  int line;  ///< From 1.
  QString reason;

  friend bool operator==(const CsvFault&, const CsvFault&) = default;
};

/// A row of a table. It may take several lines, because cells in quotation marks may contain line
/// breaks.
struct CsvRow {
  int line;  ///< Its first line, from 1.
  QStringList cells;
};

struct CsvTable {
  QStringList header;        ///< As written, without surrounding spaces.
  std::vector<CsvRow> rows;  ///< Each with as many cells as the header.
  std::vector<CsvFault> faults;
};

/// Reads comma-separated values as spreadsheets export them. The encoding is UTF-8 or UTF-16, with
/// or without a byte order mark, or else Windows' Western code page. The separator is the comma,
/// semicolon or tab, whichever occurs most often in the header, unless a line such as "sep=;"
/// before the header sets it. Cells may be in quotation marks. Empty lines are skipped, and rows
/// with too few cells are filled up with empty ones. A faulty row does not affect the others.
PROJECTOR_FLEET_EXPORT CsvTable ParseCsv(const QByteArray& bytes);

/// Writes comma-separated values for spreadsheets: UTF-8 with a byte order mark, quoted where
/// necessary. A cell that a spreadsheet would take for a formula gets a leading apostrophe, which
/// `ParseCsv` removes.
PROJECTOR_FLEET_EXPORT QByteArray WriteCsv(const std::vector<QStringList>& rows);

/// The text of a file of unknown encoding.
PROJECTOR_FLEET_EXPORT QString DecodeText(const QByteArray& bytes);

}  // namespace AdvancedControl
