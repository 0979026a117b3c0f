#pragma once

#include <vector>

/// A file descriptor that reports the signals, as by `signalfd`; they no longer end the program. To
/// be called before any thread starts.
int SignalFile(const std::vector<int>& signals);
