#pragma once

#include <chrono>
#include <span>
#include <string_view>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "device/Connect.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/WireSession.h"
#include "fleet/JobConnection.h"
#include "fleet/JobLoop.h"

namespace AdvancedControl {

/// A channel with the protocol of docs/wire.md for work in a `JobLoop`: other work goes on while it
/// waits for the projector. Drives a session like the channels of the dialog do.
class PROJECTOR_FLEET_EXPORT WireJobChannel final : public ProjectorChannel,
                                                    private JobLoop::Receiver {
 public:
  WireJobChannel(JobLoop& loop, const ProjectorAddress& address, std::chrono::milliseconds timeOut);

  PjtReply Execute(const PjtCommand& command) override;
  void Announce(std::span<const PjtCommand> reads) override { session_.Announce(reads); }
  void GiveUpAfter(std::chrono::milliseconds time) override { session_.GiveUpAfter(time); }
  ConnectionState Connection() const override { return session_.State(); }
  bool HasGreeted() const { return session_.HasGreeted(); }

 private:
  void Connected() override { session_.Connected(); }
  void NotConnected(ConnectionState problem, SessionTime) override {
    session_.NotConnected(problem);
  }
  void Received(std::string_view bytes, SessionTime) override { session_.Received(bytes); }
  void Closed(SessionTime) override { session_.Closed(); }

  WireSession session_;
  JobConnection connection_;
};

}  // namespace AdvancedControl
