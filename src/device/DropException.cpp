#include "device/DropException.h"

#include <new>

namespace AdvancedControl {

void DropException() noexcept {
  try {
    try {
      throw;
    } catch (const std::bad_alloc&) {
      if (const std::new_handler handler = std::get_new_handler()) handler();
    }
  } catch (...) {  // the handler may throw too
  }
}

}  // namespace AdvancedControl
