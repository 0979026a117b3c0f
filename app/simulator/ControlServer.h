#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include <QString>

#include "app/simulator/Faults.h"
#include "simulator/TcpListener.h"

/// Served projectors that the control port can disturb.
class ControlledProjectors {
 public:
  virtual ~ControlledProjectors() = default;
  virtual std::size_t Count() const = 0;
  virtual void SetFault(std::size_t projector, const ServiceFault& fault) = 0;
  /// Executes a command that sets no fault: for one projector, or for all if none is given. Returns
  /// the answer; nothing if the command is unknown.
  virtual std::optional<QString> Obey(std::optional<std::size_t> projector, const QString& line) {
    static_cast<void>(projector);
    static_cast<void>(line);
    return std::nullopt;
  }
};

/// Accepts commands that set faults of the served projectors, one per line ("2 late 300", "* silent
/// 5%"), and answers each with "ok" or an error.
class ControlServer final {
 public:
  /// `seed` determines which projectors have the fault of a share.
  ControlServer(ControlledProjectors& projectors, std::uint64_t seed);

  /// Listens at the loopback address; 0 chooses a free port. Returns the port, or 0 on failure.
  std::uint16_t Listen(std::uint16_t port);

 private:
  QString Execute(const QString& line);

  ControlledProjectors& projectors_;
  const std::uint64_t seed_;
  TcpListener server_;
};
