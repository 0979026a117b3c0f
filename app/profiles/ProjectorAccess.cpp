#include "app/profiles/ProjectorAccess.h"

#include <cstdlib>
#include <tuple>
#include <utility>

#include "app/profiles/PjLinkCache.h"
#include "device/channels/WireChannel.h"
#include "fleet/WireJobChannel.h"

SimulatedModel SimulatedModelOf(const FleetProfile& profile) {
  SimulatedModel model = DescribeModel(profile.model->data);
  model.missing = {profile.model->lacks.begin(), profile.model->lacks.end()};
  return model;
}

namespace {

/// Whether the projector at the other end of a connection has greeted; false for a simulated one.
bool HasGreeted(const ProjectorChannel& channel) {
  if (const auto* const pjLink = dynamic_cast<const PjLinkChannel*>(&channel)) {
    return pjLink->HasGreeted();
  }
  if (const auto* const job = dynamic_cast<const WireJobChannel*>(&channel)) {
    return job->HasGreeted();
  }
  const auto* const wire = dynamic_cast<const WireChannel*>(&channel);
  return wire != nullptr && wire->HasGreeted();
}

}  // namespace

ProjectorAccess::ProjectorAccess(const FleetProfile& profile,
                                 const std::shared_ptr<ProjectorChannel>& channel,
                                 std::chrono::milliseconds timeOut,
                                 std::shared_ptr<const ModelSettings> settings)
    : name_(profile.name),
      settings_(settings ? std::move(settings)
                         : std::make_shared<const ModelSettings>(profile.model->data)),
      pjLink_(std::dynamic_pointer_cast<PjLinkChannel>(channel)),
      channel_(std::make_shared<PatientChannel>(
          channel, timeOut, [&channel = *channel] { return HasGreeted(channel); })) {
  reportsInputs_ = pjLink_ != nullptr && settings_->Model().MySourceList.Size() == 0;
  connection_.SetChannel(channel_);
  if (!pjLink_) return;
  remembered_ = ReadPjLinkCache(pjLink_->Address());
  pjLink_->Remember(remembered_);
}

ProjectorAccess::~ProjectorAccess() {
  if (!pjLink_) return;
  const PjLinkFacts known = pjLink_->Facts();
  const bool isMore = known.protocolClass && known != remembered_ &&
                      (!known.inputs.empty() || remembered_.inputs.empty());
  if (isMore) WritePjLinkCache(pjLink_->Address(), known);
}

void ProjectorAccess::AskForInputs(InputsNeeded needed) {
  const bool areKnown = pjLink_ == nullptr || settings_->Model().MySourceList.Size() > 0;
  if (areKnown || needed == InputsNeeded::None) return;
  std::vector<PjLinkInput> inputs;
  bool areTold = false;
  if (needed == InputsNeeded::Present) {
    const auto [input, isTold] = pjLink_->AskForPresentInput();
    if (input) inputs.push_back(*input);
    areTold = isTold;
  } else {
    std::tie(inputs, areTold) = pjLink_->AskForInputs();
  }
  lacksInputs_ = !areTold;
  // A projector that has accepted the connection may still answer other questions.
  if (lacksInputs_ && !pjLink_->HasGreeted()) channel_->GiveUp();
  if (inputs.empty()) return;
  ModelData model = settings_->Model();
  model.MySourceList = SourcesOf(inputs, InputCodes::AllNames);
  settings_ = std::make_shared<const ModelSettings>(std::move(model));
}

bool ProjectorAccess::HasSteps(const ModelSetting& setting) {
  const auto* const row = std::get_if<ValueRow>(setting.row);
  return row != nullptr && row->of == OfSource::None &&
         FamilyOf(row->Stepping(true, 0).operation) == OperationFamily::GenericStepper;
}

int ProjectorAccess::StepUnread(const ModelSetting& setting, int steps,
                                const std::function<bool()>& goesOn) {
  if (!HasSteps(setting)) return 0;
  const Call step = std::get<ValueRow>(*setting.row).Stepping(steps > 0, 0);
  int done = 0;
  while (done < std::abs(steps) && goesOn() && Perform(connection_, step).accepted) ++done;
  return done;
}
