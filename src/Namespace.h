#pragma once

// Everything in the libraries except the classes named C… is in the namespace AdvancedControl. It
// is inline in our own build, so our programs and tests need not name it. For a host of the
// installed libraries it is not, so the host can have its own global `Range`.
#ifdef ADVANCED_CONTROL_INSTALLED
namespace AdvancedControl {}
#else
inline namespace AdvancedControl {}
#endif
