#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "app/profiles/ProfileFile.h"
#include "device/channels/BoundedChannel.h"
#include "device/channels/LoggingChannel.h"
#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"

class CAdvanceDlg;

/// What a fault is set for: every command, one operation, or the generic operations of one code.
using FaultTarget = std::variant<std::monostate, PjtOperation, std::uint16_t>;

/// One projector of the list with its simulation or its connection, which lives as long as the
/// program, whether a dialog is open or not.
class ProjectorSession {
 public:
  /// `observer` is told of every command that a dialog gave, with what the dialog got back; it is
  /// called on the user-interface thread, from inside the dialog's handlers.
  ProjectorSession(ProjectorProfile profile, LoggingChannel::Observer observer);

  const ProjectorProfile& Profile() const { return profile_; }
  /// The model as the profile tells it, with the inputs that the projector told where that names
  /// none.
  CModelInfo2 Model() const;
  /// The way to the projector that dialogs take, too.
  const std::shared_ptr<ProjectorChannel>& Channel() const { return channel_; }
  /// The times of that way.
  BoundedChannel::Limits Bounds() const;
  /// Of a projector that is not simulated, a simulation that nobody uses.
  SimulatedProjector& Simulator() { return *simulator_; }

  /// How the connection stands; of a simulated projector `ConnectionState::None`.
  ConnectionState Connection() const { return channel_->Connection(); }
  /// How long ago the projector answered a command last; nothing when it never has.
  std::optional<std::chrono::seconds> SinceAnswer() const;

  /// `Fault::Kind::None` takes the fault back.
  void SetFault(const FaultTarget& target, const Fault& fault);
  void ClearFaults();
  const std::map<FaultTarget, Fault>& Faults() const { return faults_; }

  /// A dialog on this projector, with model and channel, not created yet.
  std::unique_ptr<CAdvanceDlg> MakeDialog() const;

 private:
  using Clock = std::chrono::steady_clock;

  std::shared_ptr<ProjectorChannel> MakeWay();

  ProjectorProfile profile_;
  std::shared_ptr<SimulatedProjector> simulator_;
  std::shared_ptr<FaultChannel> faultChannel_;
  std::shared_ptr<std::optional<Clock::time_point>> lastAnswer_;
  std::shared_ptr<ProjectorChannel> channel_;
  std::map<FaultTarget, Fault> faults_;
};

using ProjectorSessions = std::vector<std::shared_ptr<ProjectorSession>>;
