#include "fleet/JobChannel.h"

#include <variant>

#include "device/protocol/PjLinkSession.h"
#include "device/protocol/WireSession.h"
#include "fleet/MakeVisit.h"

namespace AdvancedControl {

namespace {

class PjLinkJobChannel final : public JobChannel {
 public:
  PjLinkJobChannel(JobLoop& loop, JobLoop::Peer peer, const FleetTarget& target,
                   const std::string& password, std::chrono::milliseconds timeOut)
      : JobChannel(loop, peer, target),
        session_(password, {.connect = timeOut, .answer = timeOut}) {}

  PjtReply Execute(const PjtCommand& command) override {
    Run([&] { session_.Begin(command, Now()); });
    return session_.Reply();
  }
  std::vector<PjLinkInput> AskForInputs() override {
    PjLinkInputs inputs;
    inputs.AskForAll([this](const PjLinkQuestion& question) {
      Run([&] { session_.Begin(question, Now()); });
      return session_.Result();
    });
    return inputs.Known();
  }
  ConnectionState Connection() const override { return session_.State(); }
  std::optional<PowerState> Power() const override { return session_.Power(); }

  void Connected() override { session_.Connection().Connected(); }
  void NotConnected(ConnectionState problem, SessionTime now) override {
    session_.Connection().NotConnected(problem, now);
  }
  void Received(std::string_view bytes, SessionTime now) override {
    session_.Connection().Received(bytes, now);
  }
  void Closed(SessionTime now) override { session_.Connection().Closed(now); }

 private:
  SessionStep Next(SessionTime now) override { return session_.Next(now); }

  PjLinkSession session_;
};

class WireJobChannel final : public JobChannel {
 public:
  WireJobChannel(JobLoop& loop, JobLoop::Peer peer, const FleetTarget& target,
                 WireSession::Medium medium, std::chrono::milliseconds timeOut)
      : JobChannel(loop, peer, target),
        session_(medium, {.connect = timeOut, .answer = timeOut},
                 static_cast<std::uint16_t>(Now().time_since_epoch().count())) {}

  PjtReply Execute(const PjtCommand& command) override {
    Run([&] { session_.Begin(command, Now()); });
    return session_.Reply();
  }
  void Announce(std::span<const PjtCommand> reads) override { session_.Announce(reads); }
  ConnectionState Connection() const override { return session_.State(); }

  void Connected() override { session_.Connected(); }
  void NotConnected(ConnectionState problem, SessionTime) override {
    session_.NotConnected(problem);
  }
  void Received(std::string_view bytes, SessionTime) override { session_.Received(bytes); }
  void Closed(SessionTime) override { session_.Closed(); }

 private:
  SessionStep Next(SessionTime now) override { return session_.Next(now); }

  WireSession session_;
};

}  // namespace

JobChannel::JobChannel(JobLoop& loop, JobLoop::Peer peer, const FleetTarget& target)
    : loop_(loop), peer_(peer), target_(target) {
  loop_.SetReceiver(peer, this);
}

JobChannel::~JobChannel() {
  loop_.Network().Close(peer_);
  loop_.SetReceiver(peer_, nullptr);
}

void JobChannel::Run(const auto& begin) {
  // A projector may have closed the connection meanwhile; then the session connects again.
  if (Connection() == ConnectionState::Connected) loop_.Wait(peer_, Now());
  begin();
  while (true) {
    const SessionStep step = Next(Now());
    switch (step.kind) {
      case SessionStep::Kind::Connect:
        ConnectTo(target_, loop_.Network(), peer_);
        break;
      case SessionStep::Kind::Send:
        loop_.Network().Send(peer_, step.bytes);
        break;
      case SessionStep::Kind::Close:
        loop_.Network().Close(peer_);
        break;
      case SessionStep::Kind::Wait:
        loop_.Wait(peer_, step.until);
        break;
      case SessionStep::Kind::Finished:
        return;
    }
  }
}

std::shared_ptr<ProjectorChannel> MakeJobChannel(JobLoop& loop, JobLoop::Peer peer,
                                                 const FleetTarget& target,
                                                 std::chrono::milliseconds timeOut) {
  if (const auto* const pjLink = std::get_if<PjLinkAddress>(&target.address)) {
    return std::make_shared<PjLinkJobChannel>(loop, peer, target, pjLink->password, timeOut);
  }
  if (std::holds_alternative<AddressError>(target.address)) {
    return MakeUnboundedChannel(target.address);
  }
  const bool isSerial = std::holds_alternative<SerialAddress>(target.address);
  return std::make_shared<WireJobChannel>(
      loop, peer, target, isSerial ? WireSession::Medium::Noisy : WireSession::Medium::Reliable,
      timeOut);
}

}  // namespace AdvancedControl
