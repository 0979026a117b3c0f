#include "app/acctl/Uses.h"

#include <algorithm>

#include "app/acctl/Aliases.h"
#include "app/acctl/Selection.h"
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

/// Why the connection has no answer.
QString ReasonOf(ConnectionState state) {
  [[maybe_unused]] static constexpr const char* kReasons[] = {
      QT_TRANSLATE_NOOP("Acctl", "wrong connection parameters"),
      QT_TRANSLATE_NOOP("Acctl", "unknown host name"),
      QT_TRANSLATE_NOOP("Acctl", "not reachable"),
      QT_TRANSLATE_NOOP("Acctl", "connection lost"),
      QT_TRANSLATE_NOOP("Acctl", "answers are not understood"),
      QT_TRANSLATE_NOOP("Acctl", "another version of the protocol"),
      QT_TRANSLATE_NOOP("Acctl", "password missing or wrong"),
  };
  return Acctl::tr(std::string(ConnectionStateText(state)).c_str());
}

bool Names(const Target& target, const Use& use, const std::string& word,
           const ModelSetting& setting) {
  if (setting.key == word) return true;
  return use.isForPatterns(setting) &&
         (IsLike(setting.key, {word}) ||
          FindSetting(target.settings, word, use.isPossible) == &setting);
}

}  // namespace

bool Target::Carries(const Use& use, const ModelSetting& setting) const {
  return !isPjLink || use.isInPjLink(setting, settings.Model());
}

bool Target::OnlySteps(const ModelSetting& setting) const {
  return isPjLink && IsOnlySteppedOverPjLink(setting);
}

bool Target::LacksEntries(const ModelSetting& setting) const {
  return ReportsInputs() && setting.kind == ModelSetting::Kind::Choice && setting.entries.empty();
}

bool IsPjLink(const FleetProfile& profile, const Arguments& arguments) {
  const std::string& address = arguments.connecting.address;
  if (address.empty()) return profile.link == ProjectorLink::PjLink;
  return std::holds_alternative<PjLinkAddress>(ParseAddress(address));
}

Target TargetOf(const ProjectorAccess& projector) {
  return {projector.Settings(), projector.IsPjLink()};
}

bool ShowsInput(const ModelSetting& setting) {
  return setting.key == "status.input-source" || setting.SelectsInput();
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

Problem NoAnswerOf(const ProjectorAccess& projector) {
  Problem problem{ProblemCode::NoAnswer, Message(Acctl::tr("no answer"))};
  problem.exitCode = ExitCode::NoAnswer;
  switch (const ConnectionState state = projector.Channel().Connection()) {
    case ConnectionState::None:
    case ConnectionState::Unused:
    case ConnectionState::Connecting:
    case ConnectionState::Connected:
    case ConnectionState::NoAnswer:
      return problem;
    case ConnectionState::PasswordRequired:
      problem.code = ProblemCode::WrongPassword;
      [[fallthrough]];
    default:
      problem.text = Message(Acctl::tr("no answer (%1)"), ReasonOf(state));
      return problem;
  }
}

Problem InterruptionOf() {
  //: By Ctrl+C or another signal.
  return {ProblemCode::Stopped, Message(Acctl::tr("interrupted"))};
}

Problem FailureOf(const ProjectorAccess& projector, Problem otherwise) {
  const PatientChannel& channel = projector.Channel();
  Problem problem = std::move(otherwise);
  if (!channel.HasAnswered()) {
    Problem silence = NoAnswerOf(projector);
    silence.key = problem.key;
    return silence;
  }
  if (!channel.IsOffered()) {
    problem.code = ProblemCode::NotOffered;
    problem.text = NotOffered();
  }
  return problem;
}

const Use& UseBy(Command command) {
  switch (command) {
    case Command::Get:
    case Command::Watch:
      return kRead;
    case Command::Set:
      return kSet;
    case Command::Reset:
      return kReset;
    default:
      return kListed;
  }
}

bool IsLack(const Problem& problem) {
  return problem.code == ProblemCode::NoSuchSetting || problem.code == ProblemCode::NotInProtocol;
}

Problem LackOf(std::string_view word, bool isInModel, bool isForSeveral) {
  return {.code = isInModel ? ProblemCode::NotInProtocol : ProblemCode::NoSuchSetting,
          .text = isInModel ? NotInPjLink() : Message(Acctl::tr("this model has no such setting")),
          .key = std::string(word),
          .exitCode = isForSeveral ? ExitCode::Refused : ExitCode::WrongUse};
}

std::vector<const ModelSetting*> Chosen(const Target& target, const Use& use,
                                        const std::vector<std::string>& words, bool isForSeveral,
                                        Report& report) {
  const ModelSettings& settings = target.settings;
  std::vector<const ModelSetting*> chosen;
  for (const ModelSetting& setting : settings.All()) {
    const auto isNamed = [&](const std::string& word) { return Names(target, use, word, setting); };
    const bool isMeant = words.empty() || std::ranges::any_of(words, isNamed);
    if (isMeant && use.isPossible(setting) && target.Carries(use, setting))
      chosen.push_back(&setting);
  }
  for (const std::string& word : words) {
    const auto isNamed = [&](const ModelSetting* setting) {
      return Names(target, use, word, *setting);
    };
    if (std::ranges::any_of(chosen, isNamed)) continue;
    const bool exists = FindSetting(settings, word) != nullptr ||
                        std::ranges::any_of(settings.All(), [&](const ModelSetting& setting) {
                          return IsLike(setting.key, {word});
                        });
    const bool isPossible = std::ranges::any_of(settings.All(), [&](const ModelSetting& setting) {
      return Names(target, use, word, setting) && use.isPossible(setting);
    });
    if (exists && !isPossible) {
      report.Add({.code = ProblemCode::NotPossible,
                  .text = Message(Acctl::tr(use.refusal)),
                  .key = word,
                  .exitCode = ExitCode::WrongUse});
    } else if (isPossible && FindSetting(settings, word) == nullptr) {
      // One pattern is for projectors of every kind.
      report.Add({.code = ProblemCode::NotInProtocol,
                  .text = Message(Acctl::tr("skipped, PJLink does not have it")),
                  .key = word,
                  .exitCode = ExitCode::Done});
    } else {
      report.Add(LackOf(word, exists, isForSeveral));
    }
  }
  return chosen;
}
