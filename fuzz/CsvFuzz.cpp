// Any bytes as a table: rows of as many cells as the header, which are the same once written.

#include <cstddef>
#include <cstdint>

#include "fleet/Csv.h"
#include "fuzz/Check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const CsvTable table = ParseCsv(bytes);
  if (table.header.isEmpty()) {
    Check(table.rows.empty() && !table.faults.empty());
    return 0;
  }
  int line = 0;
  std::vector<QStringList> rows{table.header};
  for (const CsvRow& row : table.rows) {
    Check(row.line > line && row.cells.size() == table.header.size());
    line = row.line;
    rows.push_back(row.cells);
  }
  // Nothing says what separates single cells, and half a character cannot be written.
  if (table.header.size() < 2 || table.header.first().startsWith("sep=", Qt::CaseInsensitive)) {
    return 0;
  }
  for (const QStringList& row : rows) {
    for (const QString& cell : row) {
      if (!QStringView(cell).isValidUtf16()) return 0;
    }
  }
  const CsvTable again = ParseCsv(WriteCsv(rows));
  Check(again.header == table.header && again.rows.size() == table.rows.size());
  for (std::size_t i = 0; i < again.rows.size(); ++i) {
    Check(again.rows[i].cells == table.rows[i].cells);
  }
  return 0;
}
