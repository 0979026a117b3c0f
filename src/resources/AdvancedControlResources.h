#pragma once

#include "Namespace.h"
#include "toolkit/ResourceModule.h"

namespace AdvancedControl {

/// The library's own templates. Any thread.
const ResourceModule& AdvancedControlResources();

}  // namespace AdvancedControl
