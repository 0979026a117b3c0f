#include "fleet/VisitsUnderWay.h"

#include <utility>

#include "fleet/MakeVisit.h"

namespace AdvancedControl {

namespace {

/// Visits continued at once, so that it does not take long.
constexpr int kMostContinued = 64;

}  // namespace

void VisitsUnderWay::Begin(Peer peer, std::unique_ptr<Visit> visit, const FleetTarget& target) {
  visits_.insert_or_assign(peer, UnderWay{std::move(visit), &target});
  Drive(peer);
}

bool VisitsUnderWay::Abandon(Peer peer) {
  if (visits_.erase(peer) == 0) return false;
  timers_.Clear(peer);
  network_.Close(peer);
  return true;
}

void VisitsUnderWay::Continue() {
  for (int i = 0; i < kMostContinued; ++i) {
    const auto peer = timers_.TakeDue(clock_.Now());
    if (!peer) return;
    Drive(*peer);
  }
}

void VisitsUnderWay::Connected(Peer peer) {
  visits_.at(peer).visit->Connected(clock_.Now());
  Drive(peer);
}

void VisitsUnderWay::NotConnected(Peer peer, ConnectionState problem) {
  visits_.at(peer).visit->NotConnected(problem, clock_.Now());
  Drive(peer);
}

/// Says nothing about the projector.
void VisitsUnderWay::InUse(Peer peer) {
  Abandon(peer);
  owner_.FoundInUse(peer);
}

void VisitsUnderWay::Received(Peer peer, std::string_view bytes) {
  visits_.at(peer).visit->Received(bytes, clock_.Now());
  Drive(peer);
}

void VisitsUnderWay::Closed(Peer peer) {
  visits_.at(peer).visit->Closed(clock_.Now());
  Drive(peer);
}

void VisitsUnderWay::Drive(Peer peer) {
  using Kind = SessionStep::Kind;
  const UnderWay& now = visits_.at(peer);
  while (true) {
    const SessionStep step = now.visit->Next(clock_.Now());
    switch (step.kind) {
      case Kind::Connect:
        ConnectTo(*now.target, network_, peer);
        break;
      case Kind::Send:
        network_.Send(peer, step.bytes);
        break;
      case Kind::Close:
        network_.GiveUp(peer);
        break;
      case Kind::Wait:
        // A timer that runs out too early only asks again; most are never needed.
        if (timers_.TimeOf(peer) > step.until) timers_.Set(peer, step.until);
        return;
      case Kind::Finished:
        return Finish(peer);
    }
  }
}

void VisitsUnderWay::Finish(Peer peer) {
  const auto visit = std::move(visits_.at(peer).visit);
  Abandon(peer);
  owner_.Finished(peer, *visit);
}

}  // namespace AdvancedControl
