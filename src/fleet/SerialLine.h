#pragma once

#include <cstdint>
#include <string>

#include "Namespace.h"

namespace AdvancedControl {

/// A serial port that is read and written without waiting: 8 data bits, no parity, 1 stop bit, no
/// flow control. No other program can open it meanwhile.
namespace SerialLine {

enum class Problem : std::uint8_t {
  None,
  NotThere,  ///< There is no such port, or it cannot be set to this speed.
  InUse,     ///< Another program has it.
};

/// An open file, or −1 and the problem. `baud` is in bits per second.
int Open(const std::string& device, std::int32_t baud, Problem& problem);

/// Closes the port, which other programs can then open. Drops what was not sent.
void Close(int file);

}  // namespace SerialLine

}  // namespace AdvancedControl
