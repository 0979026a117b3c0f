#pragma once

#include <map>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "Namespace.h"
#include "fleet/CsvColumn.h"

namespace AdvancedControl {

/// The translation context of messages about tables.
struct ProfileCsv {
  Q_DECLARE_TR_FUNCTIONS(ProfileCsv)
};

/// Thrown for a row that cannot be taken.
struct WrongRow {
  QString reason;
};

/// The cells of a row by their meaning; an empty cell changes nothing. Several columns may be tags.
using CsvCells = std::map<CsvColumn, QStringList>;

/// The first cell of a column; empty if there is none.
inline QString One(const CsvCells& cells, CsvColumn column) {
  const auto found = cells.find(column);
  return found == cells.end() ? QString() : found->second.first();
}

}  // namespace AdvancedControl
