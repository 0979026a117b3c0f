#include "app/desktop/projectors/ProjectorSession.h"

#include <utility>

#include "app/profiles/PresetFolder.h"
#include "app/profiles/ProjectorAccess.h"
#include "fleet/HoldingChannel.h"
#include "host/CAdvanceDlg.h"

namespace {

/// Simulations of the same model share what it has, which is most of their memory.
std::shared_ptr<const SimulatedLayout> LayoutOf(const FleetProfile& profile) {
  using Model = std::weak_ptr<const ProfileModel>;
  static std::map<Model, std::weak_ptr<const SimulatedLayout>, std::owner_less<Model>> layouts;
  if (const auto known = layouts.find(profile.model); known != layouts.end()) {
    if (auto layout = known->second.lock()) return layout;
  }
  std::erase_if(layouts, [](const auto& one) { return one.second.expired(); });
  auto layout = SimulatedProjector::MakeLayout(SimulatedModelOf(profile));
  layouts[profile.model] = layout;
  return layout;
}

}  // namespace

// The log is the outermost channel. It shows what the dialog got, even for a command that was given
// up before its answer came, or was never sent.
ProjectorSession::ProjectorSession(FleetProfile profile, LoggingChannel::Observer observer)
    : profile_(std::move(profile)),
      simulator_(std::make_shared<SimulatedProjector>(LayoutOf(profile_))),
      faultChannel_(std::make_shared<FaultChannel>(MakeInnerChannel())),
      served_(std::make_shared<FaultChannel>(simulator_)),
      channel_(std::make_shared<LoggingChannel>(
          std::make_shared<BoundedChannel>(faultChannel_, Bounds()), std::move(observer))) {}

std::shared_ptr<ProjectorChannel> ProjectorSession::MakeInnerChannel() {
  if (profile_.link == ProjectorLink::Simulated) return simulator_;
  return std::make_shared<HoldingChannel>(MakeUnboundedChannel(AddressOf(profile_)),
                                          TargetOf(profile_), Bounds().timeOut);
}

BoundedChannel::Limits ProjectorSession::Bounds() const {
  if (profile_.link == ProjectorLink::Simulated) return {};
  return BoundsFor(AddressOf(profile_));
}

CModelInfo2 ProjectorSession::Model() const {
  CModelInfo2 model = ModelInfoOf(profile_);
  if (model.MySourceList.Size() == 0) {
    model.MySourceList = channel_->Inputs().value_or(model.MySourceList);
  }
  return model;
}

void ProjectorSession::SetFault(const FaultTarget& target, const Fault& fault) {
  const auto set = [&target](FaultChannel& channel, const Fault& one) {
    if (const auto* operation = std::get_if<PjtOperation>(&target)) {
      channel.SetFault(*operation, one);
    } else if (const auto* code = std::get_if<std::uint16_t>(&target)) {
      channel.SetFault(*code, one);
    } else {
      channel.SetFault(one);
    }
  };
  const bool waits = fault.kind == Fault::Kind::Late || fault.kind == Fault::Kind::DropOut;
  set(*faultChannel_, fault);
  set(*served_, waits ? Fault{} : fault);
  if (fault.kind == Fault::Kind::None) {
    faults_.erase(target);
  } else {
    faults_[target] = fault;
  }
}

void ProjectorSession::ClearFaults() {
  faultChannel_->Clear();
  served_->Clear();
  faults_.clear();
}

LineFault ProjectorSession::ServedLine() const {
  const auto ofAll = faults_.find(FaultTarget());
  if (ofAll == faults_.end()) return {};
  switch (ofAll->second.kind) {
    case Fault::Kind::DropOut:
      return {.kind = LineFault::Kind::Silent};
    case Fault::Kind::Late:
      return {.kind = LineFault::Kind::Late,
              .amount = static_cast<int>(ofAll->second.delay.count())};
    default:
      return {};
  }
}

std::unique_ptr<CAdvanceDlg> ProjectorSession::MakeDialog() const {
  auto dialog = std::make_unique<CAdvanceDlg>();
  const CModelInfo2 model = ModelInfoOf(profile_);
  dialog->CopyData(&model, 0);
  dialog->SetProjectorName(profile_.name);
  dialog->Projector().SetChannel(channel_);
  // Opening a dialog always asks the projector, even if it was silent just before.
  dialog->Projector().AllowRetry();
  UpdateDialog(*dialog);
  return dialog;
}

void ProjectorSession::UpdateDialog(CAdvanceDlg& dialog) const {
  dialog.SetRatedLampHours(profile_.ratedLampHours);
  std::shared_ptr<const Snapshot> wanted;
  if (!profile_.snapshot.empty()) {
    wanted = PresetFolder::Read(QString::fromStdString(profile_.snapshot)).snapshot;
  }
  dialog.SetWanted(wanted ? *wanted : Snapshot());
}
