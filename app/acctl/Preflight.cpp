#include "app/acctl/Preflight.h"

#include <algorithm>

#include "app/acctl/FileCheck.h"
#include "app/acctl/Output.h"
#include "device/ModelDataIntake.h"

namespace {

using Command = Arguments::Command;

ModelSettings SettingsOf(const ProjectorProfile& profile) {
  return ModelSettings(MakeModelData(profile.Model));
}

bool HasFile(Command command) { return command == Command::Diff || command == Command::Apply; }

/// What is wrong for any projector like this. Whether that is all that can be wrong.
bool CheckUnasked(const Work& work, const Target& target, Report& report) {
  const Arguments& arguments = work.arguments;
  switch (arguments.command) {
    case Command::Set:
      return !NeedsAsking(work, target, report);
    case Command::Get:
    case Command::Watch:
    case Command::Reset:
      Chosen(target, UseBy(arguments.command), arguments.words, report);
      return true;
    case Command::Save:
      Chosen(target, kKept, arguments.only, report);
      return true;
    default:
      return !HasFile(arguments.command) || !target.TellsInputs();
  }
}

bool IsWrong(const std::optional<Report>& report) {
  return report && report->code == ExitCode::WrongUse;
}

}  // namespace

int CheckFile(const Work& work, const std::vector<const ProjectorProfile*>& projectors) {
  if (work.arguments.lenient) return ExitCode::Done;
  std::vector<std::string> told;
  for (const ProjectorProfile* profile : projectors) {
    for (std::string& mistake : MistakesIn(work, SettingsOf(*profile), InputNames::OfProfile)) {
      if (std::ranges::find(told, mistake) != told.end()) continue;
      Complain(mistake);
      told.push_back(std::move(mistake));
    }
  }
  return told.empty() ? ExitCode::Done : ExitCode::WrongUse;
}

std::vector<std::optional<Report>> CheckWords(
    const Work& work, const std::vector<const ProjectorProfile*>& projectors, Meter& meter,
    const std::function<Report(int)>& ask) {
  std::vector<std::optional<Report>> reports(projectors.size());
  std::vector<int> asked;
  for (std::size_t i = 0; i < projectors.size(); ++i) {
    const ModelSettings settings = SettingsOf(*projectors[i]);
    Report report;
    const bool isAll =
        CheckUnasked(work, {settings, IsPjLink(*projectors[i], work.arguments)}, report);
    if (report.code != ExitCode::Done) {
      reports[i] = std::move(report);
    } else if (!isAll && projectors.size() > 1) {
      asked.push_back(static_cast<int>(i));
    }
  }
  if (!std::ranges::any_of(reports, IsWrong)) {
    RunParallel(
        static_cast<int>(asked.size()), work.arguments.jobs, meter,
        [&](int turn) { return ask(asked[static_cast<std::size_t>(turn)]); },
        [&](int turn, Report report) {
          if (report.code == ExitCode::Done) return;
          const auto number = static_cast<std::size_t>(asked[static_cast<std::size_t>(turn)]);
          reports[number] = std::move(report);
        });
  }
  if (std::ranges::any_of(reports, IsWrong)) {
    for (std::optional<Report>& report : reports) report = report.value_or(Report());
  }
  return reports;
}

Report CheckAsked(const Work& work, ProjectorAccess& projector) {
  return HasFile(work.arguments.command) ? CheckFile(work, projector) : CheckSet(work, projector);
}

InputsNeeded InputsNeededBy(const Work& work, const Target& target) {
  if (!target.TellsInputs()) return InputsNeeded::None;
  const Arguments& arguments = work.arguments;
  const auto showsInput = [](const ModelSetting* setting) {
    return setting->key == "status.input-source" || setting->SelectsInput();
  };
  Report ignored;
  std::vector<const ModelSetting*> shown;
  switch (arguments.command) {
    case Command::Settings:
      return arguments.brief ? InputsNeeded::None : InputsNeeded::All;
    case Command::Get:
    case Command::Watch:
      shown = Chosen(target, kRead, arguments.words, ignored);
      return std::ranges::any_of(shown, showsInput) ? InputsNeeded::Present : InputsNeeded::None;
    case Command::Status:
      return InputsNeeded::Present;
    case Command::Reset:
      return InputsNeeded::None;
    case Command::Set:
      return std::ranges::any_of(arguments.words,
                                 [&](const std::string& word) {
                                   const auto* const setting = target.settings.Find(word);
                                   return setting != nullptr && target.LacksEntries(*setting);
                                 })
                 ? InputsNeeded::All
                 : InputsNeeded::None;
    default:
      return InputsNeeded::All;
  }
}
