#pragma once

#include <chrono>
#include <memory>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "device/Connect.h"
#include "device/ProjectorChannel.h"
#include "fleet/JobLoop.h"

namespace AdvancedControl {

/// A channel for work in a `JobLoop`: other work goes on while it waits for the projector. `loop`
/// must outlive it; `timeOut` is for connecting, and for each answer. It is a `PjLinkChannel` or a
/// `WireJobChannel`; without an address every command is unanswered at once. Never null.
PROJECTOR_FLEET_EXPORT std::shared_ptr<ProjectorChannel> MakeJobChannel(
    JobLoop& loop, const ProjectorAddress& address, std::chrono::milliseconds timeOut);

}  // namespace AdvancedControl
