#include "app/profiles/ProjectorAccess.h"

#include <cstdlib>
#include <utility>

#include "device/ModelDataIntake.h"

SimulatedModel SimulatedModelOf(const ProjectorProfile& profile) {
  SimulatedModel model = DescribeModel(MakeModelData(profile.Model));
  model.missing = {profile.Lacks.begin(), profile.Lacks.end()};
  return model;
}

ProjectorAccess::ProjectorAccess(const ProjectorProfile& profile,
                                 std::shared_ptr<ProjectorChannel> channel,
                                 std::chrono::milliseconds timeOut)
    : name_(profile.Name),
      model_(profile.Model),
      settings_(MakeModelData(model_)),
      pjLink_(std::dynamic_pointer_cast<PjLinkChannel>(channel)),
      channel_(std::make_shared<PatientChannel>(std::move(channel), timeOut)) {
  tellsInputs_ = pjLink_ != nullptr && model_.MySourceList.Size() == 0;
  connection_.SetChannel(channel_);
}

void ProjectorAccess::AskForInputs(InputsNeeded needed) {
  const bool areKnown = pjLink_ == nullptr || model_.MySourceList.Size() > 0;
  if (areKnown || needed == InputsNeeded::None) return;
  // A description is not asked patiently, so that a command tells first whether anybody is there.
  if (!channel_->Execute({.operation = PjtOperation::GetInputSource}).answered) return;
  const auto description = pjLink_->Describe();
  lacksInputs_ = !description;
  if (lacksInputs_) return;
  model_.MySourceList = SourcesOf(description->inputs);
  settings_ = ModelSettings(MakeModelData(model_));
}

bool ProjectorAccess::HasSteps(const ModelSetting& setting) {
  const auto* const row = std::get_if<ValueRow>(setting.row);
  return row != nullptr && row->of == OfSource::None &&
         FamilyOf(row->Stepping(true, 0).operation) == OperationFamily::Generic;
}

int ProjectorAccess::StepUnread(const ModelSetting& setting, int steps) {
  if (!HasSteps(setting)) return 0;
  const Call step = std::get<ValueRow>(*setting.row).Stepping(steps > 0, 0);
  int done = 0;
  while (done < std::abs(steps) && Perform(connection_, step).accepted) ++done;
  return done;
}
