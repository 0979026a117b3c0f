#pragma once

#include <QByteArray>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/FleetWork.h"

namespace AdvancedControl {

/// The file that undoes a whole job, described in docs/fleet.md: JSON with a snapshot for each
/// projector that was changed.
PROJECTOR_FLEET_EXPORT QByteArray WriteFleetUndo(const SnapshotsById& undo);

struct FleetUndoContents {
  SnapshotsById undo;
  QString error;  ///< One line; empty on success.
};
PROJECTOR_FLEET_EXPORT FleetUndoContents ReadFleetUndo(const QByteArray& text);

}  // namespace AdvancedControl
