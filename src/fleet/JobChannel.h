#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "Namespace.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkInputs.h"
#include "fleet/FleetTarget.h"
#include "fleet/JobLoop.h"

namespace AdvancedControl {

/// A channel for work in a `JobLoop`: other work goes on while it waits for the projector. Drives a
/// session like the channels of the dialog do. Closes the connection when it is destroyed.
class JobChannel : public ProjectorChannel, protected JobLoop::Receiver {
 public:
  ~JobChannel() override;
  JobChannel(const JobChannel&) = delete;
  JobChannel& operator=(const JobChannel&) = delete;

  /// Asks a PJLink projector for its inputs; none for any other projector.
  virtual std::vector<PjLinkInput> AskForInputs() { return {}; }

 protected:
  JobChannel(JobLoop& loop, JobLoop::Peer peer, const FleetTarget& target);

  static SessionTime Now() { return std::chrono::steady_clock::now(); }
  /// Calls `begin` to start a request of the session, and drives the session until it has finished.
  void Run(const auto& begin);
  virtual SessionStep Next(SessionTime now) = 0;

 private:
  JobLoop& loop_;
  const JobLoop::Peer peer_;
  const FleetTarget& target_;
};

/// `target` and `loop` must outlive the channel; `timeOut` is for connecting, and for each answer.
/// Never null; without an address every command is unanswered at once.
std::shared_ptr<ProjectorChannel> MakeJobChannel(JobLoop& loop, JobLoop::Peer peer,
                                                 const FleetTarget& target,
                                                 std::chrono::milliseconds timeOut);

}  // namespace AdvancedControl
