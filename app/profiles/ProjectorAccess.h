#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "app/profiles/ProfileFile.h"
#include "device/CPjtInterface.h"
#include "device/PjLinkChannel.h"
#include "settings/ModelSettings.h"
#include "simulator/SimulatedProjector.h"

/// The simulation that a profile describes.
SimulatedModel SimulatedModelOf(const ProjectorProfile& profile);

/// Asks again where an answer got lost, and knows when a projector is gone: one that has never
/// answered is after the first command, any other after the last repetition. Then every command is
/// unanswered at once. So a dead projector costs one time-out and not one per command: repetitions
/// begin only within it, and a command is given up early for another one to have its share, but not
/// before twice the time that the slowest answer took.
class PatientChannel : public ProjectorChannel {
 public:
  static constexpr int kAttempts = 3;
  static constexpr std::chrono::milliseconds kPause{50};  ///< At least, from one to the next.

  PatientChannel(std::shared_ptr<ProjectorChannel> inner, std::chrono::milliseconds timeOut)
      : inner_(std::move(inner)),
        timeOut_(timeOut),
        everAnswered_(inner_->Connection() == ConnectionState::Connected) {}

  PjtReply Execute(const PjtCommand& command) override;
  void Announce(std::span<const PjtCommand> reads) override { inner_->Announce(reads); }
  ConnectionState Connection() const override { return inner_->Connection(); }

  bool IsGone() const { return gone_; }
  /// Whether the last command was answered.
  bool HasAnswered() const { return answered_; }
  /// Whether it was to something that the projector has, as far as that is known.
  bool IsOffered() const { return offered_; }

 private:
  std::shared_ptr<ProjectorChannel> inner_;
  const std::chrono::milliseconds timeOut_;
  std::chrono::milliseconds slowest_{0};
  bool everAnswered_;
  bool answered_ = true;
  bool offered_ = true;
  bool gone_ = false;
};

/// A projector of a profile file as a program without a window uses it. One thread at a time.
class ProjectorAccess {
 public:
  /// `timeOut` is that of the channel, for one answer.
  ProjectorAccess(const ProjectorProfile& profile, std::shared_ptr<ProjectorChannel> channel,
                  std::chrono::milliseconds timeOut = std::chrono::seconds(2));

  /// Asks a PJLink projector for its inputs where the profile names none. One that is silent costs
  /// one time-out, and is gone then.
  void AskForInputs();

  const std::string& Name() const { return name_; }
  const ModelSettings& Settings() const { return settings_; }
  CPjtInterface& Connection() { return connection_; }
  const PatientChannel& Channel() const { return *channel_; }

 private:
  std::string name_;
  CModelInfo2 model_;
  ModelSettings settings_;
  std::shared_ptr<PjLinkChannel> pjLink_;  ///< Null for any other way.
  std::shared_ptr<PatientChannel> channel_;
  CPjtInterface connection_;
};
