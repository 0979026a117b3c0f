#pragma once

#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"

namespace AdvancedControl {

/// Whether the text is a host name or an IP address, without scheme and port. Any thread.
PROJECTOR_COMMON_EXPORT bool IsHostAddress(std::string_view text);

}  // namespace AdvancedControl
