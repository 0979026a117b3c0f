#include "app/acctl/Uses.h"

#include <algorithm>
#include <fnmatch.h>

#include "device/Connect.h"

namespace {

std::optional<Call> ChangeOf(const ListRow& row) { return row.send; }
std::optional<Call> ChangeOf(const ValueRow& row) {
  return row.stepsOnly ? row.Stepping(true) : row.Setting();
}
std::optional<Call> ChangeOf(const CheckRow& row) { return row.send; }
std::optional<Call> ChangeOf(const StateRow& row) { return row.turnOn; }
std::optional<Call> ChangeOf(const ActionRow& row) { return row.call; }
std::optional<Call> ChangeOf(const auto&) { return {}; }

bool IsInPjLink(const std::optional<Call>& call) {
  return call && PjLinkChannel::Has(call->Command());
}

}  // namespace

bool IsLike(std::string_view name, const std::vector<std::string>& patterns) {
  const std::string text(name);
  return patterns.empty() || std::ranges::any_of(patterns, [&text](const std::string& pattern) {
           return text == pattern || fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
         });
}

bool Target::Carries(const Use& use, const ModelSetting& setting) const {
  return !isPjLink || use.isInPjLink(setting, settings.Model());
}

bool Target::OnlySteps(const ModelSetting& setting) const {
  return isPjLink && IsOnlySteppedOverPjLink(setting);
}

bool Target::LacksEntries(const ModelSetting& setting) const {
  return TellsInputs() && setting.kind == ModelSetting::Kind::Choice && setting.entries.empty();
}

bool IsPjLink(const ProjectorProfile& profile, const Arguments& arguments) {
  if (arguments.address.empty()) return profile.Link == ProjectorLink::PjLink;
  return std::holds_alternative<PjLinkAddress>(ParseAddress(arguments.address));
}

Target TargetOf(const ProjectorAccess& projector) {
  return {projector.Settings(), projector.IsPjLink()};
}

bool IsReadOverPjLink(const ModelSetting& setting, const ModelData& model) {
  return IsInPjLink(ReadingOf(*setting.row, model));
}

bool IsChangedOverPjLink(const ModelSetting& setting, const ModelData&) {
  return IsInPjLink(std::visit([](const auto& row) { return ChangeOf(row); }, *setting.row)) ||
         IsOnlySteppedOverPjLink(setting);
}

bool IsOnlySteppedOverPjLink(const ModelSetting& setting) {
  const auto* const number = std::get_if<ValueRow>(setting.row);
  return number != nullptr && ProjectorAccess::HasSteps(setting) &&
         IsInPjLink(number->Stepping(true)) && !IsInPjLink(number->Reading());
}

bool IsResetOverPjLink(const ModelSetting& setting, const ModelData&) {
  return IsInPjLink(setting.reset);
}

std::string NoAnswerText(const ProjectorAccess& projector) {
  std::string text = "no answer";
  switch (const ConnectionState state = projector.Channel().Connection()) {
    case ConnectionState::None:
    case ConnectionState::Unused:
    case ConnectionState::Connecting:
    case ConnectionState::Connected:
    case ConnectionState::NoAnswer:
      return text;
    default:
      return text + " (" + std::string(ConnectionStateText(state)) + ')';
  }
}

std::string ReasonOf(const ProjectorAccess& projector, const char* refusal) {
  const PatientChannel& channel = projector.Channel();
  if (!channel.HasAnswered()) return NoAnswerText(projector);
  return channel.IsOffered() ? refusal : kNotOffered;
}

void ComplainOf(const ModelSetting& setting, const ProjectorAccess& projector, const char* refusal,
                Report& report) {
  report.Complain(std::string(setting.key) + ": " + ReasonOf(projector, refusal),
                  projector.Channel().HasAnswered() ? ExitCode::Refused : ExitCode::NoAnswer);
}

const Use& UseBy(Arguments::Command command) {
  switch (command) {
    case Arguments::Command::Get:
    case Arguments::Command::Watch:
      return kRead;
    case Arguments::Command::Set:
      return kSet;
    case Arguments::Command::Reset:
      return kReset;
    default:
      return kTold;
  }
}

std::vector<const ModelSetting*> Chosen(const Target& target, const Use& use,
                                        const std::vector<std::string>& words, Report& report) {
  const ModelSettings& settings = target.settings;
  const auto names = [&use](const std::string& word, const ModelSetting& setting) {
    return setting.key == word || (use.isForPatterns(setting) && IsLike(setting.key, {word}));
  };
  std::vector<const ModelSetting*> chosen;
  for (const ModelSetting& setting : settings.All()) {
    const auto isNamed = [&](const std::string& word) { return names(word, setting); };
    const bool isMeant = words.empty() || std::ranges::any_of(words, isNamed);
    if (isMeant && use.isPossible(setting) && target.Carries(use, setting))
      chosen.push_back(&setting);
  }
  for (const std::string& word : words) {
    const auto isNamed = [&](const ModelSetting* setting) { return names(word, *setting); };
    if (std::ranges::any_of(chosen, isNamed)) continue;
    const auto any = [&](const auto& fits) {
      return std::ranges::any_of(settings.All(), [&](const ModelSetting& setting) {
        return IsLike(setting.key, {word}) && fits(setting);
      });
    };
    const bool exists = any([](const ModelSetting&) { return true; });
    const bool isPossible = any([&](const ModelSetting& setting) {
      return names(word, setting) && use.isPossible(setting);
    });
    // One pattern serves projectors of every kind.
    const bool isSkipped = isPossible && settings.Find(word) == nullptr;
    const char* const refusal = isPossible ? kNotInPjLink : use.refusal;
    report.Complain(word + ": " + (isSkipped ? "skipped, " : "") +
                        (exists ? refusal : "this model has no such setting"),
                    isSkipped ? ExitCode::Done : ExitCode::WrongUse);
  }
  return chosen;
}
