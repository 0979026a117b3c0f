#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "device/channels/BoundedChannel.h"
#include "device/channels/LoggingChannel.h"
#include "fleet/FleetProfile.h"
#include "simulator/FaultChannel.h"
#include "simulator/FaultyLine.h"
#include "simulator/SimulatedProjector.h"

class CAdvanceDlg;

/// The commands that a fault affects: all, one operation, or the generic operations of one code.
using FaultTarget = std::variant<std::monostate, PjtOperation, std::uint16_t>;

/// One projector of the list with its simulation or connection, which it keeps while no dialog is
/// open.
class ProjectorSession {
 public:
  /// `observer` gets every command of a dialog and the reply that the dialog got. It is called on
  /// the user-interface thread, from inside the dialog's handlers.
  ProjectorSession(FleetProfile profile, LoggingChannel::Observer observer);

  const FleetProfile& Profile() const { return profile_; }
  /// Takes over a profile with the same name, model and connection.
  void SetProfile(const FleetProfile& profile) { profile_ = profile; }
  /// The model of the profile. If the profile names no inputs, it has those that the projector
  /// reported.
  CModelInfo2 Model() const;
  /// The channel to the projector, which dialogs use as well.
  const std::shared_ptr<ProjectorChannel>& Channel() const { return channel_; }
  /// The time limits of that channel.
  BoundedChannel::Limits Bounds() const;
  /// An unused simulation if the projector is a real one.
  SimulatedProjector& Simulator() { return *simulator_; }

  /// The simulation for others than dialogs. Its faults do not make it wait; those of the whole
  /// projector are faults of the line then.
  const std::shared_ptr<FaultChannel>& Served() const { return served_; }
  LineFault ServedLine() const;

  /// `Fault::Kind::None` removes the fault.
  void SetFault(const FaultTarget& target, const Fault& fault);
  void ClearFaults();
  const std::map<FaultTarget, Fault>& Faults() const { return faults_; }

  /// A dialog for this projector, with its model and channel; its window is not created yet.
  std::unique_ptr<CAdvanceDlg> MakeDialog() const;
  /// Tells a dialog of this projector what the profile says besides the connection: the lamp's
  /// rated hours, and the preset that the projector should be like. A preset that cannot be read
  /// counts as none.
  void UpdateDialog(CAdvanceDlg& dialog) const;

 private:
  std::shared_ptr<ProjectorChannel> MakeInnerChannel();

  FleetProfile profile_;
  std::shared_ptr<SimulatedProjector> simulator_;
  std::shared_ptr<FaultChannel> faultChannel_;
  std::shared_ptr<FaultChannel> served_;
  std::shared_ptr<ProjectorChannel> channel_;
  std::map<FaultTarget, Fault> faults_;
};

using ProjectorSessions = std::vector<std::shared_ptr<ProjectorSession>>;
