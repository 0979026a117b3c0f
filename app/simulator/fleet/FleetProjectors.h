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

/// How often a projector was asked.
struct AskedCounts {
  using Clock = std::chrono::steady_clock;

  std::uint32_t connections = 0;
  std::uint32_t open = 0;      ///< Connections at this time.
  std::uint32_t mostOpen = 0;  ///< At any time.
  std::uint32_t requests = 0;
  std::uint32_t changes = 0;  ///< Requests that change something.
  std::uint32_t polls = 0;    ///< Questions for the power state.
  Clock::time_point lastPoll{};
  /// Between two questions for the power state.
  std::chrono::milliseconds shortestPause = std::chrono::milliseconds::max();

  void CountConnection();
  void CountRequest(bool isPoll, bool isChange);
};

/// One of many simulated projectors. A few kilobytes.
struct FleetProjector {
  std::string name;
  std::uint32_t address = 0;  ///< IPv4; 0 while it is nowhere.
  std::size_t model = 0;      ///< Index of its profile.
  int protocolClass = 2;
  std::string errors;  ///< Six digits.
  std::vector<int> moreLampHours;
  std::shared_ptr<SimulatedProjector> simulated;
  class Refusing;
  std::shared_ptr<Refusing> channel;  ///< In front of the simulation.
  ServiceFault fault{};
  AskedCounts asked{};
  std::string told;  ///< The state of which notices were sent.
};

/// Many simulated projectors at loopback addresses that follow each other. They differ in model,
/// protocol class, power state, input, hours of lamps and filter, and some have errors; all of it
/// depends on the seed alone.
class FleetProjectors {
 public:
  struct Options {
    std::size_t count = 0;
    std::uint32_t firstAddress = 0x7F400001;  ///< 127.64.0.1
    std::uint64_t seed = 1;
    std::chrono::milliseconds warmUp{20'000};
    std::chrono::milliseconds coolDown{30'000};
  };

  /// Made after the profiles, one after the other and again from the first.
  FleetProjectors(std::vector<FleetProfile> profiles, const Options& options);

  std::size_t Count() const { return projectors_.size(); }
  FleetProjector& At(std::size_t projector) { return projectors_[projector]; }
  const FleetProjector& At(std::size_t projector) const { return projectors_[projector]; }
  const FleetProfile& ProfileOf(std::size_t projector) const {
    return profiles_[projectors_[projector].model];
  }

  /// The projector with its fault.
  std::shared_ptr<ProjectorChannel> ChannelOf(std::size_t projector) const;
  /// Who has an address.
  std::optional<std::size_t> Find(std::uint32_t address) const;
  /// Takes a projector to an address that nobody has, or nowhere (0).
  bool Move(std::size_t projector, std::uint32_t address);
  void SetFault(std::size_t projector, const ServiceFault& fault);
  void SetErrors(std::size_t projector, const std::string& digits);
  /// Something happens at a projector: `chance` says which one, and what.
  std::size_t ChangeOne(std::uint64_t chance);

  /// What it shows over PJLink.
  ServedProjector Served(std::size_t projector) const;
  /// "02:00:00:00:00:01", the same wherever it is.
  static std::string MacOf(std::size_t projector);
  static std::string SerialOf(std::size_t projector);
  /// As a profile has it.
  std::string IdentityOf(std::size_t projector) const;

 private:
  void Make(std::size_t index, const Options& options,
            std::shared_ptr<const SimulatedProjector::Layout> layout);

  std::vector<FleetProfile> profiles_;
  std::vector<FleetProjector> projectors_;
  std::unordered_map<std::uint32_t, std::size_t> projectorOfAddress_;
};

/// "127.64.0.1"
std::string AddressText(std::uint32_t address);
