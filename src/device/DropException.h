#pragma once

#include "Namespace.h"

namespace AdvancedControl {

/// For a `catch (...)` behind which the program goes on: drops the exception, but not the news that
/// memory ran out. What a failed allocation cut short may have left anything behind, locks of the
/// toolkit's included, so that the next command may wait for ever. Whether the process goes on all
/// the same is its program's affair: the `std::new_handler` that it has set is called and may end
/// it. Without one the exception is dropped like any other.
void DropException() noexcept;

}  // namespace AdvancedControl
