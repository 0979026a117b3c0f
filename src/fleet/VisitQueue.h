#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "fleet/FleetNetwork.h"

namespace AdvancedControl {

/// The peers that wait to connect, in the order of their coming. Only one peer uses an address at a
/// time, and none uses it while it is held.
class VisitQueue {
 public:
  using Peer = FleetNetwork::Peer;
  /// Host and port, or the path of a serial port and 0.
  using Address = std::pair<std::string, std::uint16_t>;

  /// Adds a peer at the end, unless it waits or has its turn.
  void Add(Peer peer, const Address& address);
  /// Gives the first peer whose address is free its turn, which lasts until `Leave`.
  std::optional<Peer> Next();
  /// Whether `Next` would return one.
  bool HasNext() const { return !ready_.empty(); }
  bool Has(Peer peer) const { return places_.contains(peer); }
  /// Ends the turn of a peer, or its waiting.
  void Leave(Peer peer);

  /// Reserves an address, so that no peer gets a turn there until `Release` has been called as
  /// often as `Hold`. Returns the peer that has its turn there; the caller must end that turn.
  std::optional<Peer> Hold(const Address& address);
  void Release(const Address& address);

 private:
  /// Numbered in the order of coming.
  using Ticket = std::pair<std::uint64_t, Peer>;
  struct Line {
    std::vector<Ticket> tickets{};
    bool isUsed = false;  ///< By the first one, whose turn it is.
    int holds = 0;
  };
  using Lines = std::map<Address, Line>;
  struct Place {
    Lines::iterator line;
    std::uint64_t number;
  };

  void CallFirst(const Line& line);
  void DropIfUnused(Lines::iterator line);

  Lines lines_;
  std::unordered_map<Peer, Place> places_;
  std::set<Ticket> ready_;  ///< The first of each line that is neither used nor held.
  std::uint64_t lastNumber_ = 0;
};

}  // namespace AdvancedControl
