#include "app/simulator/fleet/FleetProjectors.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "app/profiles/ProjectorAccess.h"
#include "device/channels/ForwardingChannel.h"
#include "device/protocol/PjLinkLine.h"

namespace {

constexpr int kErrorParts = 6;

/// Random numbers that depend only on seed and projector.
class Chance {
 public:
  Chance(std::uint64_t seed, std::size_t projector) : seed_(Scrambled(seed, projector)) {}

  int Below(int limit) {
    return static_cast<int>(Scrambled(seed_, ++drawn_) % static_cast<std::uint64_t>(limit));
  }
  bool Percent(int percent) { return Below(100) < percent; }

 private:
  std::uint64_t seed_;
  std::uint64_t drawn_ = 0;
};

std::string NoErrors() { return std::string(kErrorParts, '0'); }

std::string OneError(Chance& chance) {
  constexpr int kPercentOnlyWarned = 33;
  std::string digits = NoErrors();
  const auto part = static_cast<std::size_t>(chance.Below(kErrorParts));
  digits[part] = chance.Percent(kPercentOnlyWarned) ? '1' : '2';
  return digits;
}

}  // namespace

/// Refuses commands if the projector's fault demands it. `FaultChannel` can do more, but is as
/// large as a projector.
class FleetProjector::RefusingChannel final : public ForwardingChannel {
 public:
  explicit RefusingChannel(std::shared_ptr<ProjectorChannel> inner)
      : ForwardingChannel(std::move(inner)) {}

  PjtReply Execute(const PjtCommand& command) override {
    const bool refuses =
        kind == Fault::Kind::Refuse || (kind == Fault::Kind::FailRead && IsRead(command.operation));
    return refuses ? PjtReply{.result = RefusedResult(command.operation)}
                   : Inner().Execute(command);
  }

  Fault::Kind kind = Fault::Kind::None;
};

void RequestCounts::CountConnection() {
  ++connections;
  mostOpen = std::max(mostOpen, ++open);
}

void RequestCounts::CountRequest(bool isPoll, bool isChange) {
  ++requests;
  if (isChange) ++changes;
  if (!isPoll) return;
  const auto now = Clock::now();
  if (++polls > 1) {
    shortestPause = std::min(shortestPause,
                             std::chrono::duration_cast<std::chrono::milliseconds>(now - lastPoll));
  }
  lastPoll = now;
}

FleetProjectors::FleetProjectors(std::vector<FleetProfile> profiles, const Options& options)
    : profiles_(std::move(profiles)) {
  std::vector<std::shared_ptr<const SimulatedLayout>> layouts;
  for (const FleetProfile& profile : profiles_) {
    layouts.push_back(SimulatedProjector::MakeLayout(SimulatedModelOf(profile)));
  }
  projectors_.resize(options.count);
  projectorOfAddress_.reserve(options.count);
  for (std::size_t i = 0; i < options.count; ++i) {
    projectors_[i].model = i % profiles_.size();
    Make(i, options, layouts[projectors_[i].model]);
  }
}

void FleetProjectors::Make(std::size_t index, const Options& options,
                           std::shared_ptr<const SimulatedLayout> layout) {
  constexpr int kPercentOn = 70;
  constexpr int kPercentSecondClass = 75;
  constexpr int kPercentTwoLamps = 20;
  constexpr int kPercentWithError = 8;
  constexpr int kMostLampHours = 4000;
  constexpr int kMostFilterHours = 1500;

  FleetProjector& projector = projectors_[index];
  Chance chance(options.seed, index);
  std::array<char, 32> number{};
  std::snprintf(number.data(), number.size(), "Projector %05zu", index + 1);
  projector.name = number.data();
  projector.simulated = std::make_shared<SimulatedProjector>(std::move(layout));
  projector.channel = std::make_shared<FleetProjector::RefusingChannel>(projector.simulated);
  SimulatedProjector& simulated = *projector.simulated;
  simulated.SetValue(SettingId::Power, chance.Percent(kPercentOn) ? 1 : 0);
  simulated.SetValue(SettingId::LampTime, chance.Below(kMostLampHours));
  simulated.SetValue(SettingId::FilterTime, chance.Below(kMostFilterHours));
  if (const auto sources = simulated.ValuesOf(SettingId::InputSource); !sources.empty()) {
    const auto place = chance.Below(static_cast<int>(sources.size()));
    simulated.SetValue(SettingId::InputSource, sources[static_cast<std::size_t>(place)]);
  }
  simulated.SetPowerTimes(options.warmUp, options.coolDown);
  projector.protocolClass = chance.Percent(kPercentSecondClass) ? 2 : 1;
  if (chance.Percent(kPercentTwoLamps)) {
    projector.moreLampHours.push_back(chance.Below(kMostLampHours));
  }
  SetErrors(index, chance.Percent(kPercentWithError) ? OneError(chance) : NoErrors());
  Move(index, options.firstAddress + static_cast<std::uint32_t>(index));
}

std::shared_ptr<ProjectorChannel> FleetProjectors::ChannelOf(std::size_t projector) const {
  return projectors_[projector].channel;
}

std::optional<std::size_t> FleetProjectors::Find(std::uint32_t address) const {
  const auto found = projectorOfAddress_.find(address);
  return found == projectorOfAddress_.end() ? std::nullopt : std::optional(found->second);
}

bool FleetProjectors::Move(std::size_t projector, std::uint32_t address) {
  std::uint32_t& present = projectors_[projector].address;
  if (address == present) return true;
  if (address != 0 && !projectorOfAddress_.emplace(address, projector).second) return false;
  projectorOfAddress_.erase(present);
  present = address;
  return true;
}

void FleetProjectors::SetFault(std::size_t projector, const ServiceFault& fault) {
  projectors_[projector].fault = fault;
  projectors_[projector].channel->kind = fault.projector;
}

void FleetProjectors::SetErrors(std::size_t projector, const std::string& digits) {
  FleetProjector& target = projectors_[projector];
  target.errors = digits;
  target.simulated->SetValue(SettingId::ErrorStatus, PjLink::ErrorStatus(digits).value_or(0));
}

std::size_t FleetProjectors::ChangeOne(std::uint64_t chance) {
  Chance what(chance, 0);
  const auto index = static_cast<std::size_t>(what.Below(static_cast<int>(Count())));
  SimulatedProjector& simulated = *projectors_[index].simulated;
  switch (what.Below(5)) {
    case 0: {
      const bool on = simulated.Value(SettingId::Power) == 0;
      simulated.Execute({on ? PjtOperation::SetPowerOn : PjtOperation::SetPowerOff});
      break;
    }
    case 1:
      SetErrors(index, projectors_[index].errors == NoErrors() ? OneError(what) : NoErrors());
      break;
    case 2:
      simulated.SetValue(SettingId::LampTime, simulated.Value(SettingId::LampTime) + 1);
      break;
    case 3:
      simulated.SetValue(SettingId::Mute, 1 - simulated.Value(SettingId::Mute));
      break;
    default:
      if (const auto sources = simulated.ValuesOf(SettingId::InputSource); !sources.empty()) {
        const auto place = what.Below(static_cast<int>(sources.size()));
        simulated.SetValue(SettingId::InputSource, sources[static_cast<std::size_t>(place)]);
      }
  }
  return index;
}

ServedProjector FleetProjectors::Served(std::size_t projector) const {
  const FleetProjector& asked = projectors_[projector];
  const CModelInfo2& model = profiles_[asked.model].model->info;
  ServedProjector served{.protocolClass = asked.protocolClass,
                         .inputs = InputsOf(model.MySourceList),
                         .errors = asked.errors,
                         .moreLampHours = asked.moreLampHours};
  served.texts["NAME"] = asked.name;
  served.texts["INF2"] = model.ModelName;
  served.texts["SNUM"] = SerialOf(projector);
  return served;
}

std::string FleetProjectors::MacOf(std::size_t projector) {
  constexpr unsigned kByte = 0xFF;
  std::array<char, 24> text{};
  const auto number = static_cast<unsigned>(projector + 1);
  std::snprintf(text.data(), text.size(), "02:00:00:%02x:%02x:%02x", (number >> 16U) & kByte,
                (number >> 8U) & kByte, number & kByte);
  return text.data();
}

std::string FleetProjectors::SerialOf(std::size_t projector) {
  return "SIM" + std::to_string(100'000 + projector + 1);
}

std::string FleetProjectors::IdentityOf(std::size_t projector) const {
  if (projectors_[projector].protocolClass < 2) return "id:" + SerialOf(projector);
  return "serial:Advanced Control/" + SerialOf(projector);
}

std::string AddressText(std::uint32_t address) {
  constexpr unsigned kByte = 0xFF;
  std::string text;
  for (const unsigned shift : {24U, 16U, 8U, 0U}) {
    if (!text.empty()) text += '.';
    text += std::to_string((address >> shift) & kByte);
  }
  return text;
}
