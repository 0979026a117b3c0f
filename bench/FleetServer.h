#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

/// Many projectors in a process of their own, as small as one can be made: each answers at once,
/// and always the same.
class FleetServer {
 public:
  enum class Protocol { PjLink, Wire };

  /// Each `silentOne`th projector accepts connections and says nothing; 0 for none.
  FleetServer(Protocol protocol, int projectors, int silentOne);
  ~FleetServer();
  FleetServer(const FleetServer&) = delete;
  FleetServer& operator=(const FleetServer&) = delete;

  /// One for each projector, at 127.0.0.1.
  const std::vector<std::uint16_t>& Ports() const { return ports_; }

 private:
  std::vector<std::uint16_t> ports_;
  pid_t process_ = -1;
};
