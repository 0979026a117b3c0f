#include "app/host/ProjectorSession.h"

#include <optional>
#include <utility>

#include <QPointer>

#include "app/host/InputAskingChannel.h"
#include "app/profiles/ProjectorAccess.h"
#include "device/BoundedChannel.h"
#include "host/CAdvanceDlg.h"

// A dialog's handler may still run when the session is gone; its observer keeps this.
struct ProjectorSession::Inputs {
  std::shared_ptr<ToldInputs> told = std::make_shared<ToldInputs>();
  std::optional<SourceList> known;
  QPointer<CAdvanceDlg> dialog;

  // The dialog's handler is in the middle of a command; it is told afterwards.
  void PassOn() {
    auto inputs = told->Take();
    if (!inputs) return;
    known = inputs;
    if (dialog == nullptr) return;
    QMetaObject::invokeMethod(
        dialog, [to = dialog.data(), sources = *known] { to->ReplaceSources(sources); },
        Qt::QueuedConnection);
  }
};

// The log stands outermost: it shows what the dialog got, also where a command was given up before
// its answer came or was not passed on at all.
ProjectorSession::ProjectorSession(ProjectorProfile profile, LoggingChannel::Observer observer)
    : profile_(std::move(profile)),
      inputs_(std::make_shared<Inputs>()),
      simulator_(std::make_shared<SimulatedProjector>(SimulatedModelOf(profile_))),
      faultChannel_(std::make_shared<FaultChannel>(MakeWay())),
      channel_(std::make_shared<LoggingChannel>(
          std::make_shared<BoundedChannel>(faultChannel_),
          [inputs = inputs_, observer = std::move(observer)](
              const PjtCommand& command, const PjtReply& reply, std::chrono::microseconds elapsed) {
            if (observer) observer(command, reply, elapsed);
            inputs->PassOn();
          })) {}

std::shared_ptr<ProjectorChannel> ProjectorSession::MakeWay() {
  if (profile_.Link == ProjectorLink::Simulated) return simulator_;
  const ProjectorAddress address = AddressOf(profile_);
  const auto* pjLink = std::get_if<PjLinkAddress>(&address);
  if (pjLink == nullptr || profile_.Model.MySourceList.Size() > 0) {
    return MakeUnboundedChannel(address);
  }
  return std::make_shared<InputAskingChannel>(
      std::make_shared<PjLinkChannel>(pjLink->host, pjLink->port, pjLink->password), inputs_->told);
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
  CModelInfo2 model = profile_.Model;
  model.MySourceList = inputs_->known.value_or(model.MySourceList);
  dialog->CopyData(&model, 0);
  inputs_->dialog = dialog.get();
  dialog->Projector().SetChannel(channel_);
  // Who opens a dialog again wants to know now whether the projector is back.
  dialog->Projector().TryAfresh();
  return dialog;
}
