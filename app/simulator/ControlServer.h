#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "app/simulator/ServedProjectors.h"
#include "simulator/TcpListener.h"

/// The syntax of faults, for help and errors.
inline constexpr char kFaultNames[] =
    "none, refuse, fail-read, silent, late MILLISECONDS, cut BYTES, garbage, trickle";

/// Parses a fault; nothing if the text is not one.
std::optional<ServiceFault> ParseFault(const QString& text);

/// Accepts commands that set faults of the served projectors, one per line ("2 late 300", "*
/// none"), and answers each with "ok" or an error.
class ControlServer final {
 public:
  explicit ControlServer(ServedProjectors& projectors);

  /// Listens at the loopback address; 0 chooses a free port. Returns the port, or 0 on failure.
  std::uint16_t Listen(std::uint16_t port);

 private:
  QString Execute(const QString& line);

  ServedProjectors& projectors_;
  TcpListener server_;
};
