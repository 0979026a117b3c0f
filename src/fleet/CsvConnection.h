#pragma once

#include <QString>

#include "Namespace.h"
#include "fleet/CsvCells.h"
#include "fleet/FleetProfile.h"

namespace AdvancedControl {

/// Where a row says that a projector is.
struct CsvConnection {
  QString link;  ///< As in a profile file.
  ProfileConnection connection;
};

/// Whether a column tells where a projector is, or its password.
bool IsOfConnection(CsvColumn column);

/// Reads an address as people write it, with its port in it or in a column of its own. Throws
/// `WrongRow`, also if the link is not one of the address.
CsvConnection ConnectionOf(const CsvCells& cells);

/// Adds what a row does not say of a projector's connection but stays so: the link if it has only a
/// new host, and its port too unless the link is new; the speed if it has only a new serial port.
/// If the row has nothing new of the connection, removes all cells of it.
void CompleteConnection(CsvCells& cells, const FleetProfile& present);

}  // namespace AdvancedControl
