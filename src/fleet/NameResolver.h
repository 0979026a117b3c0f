#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Namespace.h"
#include "fleet/SocketAddress.h"

namespace AdvancedControl {

/// Looks up host names on two threads, which all resolvers of the process share and which start
/// with the first names. The system function for it cannot be interrupted: a lookup that is running
/// at the end continues by itself, and its result is dropped.
class NameResolver {
 public:
  struct Found {
    std::uint32_t asker;
    std::string name;
    std::vector<SocketAddress> addresses;  ///< Without a port; empty where there is no such name.
  };

  static constexpr int kNoFile = -1;
  /// After each lookup the event file `wakes`, which is duplicated, becomes readable, unless it is
  /// `kNoFile`.
  explicit NameResolver(int wakes);
  ~NameResolver();
  NameResolver(const NameResolver&) = delete;
  NameResolver& operator=(const NameResolver&) = delete;

  void LookUp(std::uint32_t asker, const std::string& name);
  std::vector<Found> Take();

 private:
  struct Client;
  struct Lookups;
  const std::shared_ptr<Client> client_;
};

}  // namespace AdvancedControl
