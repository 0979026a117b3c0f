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

/// A channel of a work in a `JobLoop`: the others go on while it waits for the projector. Drives a
/// session as the channels of the dialog do. Closes the connection at its end.
class JobChannel : public ProjectorChannel, protected JobLoop::Receiver {
 public:
  ~JobChannel() override;
  JobChannel(const JobChannel&) = delete;
  JobChannel& operator=(const JobChannel&) = delete;

  /// The inputs that a PJLink projector tells; none for any other.
  virtual std::vector<PjLinkInput> AskForInputs() { return {}; }

 protected:
  JobChannel(JobLoop& loop, JobLoop::Peer peer, const FleetTarget& target);

  static SessionTime Now() { return std::chrono::steady_clock::now(); }
  /// Has the session begin something, and drives it until it has finished.
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
