#include "app/acctl/Commands.h"

#include <map>
#include <thread>

#include <QJsonArray>
#include <QJsonDocument>

#include "app/acctl/Output.h"
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

std::vector<std::string> Cells(const SettingTexts& texts, const ModelSetting& setting, int value) {
  return {std::string(setting.key), texts.Caption(setting), texts.Value(setting, value)};
}

/// Settings with their values, for people and for scripts.
class Values {
 public:
  explicit Values(const SettingTexts& texts) : texts_(texts) {}

  void Add(const ModelSetting& setting, int value) {
    table_.Add(Cells(texts_, setting, value));
    json_.append(ValueOf(texts_, setting, value));
  }
  void PutInto(Report& report) const {
    report.text = table_.Text();
    report.json["settings"] = json_;
  }

 private:
  const SettingTexts& texts_;
  Table table_;
  QJsonArray json_;
};

bool IsNamed(const Work& work, const ModelSetting& setting) {
  const auto& words = work.arguments.words;
  return std::ranges::find(words, setting.key) != words.end();
}

/// Reads settings into the report; once the projector is gone no other is asked. What it does not
/// offer is refused only where it was asked for by its key.
void ReadInto(const Work& work, ProjectorAccess& projector,
              const std::vector<const ModelSetting*>& settings, Report& report) {
  const Progress progress = ProgressOf(work, projector);
  Values values(work.texts);
  std::string notOffered;
  std::vector<SourcedSetting> reads;
  if (progress.goesOn()) {
    reads = projector.Settings().PrepareReads(projector.Connection(), settings);
  }
  for (const auto& [setting, source] : reads) {
    if (const auto value = projector.Settings().Read(projector.Connection(), *setting, source)) {
      values.Add(*setting, *value);
    } else if (projector.Channel().IsOffered() || IsNamed(work, *setting)) {
      ComplainOf(*setting, projector, kNotReadable, report);
    } else {
      notOffered.append(notOffered.empty() ? "" : ", ").append(setting->key);
    }
    progress.step();
    if (!progress.goesOn()) break;
  }
  if (!notOffered.empty()) {
    report.Complain(std::string("skipped, ").append(kNotOffered).append(": ") + notOffered,
                    ExitCode::Done);
  }
  values.PutInto(report);
}

struct Change {
  const ModelSetting* setting;
  TypedValue typed;
  std::string word;
};

/// The changes that the words ask for; anything wrong is complained of.
std::vector<Change> ChangesOf(const Work& work, const ModelSettings& settings, Report& report) {
  std::vector<Change> changes;
  const auto& words = work.arguments.words;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const std::string& key = words[i];
    const std::string& word = words[i + 1];
    const ModelSetting* const setting = settings.Find(key);
    if (setting == nullptr) {
      report.Complain(key + ": this model has no such setting", ExitCode::WrongUse);
    } else if (!kSet.isPossible(*setting)) {
      report.Complain(key + ": " + kSet.refusal, ExitCode::WrongUse);
    } else if (const auto typed = work.texts.Parse(*setting, word);
               !typed || (!typed->relative && !setting->Allows(typed->amount))) {
      report.Complain(std::string(key)
                          .append(": '")
                          .append(word)
                          .append("' is not one of: ")
                          .append(work.texts.Values(*setting)),
                      ExitCode::WrongUse);
    } else {
      changes.push_back({setting, *typed, word});
    }
  }
  return changes;
}

/// The value that a change comes to from `present`, which is asked where it is not known; without
/// one it is complained of.
std::optional<int> Aim(const Change& change, const Work& work, ProjectorAccess& projector,
                       std::optional<int> source, std::optional<int> present, Report& report) {
  const ModelSetting& setting = *change.setting;
  if (change.typed.relative && !present) {
    present = projector.Settings().Read(projector.Connection(), setting, source);
    if (!present) {
      ComplainOf(setting, projector, kNotReadable, report);
      return {};
    }
  }
  const auto value = Resolve(setting, change.typed, present);
  if (!value) {
    report.Complain(std::string(setting.key) + ": '" + change.word + "' from " +
                        work.texts.Value(setting, *present) +
                        " is not one of: " + work.texts.Values(setting),
                    ExitCode::WrongUse);
  }
  return value;
}

/// Complains of steps that lead nowhere. What a setting kept for each input source has behind a
/// change of the source is only known then.
void CheckSteps(const std::vector<Change>& changes, const Work& work, ProjectorAccess& projector,
                Report& report) {
  const Progress progress = ProgressOf(work, projector);
  std::map<const ModelSetting*, std::optional<int>> expected;
  bool ofOtherSource = false;
  for (const Change& change : changes) {
    const ModelSetting& setting = *change.setting;
    ofOtherSource = ofOtherSource || setting.SelectsInput();
    if (ofOtherSource && setting.IsPerSource()) continue;
    std::optional<int>& value = expected[&setting];
    if (!change.typed.relative) {
      value = change.typed.amount;
    } else if (progress.goesOn()) {
      const auto source = projector.Settings().PresentSource(projector.Connection(), setting);
      value = Aim(change, work, projector, source, value, report);
    }
  }
}

/// Makes a change and adds what the projector has then.
void Make(const Change& change, const Work& work, ProjectorAccess& projector, Values& values,
          Report& report) {
  const ModelSetting& setting = *change.setting;
  const ModelSettings& settings = projector.Settings();
  const auto source = settings.PresentSource(projector.Connection(), setting);
  const auto value = Aim(change, work, projector, source, {}, report);
  if (!value) return;
  const bool accepted = settings.Change(
      projector.Connection(), setting, *value,
      {work.texts.Value(setting, *value), source, ProgressOf(work, projector).goesOn});
  if (!accepted || !projector.Channel().HasAnswered()) {
    ComplainOf(setting, projector, "refused", report);
  }
  if (projector.Channel().IsGone() || !setting.readable) return;
  // A setter without a result says nothing; what is read afterwards does.
  const auto now = settings.Read(projector.Connection(), setting, source);
  if (!now) return ComplainOf(setting, projector, kNotReadable, report);
  values.Add(setting, *now);
  // A projector that is cooling down does what it was told.
  const bool isSo = setting.kind == Kind::State ? (now == 1) == (*value == 1) : now == *value;
  if (accepted && !isSo) {
    report.Complain(
        std::string(setting.key) + ": refused, it is " + work.texts.Value(setting, *now),
        ExitCode::Refused);
  }
}

std::vector<const ModelSetting*> States(const ModelSettings& settings) {
  std::vector<const ModelSetting*> states;
  for (const ModelSetting& setting : settings.All()) {
    if (setting.tab == Caption::TabStatus) states.push_back(&setting);
  }
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
      entries.append(QJsonObject{{"value", entry.value}, {"text", Wide(texts.Entry(entry))}});
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

QJsonObject ValueOf(const SettingTexts& texts, const ModelSetting& setting, int value) {
  return {{"key", Wide(setting.key)},
          {"caption", Wide(texts.Caption(setting))},
          {"value", value},
          {"shown", value - setting.bias},
          {"text", Wide(texts.Value(setting, value))}};
}

Report RunSettings(const Work& work, ProjectorAccess& projector) {
  Report report;
  Table table;
  QJsonArray described;
  for (const ModelSetting* setting :
       Chosen(projector.Settings(), UseBy(work.arguments.usedBy), work.arguments.words, report)) {
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
  ReadInto(work, projector, Chosen(projector.Settings(), kRead, work.arguments.words, report),
           report);
  return report;
}

Report RunSet(const Work& work, ProjectorAccess& projector) {
  Report report;
  const std::vector<Change> changes = ChangesOf(work, projector.Settings(), report);
  if (report.code == ExitCode::Done) CheckSteps(changes, work, projector, report);
  if (report.code != ExitCode::Done) return report;  // nothing is sent unless all of it can be
  const Progress progress = ProgressOf(work, projector);
  Values values(work.texts);
  for (const Change& change : changes) {
    if (!progress.goesOn()) break;
    Make(change, work, projector, values, report);
    progress.step();
  }
  values.PutInto(report);
  return report;
}

Report RunReset(const Work& work, ProjectorAccess& projector) {
  Report report;
  const auto chosen = Chosen(projector.Settings(), kReset, work.arguments.words, report);
  if (report.code != ExitCode::Done) return report;
  const Progress progress = ProgressOf(work, projector);
  std::vector<const ModelSetting*> done;
  for (const ModelSetting* setting : chosen) {
    if (!progress.goesOn()) break;
    if (Perform(projector.Connection(), *setting->reset).accepted) {
      done.push_back(setting);
    } else {
      ComplainOf(*setting, projector, "refused", report);
    }
  }
  ReadInto(work, projector, done, report);
  return report;
}

Report RunStatus(const Work& work, ProjectorAccess& projector) {
  Report report;
  ReadInto(work, projector, States(projector.Settings()), report);
  return report;
}

Report RunWatch(const Work& work, ProjectorAccess& projector) {
  Report report;
  const auto chosen = Chosen(projector.Settings(), kRead, work.arguments.words, report);
  const Progress progress = ProgressOf(work, projector);
  std::map<const ModelSetting*, std::optional<int>> last;
  while (report.code == ExitCode::Done && progress.goesOn()) {
    for (const auto& [setting, source] :
         projector.Settings().PrepareReads(projector.Connection(), chosen)) {
      if (report.code != ExitCode::Done || work.isInterrupted()) break;
      const auto value = projector.Settings().Read(projector.Connection(), *setting, source);
      if (!projector.Channel().HasAnswered()) ComplainOf(*setting, projector, "", report);
      const auto [known, isNew] = last.try_emplace(setting, value);
      if (!isNew && known->second == value) continue;
      known->second = value;
      if (!value) {
        if (!projector.Channel().HasAnswered()) continue;
        Complain(projector.Name() + ": " + std::string(setting->key) + ": " +
                 ReasonOf(projector, kNotReadable));
        continue;
      }
      Table line;
      line.Add(Cells(work.texts, *setting, *value));
      const QJsonDocument json(ValueOf(work.texts, *setting, *value));
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
