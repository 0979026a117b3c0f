#pragma once

#include <memory>
#include <string>

#include "Namespace.h"
#include "device/Connect.h"
#include "device/ModelData.h"

namespace AdvancedControl {

/// The data needed to watch a projector.
struct FleetTarget {
  std::string id;  ///< Unique in the fleet; does not change when the address does.
  ProjectorAddress address;
  /// Shared by all projectors of the model. Null for a PJLink projector of which nothing is known.
  std::shared_ptr<const ModelData> model{};
};

}  // namespace AdvancedControl
