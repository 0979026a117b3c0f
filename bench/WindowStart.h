#pragma once

/// Before a kind of window, this makes the program one that shows it and ends.
inline constexpr const char* kPaintOption = "--paint";

/// Shows a window, and prints how many seconds after its call that was painted and how much memory
/// in MiB the process then had. The last argument is the kind: "bare", "plain", or the profile file
/// of a window of ours. Does not return.
[[noreturn]] void PaintWindow(int argc, char** argv);
