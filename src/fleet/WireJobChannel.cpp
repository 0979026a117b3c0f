#include "fleet/WireJobChannel.h"

#include <variant>

namespace AdvancedControl {

namespace {

SessionTime Now() { return std::chrono::steady_clock::now(); }

WireSession::Medium MediumOf(const ProjectorAddress& address) {
  return std::holds_alternative<SerialAddress>(address) ? WireSession::Medium::Noisy
                                                        : WireSession::Medium::Reliable;
}

}  // namespace

WireJobChannel::WireJobChannel(JobLoop& loop, const ProjectorAddress& address,
                               std::chrono::milliseconds timeOut)
    : session_(MediumOf(address), {.connect = timeOut, .answer = timeOut},
               static_cast<std::uint16_t>(Now().time_since_epoch().count())),
      connection_(loop, address, *this) {}

PjtReply WireJobChannel::Execute(const PjtCommand& command) {
  // A projector may have closed the connection meanwhile; then the session connects again.
  connection_.Check();
  session_.Begin(command, Now());
  for (auto step = session_.Next(Now()); step.kind != SessionStep::Kind::Finished;
       step = session_.Next(Now())) {
    connection_.Perform(step);
  }
  return session_.Reply();
}

}  // namespace AdvancedControl
