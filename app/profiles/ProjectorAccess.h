#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "app/profiles/PatientChannel.h"
#include "device/CPjtInterface.h"
#include "device/channels/PjLinkChannel.h"
#include "fleet/FleetProfile.h"
#include "settings/ModelSettings.h"
#include "simulator/SimulatedProjector.h"

/// The simulation that a profile describes.
SimulatedModel SimulatedModelOf(const FleetProfile& profile);

/// Which of a PJLink projector's inputs a command needs to know.
enum class InputsNeeded {
  None,
  Present,  ///< The present one.
  All,
};

/// The connection to a projector of a profile file, for programs without a window. Use from one
/// thread at a time. The class and inputs of a PJLink projector are remembered for the next run.
class ProjectorAccess {
 public:
  /// `timeOut` is the channel's time-out for an answer. `settings` are those of the profile's
  /// model, which projectors may share; without them they are made.
  ProjectorAccess(const FleetProfile& profile, const std::shared_ptr<ProjectorChannel>& channel,
                  std::chrono::milliseconds timeOut = std::chrono::seconds(2),
                  std::shared_ptr<const ModelSettings> settings = nullptr);
  ~ProjectorAccess();
  ProjectorAccess(const ProjectorAccess&) = delete;
  ProjectorAccess& operator=(const ProjectorAccess&) = delete;

  /// Asks a PJLink projector for its inputs, unless the profile names them or they are remembered.
  void AskForInputs(InputsNeeded needed = InputsNeeded::All);
  /// Whether an answer about inputs got lost. If so, settings that choose an input lack entries,
  /// and inputs are shown by number or kind instead of by name.
  bool LacksInputs() const { return lacksInputs_; }

  bool IsPjLink() const { return pjLink_ != nullptr; }
  /// Whether the inputs come from the projector, because the profile names none.
  bool ReportsInputs() const { return reportsInputs_; }

  /// Steps a setting that cannot be read, such as the volume over PJLink: up `steps` times, or down
  /// if it is negative. Stops at the first step that is refused, or when `goesOn` returns false.
  /// Returns the number of accepted steps.
  int StepUnread(const ModelSetting& setting, int steps, const std::function<bool()>& goesOn);
  /// Whether `StepUnread` can step this setting.
  static bool HasSteps(const ModelSetting& setting);

  const std::string& Name() const { return name_; }
  const ModelSettings& Settings() const { return *settings_; }
  CPjtInterface& Connection() { return connection_; }
  const PatientChannel& Channel() const { return *channel_; }

 private:
  std::string name_;
  std::shared_ptr<const ModelSettings> settings_;  ///< Never null.
  std::shared_ptr<PjLinkChannel> pjLink_;          ///< Null unless the projector speaks PJLink.
  std::shared_ptr<PatientChannel> channel_;
  CPjtInterface connection_;
  PjLinkFacts remembered_;
  bool lacksInputs_ = false;
  bool reportsInputs_ = false;
};
