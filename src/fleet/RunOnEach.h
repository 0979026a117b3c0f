#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/JobLoop.h"
#include "fleet/VisitQueue.h"

namespace AdvancedControl {

/// Calls `work` in the loop with the index of each address, in their order. Up to `atOnce` calls
/// run at the same time, but only one for each address. Returns when all are done. `work` must not
/// throw.
PROJECTOR_FLEET_EXPORT void RunOnEach(JobLoop& loop,
                                      const std::vector<VisitQueue::Address>& addresses,
                                      std::size_t atOnce,
                                      const std::function<void(std::size_t)>& work);

}  // namespace AdvancedControl
