#include "fleet/HoldingChannel.h"

#include <algorithm>
#include <utility>

#include "fleet/MakeVisit.h"

namespace AdvancedControl {

namespace {

using Time = std::chrono::milliseconds;

/// How long a command that has waited in vain keeps its place in the line for the next one.
constexpr Time kPatience{10'000};

}  // namespace

HoldingChannel::HoldingChannel(std::shared_ptr<ProjectorChannel> inner, const FleetTarget& target,
                               Time time)
    : ForwardingChannel(std::move(inner)), address_(PlaceOf(target)), time_(time) {}

HoldingChannel::~HoldingChannel() { Inner().TendConnection(Time::max()); }

PjtReply HoldingChannel::Execute(const PjtCommand& command) {
  if (!hold_) hold_.emplace(address_, AddressHold::Turn::Next);
  if (!hold_->IsHeld()) {
    state_ = ConnectionState::Connecting;
    if (!hold_->WaitFor(longest_ / 2)) {
      return {.result = RefusedResult(command.operation), .answered = false, .unsent = true};
    }
  }
  state_ = std::nullopt;
  const PjtReply reply = Inner().Execute(command);
  isSilent_ = !reply.answered;
  return reply;
}

void HoldingChannel::GiveUpAfter(Time time) {
  longest_ = std::min(time_, time);
  Inner().GiveUpAfter(time);
}

ConnectionState HoldingChannel::Connection() const {
  const std::optional<ConnectionState> state = state_;
  return state ? *state : Inner().Connection();
}

bool HoldingChannel::UseIdleTime() {
  return hold_ && hold_->IsHeld() && !hold_->IsWanted() && Inner().UseIdleTime();
}

bool HoldingChannel::TendConnection(Time unused) {
  if (!hold_) return false;
  const bool waitedInVain = state_.load() == ConnectionState::Connecting;
  if (waitedInVain && unused < kPatience) return true;
  if (!waitedInVain) {  // then it is held
    // `Connection` gives the reason for the silence until the next command.
    if (isSilent_) state_ = Inner().Connection();
    if (Inner().TendConnection(isSilent_ || hold_->IsWanted() ? Time::max() : unused)) return true;
  }
  hold_.reset();
  return false;
}

}  // namespace AdvancedControl
