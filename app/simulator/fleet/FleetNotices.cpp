#include "app/simulator/fleet/FleetNotices.h"

#include <algorithm>
#include <string>
#include <unistd.h>

#include "simulator/PjLinkResponder.h"

using namespace std::chrono_literals;

namespace {

using Clock = FleetTimer::Clock;

constexpr auto kSwitchingCheck = 100ms;

bool IsSilent(const FleetProjector& projector) {
  return projector.address == 0 || projector.fault.line.kind == LineFault::Kind::Silent;
}

}  // namespace

FleetNotices::FleetNotices(FleetProjectors& projectors, FleetTimer& timer,
                           std::optional<FleetSockets::Endpoint> receiver)
    : projectors_(projectors), timer_(timer), receiver_(receiver) {}

FleetNotices::~FleetNotices() {
  if (socket_ >= 0) close(socket_);
}

bool FleetNotices::Open(std::uint16_t port) {
  socket_ = FleetSockets::OpenDatagrams(port);
  return socket_ >= 0;
}

void FleetNotices::AnswerSearches() {
  constexpr std::string_view kSearch = "%2SRCH\r";
  constexpr std::uint32_t kBroadcast = 0x7FFFFFFF;
  while (const auto search = FleetSockets::Receive(socket_)) {
    if (search->text != kSearch) continue;
    if (search->to == kBroadcast) {
      ForEachInTurn(
          [this, asker = search->from](std::size_t projector) { AnswerSearch(projector, asker); });
    } else if (const auto projector = projectors_.Find(search->to)) {
      AnswerSearch(*projector, search->from);
    }
  }
}

void FleetNotices::AnnounceAll() {
  if (receiver_) ForEachInTurn([this](std::size_t projector) { Announce(projector); });
}

void FleetNotices::Announce(std::size_t projector) {
  if (!SendsNotices(projector)) return;
  SendNotice(projectors_.At(projector), "%2LKUP=" + FleetProjectors::MacOf(projector) + '\r');
  SendChanges(projector);
}

void FleetNotices::SendChanges(std::size_t projector) {
  if (!SendsNotices(projector)) return;
  FleetProjector& changed = projectors_.At(projector);
  PjLinkResponder responder(changed.simulated, projectors_.Served(projector));
  std::string sent;
  for (const std::string_view question : {"%1POWR ?", "%1ERST ?", "%2INPT ?"}) {
    std::string notice = responder.Answer(question).value_or("") + '\r';
    if (notice.find("ERR") != std::string::npos) continue;  // no input in standby
    notice[1] = '2';
    if (changed.notices.find(notice) == std::string::npos) SendNotice(changed, notice);
    sent += notice;
  }
  changed.notices = sent;
  const auto power = changed.simulated->Power();
  if (power == PowerState::WarmingUp || power == PowerState::CoolingDown) {
    timer_.RunAt(Clock::now() + kSwitchingCheck, [this, projector] { SendChanges(projector); });
  }
}

void FleetNotices::ForEachInTurn(const std::function<void(std::size_t)>& action) {
  constexpr std::size_t kAtOnce = 64;
  constexpr auto kPause = 5ms;
  auto due = Clock::now();
  for (std::size_t first = 0; first < projectors_.Count(); first += kAtOnce, due += kPause) {
    timer_.RunAt(due, [this, first, action] {
      const std::size_t end = std::min(first + kAtOnce, projectors_.Count());
      for (std::size_t i = first; i < end; ++i) action(i);
    });
  }
}

void FleetNotices::AnswerSearch(std::size_t projector, FleetSockets::Endpoint asker) {
  const FleetProjector& found = projectors_.At(projector);
  if (found.protocolClass < 2 || IsSilent(found)) return;
  FleetSockets::Send(socket_, found.address, asker,
                     "%2ACKN=" + FleetProjectors::MacOf(projector) + '\r');
}

bool FleetNotices::SendsNotices(std::size_t projector) const {
  return receiver_ && projectors_.At(projector).protocolClass >= 2;
}

void FleetNotices::SendNotice(const FleetProjector& projector, std::string_view text) {
  if (!IsSilent(projector)) FleetSockets::Send(socket_, projector.address, *receiver_, text);
}
