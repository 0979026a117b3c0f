#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "app/simulator/ServedProjectors.h"
#include "simulator/TcpListener.h"

/// How faults are written.
inline constexpr char kFaultNames[] =
    "none, refuse, fail-read, silent, late MILLISECONDS, cut BYTES, garbage, trickle";

/// A fault as people write it; nothing for any other text.
std::optional<ServiceFault> ParseFault(const QString& text);

/// Takes faults while the projectors are served, a line each ("2 late 300", "* none"), and answers
/// each with "ok" or with what is wrong.
class ControlServer final {
 public:
  explicit ControlServer(ServedProjectors& projectors);

  /// At the loopback address; `port` 0 takes a free one. The port, or 0 when it cannot be had.
  std::uint16_t Listen(std::uint16_t port);

 private:
  QString Obey(const QString& line);

  ServedProjectors& projectors_;
  TcpListener server_;
};
