#include "app/acctl/Uses.h"

#include <algorithm>
#include <fnmatch.h>

bool IsLike(std::string_view name, const std::vector<std::string>& patterns) {
  const std::string text(name);
  return patterns.empty() || std::ranges::any_of(patterns, [&text](const std::string& pattern) {
           return text == pattern || fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
         });
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

std::vector<const ModelSetting*> Chosen(const ModelSettings& settings, const Use& use,
                                        const std::vector<std::string>& words, Report& report) {
  const auto names = [&use](const std::string& word, const ModelSetting& setting) {
    return setting.key == word || (use.isForPatterns(setting) && IsLike(setting.key, {word}));
  };
  std::vector<const ModelSetting*> chosen;
  for (const ModelSetting& setting : settings.All()) {
    const auto isNamed = [&](const std::string& word) { return names(word, setting); };
    const bool isMeant = words.empty() || std::ranges::any_of(words, isNamed);
    if (isMeant && use.isPossible(setting)) chosen.push_back(&setting);
  }
  for (const std::string& word : words) {
    const auto isNamed = [&](const ModelSetting* setting) { return names(word, *setting); };
    if (std::ranges::any_of(chosen, isNamed)) continue;
    const bool exists = std::ranges::any_of(settings.All(), [&word](const ModelSetting& setting) {
      return IsLike(setting.key, {word});
    });
    report.Complain(word + ": " + (exists ? use.refusal : "this model has no such setting"),
                    ExitCode::WrongUse);
  }
  return chosen;
}
