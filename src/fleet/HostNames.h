#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/NameResolver.h"

namespace AdvancedControl {

/// The addresses of host names. Each name is looked up at most once in ten minutes, or in three
/// seconds if it was not found: the name server may not have answered yet.
class HostNames {
 public:
  /// `wakes` as for `NameResolver`; it becomes readable when `Take` has an answer.
  explicit HostNames(int wakes) : resolver_(wakes) {}

  bool IsKnown(const std::string& name) const;
  /// The number of the address to connect to first, for a known name.
  std::size_t First(const std::string& name) const { return known_.at(name).first; }
  /// The address with a number, which goes on with the first one behind the last; nothing where no
  /// host has the name.
  std::optional<SocketAddress> AddressOf(const std::string& name, std::uint16_t port,
                                         std::size_t number) const;
  /// How many addresses a known name has.
  std::size_t Count(const std::string& name) const { return known_.at(name).addresses.size(); }
  /// Reports that the address could not be connected to. If it was the first one, the next one is
  /// now; others may have reported it before.
  void TakeFailure(const std::string& name, std::size_t number);

  /// Looks a name up for somebody.
  void LookUp(std::uint32_t asker, const std::string& name) { resolver_.LookUp(asker, name); }
  struct Answer {
    std::uint32_t asker;
    std::string name;  ///< Known from now on.
  };
  std::vector<Answer> Take();

 private:
  struct Known {
    std::vector<SocketAddress> addresses;
    std::size_t first = 0;
    SessionTime time{};
  };

  NameResolver resolver_;
  std::unordered_map<std::string, Known> known_;
};

}  // namespace AdvancedControl
