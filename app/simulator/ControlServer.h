#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include <QString>

#include "app/simulator/Faults.h"
#include "simulator/TcpListener.h"

/// Projectors that are disturbed while they are served.
class ControlledProjectors {
 public:
  virtual ~ControlledProjectors() = default;
  virtual std::size_t Count() const = 0;
  virtual void SetFault(std::size_t projector, const ServiceFault& fault) = 0;
  /// Carries out a line that is no fault's; without a projector it is for all of them. The answer,
  /// nothing if the line is not understood.
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
  /// `seed` says who has the fault of a share.
  ControlServer(ControlledProjectors& projectors, std::uint64_t seed);

  /// Listens at the loopback address; 0 chooses a free port. Returns the port, or 0 on failure.
  std::uint16_t Listen(std::uint16_t port);

 private:
  QString Execute(const QString& line);

  ControlledProjectors& projectors_;
  const std::uint64_t seed_;
  TcpListener server_;
};
