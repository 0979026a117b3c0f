#include "app/desktop/projectors/ProjectorSession.h"

#include <utility>

#include "app/profiles/ProjectorAccess.h"
#include "host/CAdvanceDlg.h"

// The log is the outermost channel. It shows what the dialog got, even for a command that was given
// up before its answer came, or was never sent.
ProjectorSession::ProjectorSession(ProjectorProfile profile, LoggingChannel::Observer observer)
    : profile_(std::move(profile)),
      simulator_(std::make_shared<SimulatedProjector>(SimulatedModelOf(profile_))),
      faultChannel_(std::make_shared<FaultChannel>(MakeInnerChannel())),
      lastAnswer_(std::make_shared<std::optional<Clock::time_point>>()),
      channel_(std::make_shared<LoggingChannel>(
          std::make_shared<BoundedChannel>(faultChannel_, Bounds()),
          [lastAnswer = lastAnswer_, observe = std::move(observer)](
              const PjtCommand& command, const PjtReply& reply, std::chrono::microseconds elapsed) {
            if (reply.answered) *lastAnswer = Clock::now();
            if (observe) observe(command, reply, elapsed);
          })) {}

std::optional<std::chrono::seconds> ProjectorSession::SinceAnswer() const {
  if (!*lastAnswer_) return std::nullopt;
  return std::chrono::floor<std::chrono::seconds>(Clock::now() - **lastAnswer_);
}

std::shared_ptr<ProjectorChannel> ProjectorSession::MakeInnerChannel() {
  if (profile_.Link == ProjectorLink::Simulated) return simulator_;
  return MakeUnboundedChannel(AddressOf(profile_));
}

BoundedChannel::Limits ProjectorSession::Bounds() const {
  if (profile_.Link == ProjectorLink::Simulated) return {};
  return BoundsFor(AddressOf(profile_));
}

CModelInfo2 ProjectorSession::Model() const {
  CModelInfo2 model = profile_.Model;
  if (model.MySourceList.Size() == 0) {
    model.MySourceList = channel_->Inputs().value_or(model.MySourceList);
  }
  return model;
}

void ProjectorSession::SetFault(const FaultTarget& target, const Fault& fault) {
  if (const auto* operation = std::get_if<PjtOperation>(&target)) {
    faultChannel_->SetFault(*operation, fault);
  } else if (const auto* code = std::get_if<std::uint16_t>(&target)) {
    faultChannel_->SetFault(*code, fault);
  } else {
    faultChannel_->SetFault(fault);
  }
  if (fault.kind == Fault::Kind::None) {
    faults_.erase(target);
  } else {
    faults_[target] = fault;
  }
}

void ProjectorSession::ClearFaults() {
  faultChannel_->Clear();
  faults_.clear();
}

std::unique_ptr<CAdvanceDlg> ProjectorSession::MakeDialog() const {
  auto dialog = std::make_unique<CAdvanceDlg>();
  dialog->CopyData(&profile_.Model, 0);
  dialog->SetProjectorName(profile_.Name);
  dialog->Projector().SetChannel(channel_);
  // Opening a dialog always asks the projector, even if it was silent just before.
  dialog->Projector().AllowRetry();
  return dialog;
}
