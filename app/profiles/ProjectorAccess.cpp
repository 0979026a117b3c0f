#include "app/profiles/ProjectorAccess.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "device/ModelDataIntake.h"

namespace {

using Clock = std::chrono::steady_clock;

std::chrono::milliseconds Since(Clock::time_point time) {
  return std::chrono::ceil<std::chrono::milliseconds>(Clock::now() - time);
}

/// Whether sending it twice comes to the same as once. A step does not.
bool IsRepeatable(PjtOperation operation) {
  switch (FamilyOf(operation)) {
    case OperationFamily::PointerStepper:
    case OperationFamily::SourceStepper:
    case OperationFamily::ChannelStepper:
      return false;
    default:
      return operation != PjtOperation::Inc && operation != PjtOperation::Dec;
  }
}

}  // namespace

SimulatedModel SimulatedModelOf(const ProjectorProfile& profile) {
  SimulatedModel model = DescribeModel(MakeModelData(profile.Model));
  model.missing = {profile.Lacks.begin(), profile.Lacks.end()};
  return model;
}

PjtReply PatientChannel::Execute(const PjtCommand& command) {
  PjtReply reply{.result = RefusedResult(command.operation), .answered = false};
  const bool repeats = everAnswered_ && IsRepeatable(command.operation);
  const int attempts = repeats ? kAttempts : 1;
  const auto begin = Clock::now();
  auto asked = begin;
  for (int attempt = 0; attempt < attempts && !gone_; ++attempt) {
    if (attempt > 0) std::this_thread::sleep_until(asked + kPause);
    const auto left = timeOut_ - Since(begin);
    if (left <= left.zero()) break;
    const bool isPaceKnown = slowest_ > slowest_.zero();
    inner_->GiveUpAfter(repeats && isPaceKnown
                            ? std::min(left, std::max(timeOut_ / kAttempts, 2 * slowest_))
                            : left);
    asked = Clock::now();
    reply = inner_->Execute(command);
    if (!reply.answered) continue;
    slowest_ = std::max(slowest_, Since(asked));
    break;
  }
  answered_ = reply.answered;
  offered_ = reply.offered;
  // A step that got lost says nothing yet: the next command does.
  gone_ = gone_ || (!answered_ && (repeats || !everAnswered_));
  everAnswered_ = everAnswered_ || answered_;
  return reply;
}

ProjectorAccess::ProjectorAccess(const ProjectorProfile& profile,
                                 std::shared_ptr<ProjectorChannel> channel,
                                 std::chrono::milliseconds timeOut)
    : name_(profile.Name),
      model_(profile.Model),
      settings_(MakeModelData(model_)),
      pjLink_(std::dynamic_pointer_cast<PjLinkChannel>(channel)),
      channel_(std::make_shared<PatientChannel>(std::move(channel), timeOut)) {
  connection_.SetChannel(channel_);
}

void ProjectorAccess::AskForInputs() {
  if (pjLink_ == nullptr || model_.MySourceList.Size() > 0) return;
  // A description is not asked patiently, so that a command tells first whether anybody is there.
  if (!channel_->Execute({.operation = PjtOperation::GetInputSource}).answered) return;
  const auto description = pjLink_->Describe();
  if (!description) return;
  model_.MySourceList = SourcesOf(description->inputs);
  settings_ = ModelSettings(MakeModelData(model_));
}
