#include "app/acctl/Preflight.h"

#include <algorithm>

#include "app/acctl/Aliases.h"
#include "app/acctl/Changes.h"
#include "app/acctl/FileCheck.h"

namespace {

bool HasFile(Command command) { return command == Command::Diff || command == Command::Apply; }

/// Checks everything that is the same for all projectors of this kind. Returns whether that covers
/// all there is to check.
bool CheckWithoutAsking(const Work& work, const Target& target, Report& report) {
  const Arguments& arguments = work.arguments;
  switch (arguments.command) {
    case Command::Set:
      return !NeedsAsking(work, target, report);
    case Command::Get:
    case Command::Watch:
    case Command::Reset:
      Chosen(target, UseBy(arguments.command), arguments.words, work.isForSeveral, report);
      return true;
    case Command::Save:
      Chosen(target, kSaved, arguments.only, work.isForSeveral, report);
      return true;
    default:
      return !HasFile(arguments.command) || !target.ReportsInputs();
  }
}

bool IsWrong(const std::optional<Report>& report) {
  return report && report->code == ExitCode::WrongUse;
}

/// If no projector has a setting, reports that as wrong usage of the first projector.
void RejectCommonLacks(const std::vector<Report>& reports,
                       std::vector<std::optional<Report>>& results) {
  const auto lacks = [](const Report& report, const std::string& key) {
    return std::ranges::any_of(report.problems, [&key](const Problem& problem) {
      return IsLack(problem) && problem.key == key && problem.exitCode != ExitCode::Done;
    });
  };
  for (const Problem& problem : reports.front().problems) {
    const bool isCommon = std::ranges::all_of(
        reports, [&](const Report& report) { return lacks(report, problem.key); });
    if (!isCommon) continue;
    Problem wrong = problem;
    wrong.exitCode = ExitCode::WrongUse;
    if (!results.front()) results.front().emplace();
    results.front()->Add(std::move(wrong));
  }
}

}  // namespace

std::vector<std::string> FileMistakes(const Work& work, const Projectors& projectors,
                                      ModelCache& models) {
  std::vector<std::string> mistakes;
  if (work.arguments.lenient) return mistakes;
  // Projectors of one model have the same mistakes.
  std::vector<std::pair<const ModelSettings*, const SettingsFileContents*>> checked;
  for (const FleetProfile* profile : projectors) {
    const std::pair pair{&models.Of(*profile), &work.files.Of(profile->name)};
    if (std::ranges::find(checked, pair) != checked.end()) continue;
    checked.push_back(pair);
    for (std::string& mistake :
         MistakesIn(work, *pair.second, profile->name, *pair.first, InputNames::OfProfile)) {
      if (std::ranges::find(mistakes, mistake) == mistakes.end()) {
        mistakes.push_back(std::move(mistake));
      }
    }
  }
  return mistakes;
}

std::vector<std::optional<Report>> CheckWords(const Work& work, const Projectors& projectors,
                                              ModelCache& models, const AskEach& askEach) {
  std::vector<std::optional<Report>> results(projectors.size());
  std::vector<Report> reports(projectors.size());
  std::vector<int> asked;
  for (std::size_t i = 0; i < projectors.size(); ++i) {
    const Target target{models.Of(*projectors[i]), IsPjLink(*projectors[i], work.arguments)};
    const bool isAll = CheckWithoutAsking(work, target, reports[i]);
    if (reports[i].code == ExitCode::WrongUse) {
      results[i] = reports[i];
    } else if (!isAll && work.isForSeveral) {
      asked.push_back(static_cast<int>(i));
    }
  }
  if (work.isForSeveral) RejectCommonLacks(reports, results);
  if (!std::ranges::any_of(results, IsWrong)) {
    askEach(asked, [&results](int number, Report report) {
      if (StopsChanges(report)) results[static_cast<std::size_t>(number)] = std::move(report);
    });
  }
  if (std::ranges::any_of(results, IsWrong)) {
    for (std::size_t i = 0; i < results.size(); ++i) {
      if (!results[i]) results[i] = std::move(reports[i]);
    }
  }
  return results;
}

Report CheckByAsking(const Work& work, ProjectorAccess& projector) {
  if (HasFile(work.arguments.command)) return CheckFile(work, projector);
  Report report;
  CheckedChanges(work, projector, report);
  return report;
}

InputsNeeded InputsNeededBy(const Work& work, const Target& target) {
  if (!target.ReportsInputs()) return InputsNeeded::None;
  const Arguments& arguments = work.arguments;
  const auto showsInput = [](const ModelSetting* setting) { return ShowsInput(*setting); };
  Report ignored;
  std::vector<const ModelSetting*> shown;
  if (!work.conditionKeys.empty()) {
    shown = Chosen(target, kRead, work.conditionKeys, true, ignored);
    if (std::ranges::any_of(shown, showsInput)) return InputsNeeded::All;
  }
  switch (arguments.command) {
    case Command::Settings:
      return arguments.brief ? InputsNeeded::None : InputsNeeded::All;
    case Command::Get:
    case Command::Watch:
      shown = Chosen(target, kRead, arguments.words, true, ignored);
      return std::ranges::any_of(shown, showsInput) ? InputsNeeded::Present : InputsNeeded::None;
    case Command::Status:
      return InputsNeeded::Present;
    case Command::Reset:
      return InputsNeeded::None;
    case Command::Set:
      return std::ranges::any_of(arguments.words,
                                 [&](const std::string& word) {
                                   const auto* const setting =
                                       FindSetting(target.settings, word, kSet.isPossible);
                                   return setting != nullptr && target.LacksEntries(*setting);
                                 })
                 ? InputsNeeded::All
                 : InputsNeeded::None;
    default:
      return InputsNeeded::All;
  }
}
