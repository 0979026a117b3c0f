#pragma once

#include "Namespace.h"

namespace AdvancedControl {

/// For a `catch (...)` after which the program continues: drops the current exception. If it is
/// `std::bad_alloc`, first calls the program's `std::new_handler`, if there is one, which may end
/// the process: code interrupted by a failed allocation, for example in Qt, may still hold locks,
/// and the next command could wait for ever. Any thread.
void DropException() noexcept;

}  // namespace AdvancedControl
