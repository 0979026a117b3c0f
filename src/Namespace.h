#pragma once

// Everything of the libraries but the classes named C… is in the namespace AdvancedControl. Our own
// programs and tests leave the name out; an installed host names it, and may have a Range of its own.
#ifdef ADVANCED_CONTROL_INSTALLED
namespace AdvancedControl {}
#else
inline namespace AdvancedControl {}
#endif
