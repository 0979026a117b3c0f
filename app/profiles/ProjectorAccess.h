#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "app/profiles/PatientChannel.h"
#include "app/profiles/ProfileFile.h"
#include "device/CPjtInterface.h"
#include "device/channels/PjLinkChannel.h"
#include "settings/ModelSettings.h"
#include "simulator/SimulatedProjector.h"

/// The simulation that a profile describes.
SimulatedModel SimulatedModelOf(const FleetProfile& profile);
inline SimulatedModel SimulatedModelOf(const ProjectorProfile& profile) {
  return SimulatedModelOf(MakeFleetProfile(profile));
}

/// What a command has to know of the inputs that a projector tells itself.
enum class InputsNeeded {
  None,
  Present,  ///< The name of the one that is shown.
  All,
};

/// A projector of a profile file as a program without a window uses it. One thread at a time. What
/// a PJLink projector is, is remembered for the next program.
class ProjectorAccess {
 public:
  /// `timeOut` is that of the channel, for one answer.
  ProjectorAccess(const FleetProfile& profile, const std::shared_ptr<ProjectorChannel>& channel,
                  std::chrono::milliseconds timeOut = std::chrono::seconds(2));
  ProjectorAccess(const ProjectorProfile& profile, const std::shared_ptr<ProjectorChannel>& channel,
                  std::chrono::milliseconds timeOut = std::chrono::seconds(2))
      : ProjectorAccess(MakeFleetProfile(profile), channel, timeOut) {}

  ~ProjectorAccess();
  ProjectorAccess(const ProjectorAccess&) = delete;
  ProjectorAccess& operator=(const ProjectorAccess&) = delete;

  /// Asks a PJLink projector for its inputs where the profile names none and they are not
  /// remembered.
  void AskForInputs(InputsNeeded needed = InputsNeeded::All);
  /// Whether inputs were asked for and the answer got lost, so that settings that choose one lack
  /// entries, and what is read of them has a number or a kind instead of a name.
  bool LacksInputs() const { return lacksInputs_; }

  bool IsPjLink() const { return pjLink_ != nullptr; }
  /// Whether the inputs are those that the projector tells, as the profile names none.
  bool TellsInputs() const { return tellsInputs_; }

  /// Steps a setting that can be stepped and not read, as the volume over PJLink, up so many times,
  /// or down where `steps` is below zero. Ends with the first step that is not accepted, or before
  /// the first for which `goesOn` is false; the result is the number of those that were accepted.
  int StepUnread(const ModelSetting& setting, int steps, const std::function<bool()>& goesOn);
  /// Whether `StepUnread` has a way to do so.
  static bool HasSteps(const ModelSetting& setting);

  const std::string& Name() const { return name_; }
  const ModelSettings& Settings() const { return settings_; }
  CPjtInterface& Connection() { return connection_; }
  const PatientChannel& Channel() const { return *channel_; }

 private:
  std::string name_;
  ModelSettings settings_;
  std::shared_ptr<PjLinkChannel> pjLink_;  ///< Null for any other way.
  std::shared_ptr<PatientChannel> channel_;
  CPjtInterface connection_;
  PjLinkFacts remembered_;
  bool lacksInputs_ = false;
  bool tellsInputs_ = false;
};
