#include <map>
#include <thread>

#include <QJsonDocument>

#include "app/acctl/Output.h"
#include "app/acctl/Reading.h"
#include "app/acctl/Uses.h"
#include "settings/CatalogNumbers.h"

namespace {

using Kind = ModelSetting::Kind;

const char* NameOf(Kind kind) {
  switch (kind) {
    case Kind::Number:
      return "number";
    case Kind::Choice:
      return "choice";
    case Kind::State:
      return "state";
    default:
      return "action";
  }
}

std::vector<const ModelSetting*> States(const Target& target, Report& report) {
  std::vector<const ModelSetting*> states = Chosen(target, kRead, {}, report);
  std::erase_if(states,
                [](const ModelSetting* setting) { return setting->tab != Caption::TabStatus; });
  return states;
}

QJsonObject Describe(const SettingTexts& texts, const ModelSetting& setting) {
  QJsonObject json{{"key", Wide(setting.key)},
                   {"caption", Wide(texts.Caption(setting))},
                   {"tab", Wide(texts.Tab(setting))},
                   {"kind", NameOf(setting.kind)},
                   {"readable", setting.readable},
                   {"changeable", setting.changeable},
                   {"restorable", setting.Restorable()},
                   {"perSource", setting.IsPerSource()},
                   {"resettable", setting.reset.has_value()}};
  if (setting.range) {
    json["minimum"] = setting.range->minimum - setting.bias;
    json["maximum"] = setting.range->maximum - setting.bias;
  }
  if (setting.kind == Kind::Choice) {
    QJsonArray entries;
    for (const ListEntry& entry : setting.entries) {
      entries.append(
          QJsonObject{{"value", entry.value}, {"text", Wide(texts.Entry(setting, entry))}});
    }
    json["entries"] = entries;
  }
  return json;
}

void WaitInSteps(std::chrono::milliseconds time, const Progress& progress) {
  constexpr std::chrono::milliseconds kStep{20};
  const auto end = std::chrono::steady_clock::now() + time;
  while (progress.goesOn() && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(kStep);
  }
}

}  // namespace

Progress ProgressOf(const Work& work, const ProjectorAccess& projector) {
  return {.goesOn = [&work,
                     &projector] { return !work.isInterrupted() && !projector.Channel().IsGone(); },
          .step = work.step};
}

QJsonObject ValueOf(const SettingTexts& texts, const ModelSetting& setting, int value,
                    std::optional<PowerState> power) {
  return {{"key", Wide(setting.key)},
          {"caption", Wide(texts.Caption(setting))},
          {"value", value},
          {"shown", value - setting.bias},
          {"text", Wide(texts.Value(setting, value, power))}};
}

Report RunSettings(const Work& work, ProjectorAccess& projector) {
  Report report;
  Table table;
  QJsonArray described;
  for (const ModelSetting* setting :
       Chosen(TargetOf(projector), UseBy(work.arguments.usedBy), work.arguments.words, report)) {
    described.append(Describe(work.texts, *setting));
    if (work.arguments.brief) {
      table.Add({std::string(setting->key)});
    } else {
      const bool taken = setting->changeable;
      table.Add({std::string(setting->key), work.texts.Tab(*setting), work.texts.Caption(*setting),
                 taken ? work.texts.Values(*setting) : std::string(NameOf(setting->kind))});
    }
  }
  report.text = table.Text();
  report.json["settings"] = described;
  return report;
}

Report RunGet(const Work& work, ProjectorAccess& projector) {
  Report report;
  ReadInto(work, projector, Chosen(TargetOf(projector), kRead, work.arguments.words, report),
           report);
  return report;
}

Report RunStatus(const Work& work, ProjectorAccess& projector) {
  Report report;
  ReadInto(work, projector, States(TargetOf(projector), report), report);
  return report;
}

Report RunWatch(const Work& work, ProjectorAccess& projector) {
  Report report;
  const auto chosen = Chosen(TargetOf(projector), kRead, work.arguments.words, report);
  const Progress progress = ProgressOf(work, projector);
  std::map<const ModelSetting*, std::pair<std::optional<int>, std::string>> last;
  while (report.code == ExitCode::Done && progress.goesOn()) {
    for (const auto& [setting, source] :
         projector.Settings().PrepareReads(projector.Connection(), chosen)) {
      if (report.code != ExitCode::Done || work.isInterrupted()) break;
      const auto value = projector.Settings().Read(projector.Connection(), *setting, source);
      if (!projector.Channel().HasAnswered()) ComplainOf(*setting, projector, "", report);
      const auto power = projector.Connection().Power();
      // Warming up and on are one value.
      const std::pair shown{value, value ? work.texts.Value(*setting, *value, power) : ""};
      const auto [known, isNew] = last.try_emplace(setting, shown);
      if (!isNew && known->second == shown) continue;
      known->second = shown;
      if (!value) {
        if (!projector.Channel().HasAnswered()) continue;
        const std::string reason = ReasonOf(projector, kNotReadable);
        const char* const rest = RestOf(AskPower(projector));
        Complain(projector.Name() + ": " + std::string(setting->key) + ": " + reason +
                 (rest != nullptr ? std::string(", the projector is ") + rest : ""));
        continue;
      }
      Table line;
      line.Add(Cells(work.texts, *setting, *value, power));
      const QJsonDocument json(ValueOf(work.texts, *setting, *value, power));
      const std::string text = work.arguments.json
                                   ? json.toJson(QJsonDocument::Compact).toStdString() + '\n'
                                   : line.Text();
      if (!Print(text)) {
        report.code = ExitCode::Refused;
        return report;
      }
    }
    WaitInSteps(work.arguments.interval, progress);
  }
  return report;
}
