#include "fleet/JobConnection.h"

#include "fleet/MakeVisit.h"

namespace AdvancedControl {

namespace {

SessionTime Now() { return std::chrono::steady_clock::now(); }

}  // namespace

JobConnection::JobConnection(JobLoop& loop, const ProjectorAddress& address,
                             JobLoop::Receiver& session)
    : loop_(loop),
      target_{.id = {}, .address = address},
      session_(session),
      peer_(loop.Add(*this)) {}

JobConnection::~JobConnection() { loop_.Remove(peer_); }

void JobConnection::Perform(const SessionStep& step) {
  switch (step.kind) {
    case SessionStep::Kind::Connect:
      stage_ = Stage::Connecting;
      return ConnectTo(target_, loop_.Network(), peer_);
    case SessionStep::Kind::Send:
      return loop_.Network().Send(peer_, step.bytes);
    case SessionStep::Kind::Close:
      return Close();
    case SessionStep::Kind::Wait:
      return Wait(step.until);
    case SessionStep::Kind::Finished:
      return;
  }
}

void JobConnection::Check() {
  if (IsOpen()) loop_.Wait(peer_, Now());
}

void JobConnection::Close() {
  stage_ = Stage::None;
  loop_.Network().Close(peer_);
}

// A host name may have several addresses, and one that is silent must leave time for the next.
void JobConnection::Wait(SessionTime until) {
  if (stage_ != Stage::Connecting) return loop_.Wait(peer_, until);
  const SessionTime now = Now();
  const SessionTime half = until > now ? now + (until - now) / 2 : until;
  loop_.Wait(peer_, half);
  if (stage_ == Stage::Connecting && Now() >= half) loop_.Network().ConnectToNext(peer_);
}

void JobConnection::Connected() {
  stage_ = Stage::Open;
  session_.Connected();
}

void JobConnection::NotConnected(ConnectionState problem, SessionTime now) {
  stage_ = Stage::None;
  session_.NotConnected(problem, now);
}

void JobConnection::Closed(SessionTime now) {
  stage_ = Stage::None;
  session_.Closed(now);
}

}  // namespace AdvancedControl
