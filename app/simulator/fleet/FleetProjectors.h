#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "app/simulator/Faults.h"
#include "fleet/FleetProfile.h"
#include "simulator/PjLinkResponder.h"
#include "simulator/SimulatedProjector.h"

/// How often programs have connected to a projector and sent requests.
struct RequestCounts {
  using Clock = std::chrono::steady_clock;

  std::uint32_t connections = 0;
  std::uint32_t open = 0;      ///< Connections that are open now.
  std::uint32_t mostOpen = 0;  ///< The most connections that were open at the same time.
  std::uint32_t requests = 0;
  std::uint32_t changes = 0;  ///< Requests that change something.
  std::uint32_t polls = 0;    ///< Requests for the power state.
  Clock::time_point lastPoll{};
  /// The shortest time between two requests for the power state.
  std::chrono::milliseconds shortestPause = std::chrono::milliseconds::max();

  void CountConnection();
  void CountRequest(bool isPoll, bool isChange);
};

/// One of many simulated projectors. Takes a few kilobytes.
struct FleetProjector {
  std::string name;
  std::uint32_t address = 0;  ///< IPv4 address; 0 while it is off the network.
  std::size_t model = 0;      ///< Index of its profile.
  int protocolClass = 2;
  std::string errors;              ///< The six digits of PJLink's error status.
  std::vector<int> moreLampHours;  ///< Hours of the second and further lamps.
  std::shared_ptr<SimulatedProjector> simulated;
  class RefusingChannel;
  std::shared_ptr<RefusingChannel> channel;  ///< Leads to `simulated`.
  ServiceFault fault{};
  RequestCounts counts{};
  std::string notices;  ///< The last status notice of each kind.
};

/// Many simulated projectors at successive loopback addresses. They differ in model, protocol
/// class, power state, input, hours of lamps and filter, and some have errors. All of this depends
/// only on the seed.
class FleetProjectors {
 public:
  struct Options {
    std::size_t count = 0;
    std::uint32_t firstAddress = 0x7F400001;  ///< 127.64.0.1
    std::uint64_t seed = 1;
    std::chrono::milliseconds warmUp{20'000};
    std::chrono::milliseconds coolDown{30'000};
  };

  /// The projectors use the profiles in turn; after the last profile, they start again with the
  /// first.
  FleetProjectors(std::vector<FleetProfile> profiles, const Options& options);

  std::size_t Count() const { return projectors_.size(); }
  FleetProjector& At(std::size_t projector) { return projectors_[projector]; }
  const FleetProjector& At(std::size_t projector) const { return projectors_[projector]; }
  const FleetProfile& ProfileOf(std::size_t projector) const {
    return profiles_[projectors_[projector].model];
  }

  /// The channel to the projector, which refuses commands if the projector's fault demands it.
  std::shared_ptr<ProjectorChannel> ChannelOf(std::size_t projector) const;
  /// The projector at an address; nothing if there is none.
  std::optional<std::size_t> Find(std::uint32_t address) const;
  /// Gives a projector another address, or takes it off the network (0). False if another projector
  /// has the address.
  bool Move(std::size_t projector, std::uint32_t address);
  void SetFault(std::size_t projector, const ServiceFault& fault);
  void SetErrors(std::size_t projector, const std::string& digits);
  /// Changes something at one projector, and returns the projector. Both depend only on `chance`.
  std::size_t ChangeOne(std::uint64_t chance);

  /// What the projector reports over PJLink.
  ServedProjector Served(std::size_t projector) const;
  /// "02:00:00:00:00:01"; does not depend on the address.
  static std::string MacOf(std::size_t projector);
  static std::string SerialOf(std::size_t projector);
  /// The projector's identity in a profile.
  std::string IdentityOf(std::size_t projector) const;

 private:
  void Make(std::size_t index, const Options& options,
            std::shared_ptr<const SimulatedLayout> layout);

  std::vector<FleetProfile> profiles_;
  std::vector<FleetProjector> projectors_;
  std::unordered_map<std::uint32_t, std::size_t> projectorOfAddress_;
};

/// "127.64.0.1"
std::string AddressText(std::uint32_t address);
