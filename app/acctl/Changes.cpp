#include "app/acctl/Changes.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include "app/acctl/Aliases.h"
#include "app/acctl/Message.h"
#include "app/acctl/Reading.h"

namespace {

/// The change that a key and a value describe. Nothing if they are wrong, which is added to the
/// report as a problem, or if it depends on inputs that the projector has not reported yet.
std::optional<Change> ChangeOf(const Work& work, const Target& target, const std::string& key,
                               const std::string& word, Report& report) {
  const ModelSetting* const setting = FindSetting(target.settings, key, kSet.isPossible);
  const auto fail = [&](const char* code, std::string text) {
    report.Add({code, std::move(text), key, {}, ExitCode::WrongUse});
    return std::nullopt;
  };
  const bool isUnknown = setting != nullptr && target.LacksEntries(*setting);
  if (setting != nullptr && !isUnknown && !kSet.isPossible(*setting))
    return fail(ProblemCode::NotPossible, Message(Acctl::tr(kSet.refusal)));
  if (setting == nullptr || !target.Carries(kSet, *setting)) {
    report.Add(LackOf(key, setting != nullptr, work.isForSeveral));
    return {};
  }
  if (isUnknown) return {};
  const auto typed = work.texts.Parse(*setting, word);
  if (!typed || (!typed->relative && !setting->Allows(typed->amount))) {
    return fail(ProblemCode::OutOfRange, Message(Acctl::tr("'%1' is not one of: %2"), word,
                                                 work.texts.Shown().Values(*setting)));
  }
  if (target.OnlySteps(*setting) && !typed->relative) {
    return fail(
        ProblemCode::OutOfRange,
        Message(Acctl::tr("'%1' is not a step such as +1 or -1, and PJLink can only step it"),
                word));
  }
  if (typed->relative && IsUnbounded(target, *setting) && std::abs(typed->amount) > kMostSteps) {
    return fail(ProblemCode::OutOfRange,
                Message(Acctl::tr("'%1' is more than %n steps", nullptr, kMostSteps), word));
  }
  return Change{setting, *typed, word};
}

std::vector<Change> ChangesOf(const Work& work, const Target& target, Report& report) {
  std::vector<Change> changes;
  const auto& words = work.arguments.words;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    if (auto change = ChangeOf(work, target, words[i], words[i + 1], report)) {
      changes.push_back(std::move(*change));
    }
  }
  return changes;
}

/// Reports values that cannot be reached from the present ones. Behind a change of source or mode,
/// the present value of another setting is only known after that change was made.
void CheckSteps(std::vector<Change>& changes, const Work& work, ProjectorAccess& projector,
                Report& report) {
  const Progress progress = ProgressOf(work, projector);
  const Target target = TargetOf(projector);
  std::map<const ModelSetting*, std::optional<int>> expected;
  bool isForOtherMode = false;
  for (Change& change : changes) {
    const ModelSetting& setting = *change.setting;
    if (target.OnlySteps(setting)) continue;  // its value is unknown
    std::optional<int>& value = expected[&setting];
    if (!change.typed.relative && !IsUnbounded(target, setting)) {
      value = change.typed.amount;
    } else if (progress.goesOn() && (value || !isForOtherMode)) {
      if (!value) {
        change.source = projector.Settings().PresentSource(projector.Connection(), setting);
        value = projector.Settings().Read(projector.Connection(), setting, change.source);
        change.present = value;
      }
      if (!value) {
        report.Add(FailureOf(projector,
                             {ProblemCode::NotReadable, NotReadable(), std::string(setting.key)}));
        continue;
      }
      value = AimOf(change, work, target, value, ExitCode::WrongUse, report);
    }
    if (&change == &changes.front()) change.aim = value;
    if (!SelectsMode(work, setting)) continue;
    isForOtherMode = true;
    std::erase_if(expected, [&](const auto& other) { return other.first != &setting; });
  }
}

}  // namespace

bool SelectsMode(const Work& work, const ModelSetting& setting) {
  return setting.kind == ModelSetting::Kind::Choice ||
         (setting.kind == ModelSetting::Kind::State && work.arguments.wait);
}

bool IsUnbounded(const Target& target, const ModelSetting& setting) {
  return target.OnlySteps(setting) || (setting.IsStepped() && !setting.range);
}

std::optional<int> AimOf(const Change& change, const Work& work, const Target& target,
                         std::optional<int> present, int wrong, Report& report) {
  const ModelSetting& setting = *change.setting;
  const bool isUnbounded = IsUnbounded(target, setting);
  const std::string key(setting.key);
  if ((change.typed.relative || isUnbounded) && !present) {
    report.Add({ProblemCode::NotReadable, NotReadable(), key});
    return {};
  }
  const SettingTexts& texts = work.texts.Shown();
  const auto value = Resolve(setting, change.typed, present);
  if (!value) {
    //: A step such as +3, the value that it starts from, and the values that are possible.
    report.Add({ProblemCode::OutOfRange,
                Message(Acctl::tr("'%1' from %2 is not one of: %3"), change.word,
                        texts.Value(setting, *present), texts.Values(setting)),
                key,
                {},
                wrong});
  } else if (isUnbounded && std::abs(*value - *present) > kMostSteps) {
    report.Add({ProblemCode::OutOfRange,
                Message(Acctl::tr("'%1' is more than %n steps from %2", nullptr, kMostSteps),
                        change.word, texts.Value(setting, *present)),
                key,
                {},
                wrong});
    return {};
  }
  return value;
}

std::vector<Change> CheckedChanges(const Work& work, ProjectorAccess& projector, Report& report) {
  const Target target = TargetOf(projector);
  std::vector<Change> changes = ChangesOf(work, target, report);
  for (std::size_t i = 0; i < work.arguments.words.size(); i += 2) {
    const ModelSetting* const setting =
        FindSetting(target.settings, work.arguments.words[i], kSet.isPossible);
    if (setting == nullptr || !target.LacksEntries(*setting)) continue;
    report.Add({ProblemCode::InputsUnknown,
                InputsNotRead(),
                std::string(setting->key),
                {},
                ExitCode::NoAnswer});
  }
  if (!StopsChanges(report)) CheckSteps(changes, work, projector, report);
  return changes;
}

bool StopsChanges(const Report& report) {
  return std::ranges::any_of(report.problems, [](const Problem& problem) {
    return problem.exitCode == ExitCode::WrongUse ||
           (problem.exitCode != ExitCode::Done && !IsLack(problem));
  });
}

bool NeedsAsking(const Work& work, const Target& target, Report& report) {
  const std::vector<Change> changes = ChangesOf(work, target, report);
  const bool isComplete =
      2 * (changes.size() + report.problems.size()) == work.arguments.words.size();
  return !isComplete || std::ranges::any_of(changes, [&target](const Change& change) {
    return change.typed.relative || IsUnbounded(target, *change.setting);
  });
}
