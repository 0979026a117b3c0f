#pragma once

#include <memory>
#include <string>

#include "Namespace.h"
#include "device/Connect.h"
#include "device/ModelData.h"

namespace AdvancedControl {

/// What a projector has to be known by before it can be watched.
struct FleetTarget {
  std::string id;  ///< Unique in the fleet and the same for ever, whatever the address becomes.
  ProjectorAddress address;
  /// Shared by all projectors of the model. Null for a PJLink projector of which nothing is known.
  std::shared_ptr<const ModelData> model{};
};

}  // namespace AdvancedControl
