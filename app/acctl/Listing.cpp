#include "app/acctl/Listing.h"

#include <algorithm>
#include <map>

#include <QJsonArray>
#include <QJsonDocument>

#include "app/acctl/Aliases.h"
#include "app/acctl/Describing.h"
#include "app/acctl/Message.h"
#include "app/acctl/Output.h"
#include "app/acctl/Selection.h"
#include "app/acctl/Simulated.h"

namespace {

/// Prints entries as text or as JSON under the name `list`.
int PrintEntries(const Arguments& arguments, const std::string& text, const char* list,
                 const QJsonArray& entries) {
  std::string output = text;
  if (arguments.format == Format::Json) {
    QJsonObject json = Envelope(arguments.command);
    json[list] = entries;
    output = QJsonDocument(json).toJson().toStdString();
  } else if (arguments.format == Format::JsonLines) {
    output.clear();
    for (const auto& entry : entries) {
      output += QJsonDocument(entry.toObject()).toJson(QJsonDocument::Compact).toStdString() + '\n';
    }
  }
  return Print(output) ? ExitCode::Done : ExitCode::Refused;
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : ", ") + text;
  return joined;
}

QJsonArray Array(const std::vector<std::string>& texts) {
  QJsonArray array;
  for (const std::string& text : texts) array.append(Wide(text));
  return array;
}

/// The different models of the profiles, each with one of its profiles.
std::vector<const FleetProfile*> ModelsOf(const std::vector<FleetProfile>& profiles) {
  std::vector<const FleetProfile*> models;
  std::map<std::string_view, bool> known;
  for (const FleetProfile& profile : profiles) {
    if (known.try_emplace(profile.model->info.ModelName, true).second) models.push_back(&profile);
  }
  return models;
}

std::string KindText(ModelSetting::Kind kind) {
  switch (kind) {
    case ModelSetting::Kind::Number:
      //: A kind of setting: a value with a range.
      return Message(Acctl::tr("number"));
    case ModelSetting::Kind::Choice:
      //: A kind of setting: a list of entries.
      return Message(Acctl::tr("choice"));
    case ModelSetting::Kind::State:
      //: A kind of setting: on or off, or a counter.
      return Message(Acctl::tr("state"));
    default:
      //: A kind of setting: something that the projector does once.
      return Message(Acctl::tr("action"));
  }
}

/// A setting of one model, and the models that have the same one.
struct Explained {
  const ModelSetting* setting;
  QJsonObject json;
  std::vector<std::string> models;
};

std::string Text(const ValueTexts& texts, const Explained& explained) {
  const ModelSetting& setting = *explained.setting;
  Table table;
  const auto label = [](const QString& text) { return "  " + text.toStdString(); };
  const std::string alias(AliasOf(setting.key));
  table.Add(
      {std::string(setting.key), alias.empty() ? "" : Message(Acctl::tr("short name: %1"), alias)});
  const bool isListed =
      setting.kind == ModelSetting::Kind::Choice || setting.kind == ModelSetting::Kind::Number;
  //: Of the dialog, on which the setting is.
  table.Add({label(Acctl::tr("tab")), texts.Shown().Tab(setting)});
  //: Of the setting in the dialog.
  table.Add({label(Acctl::tr("caption")), texts.Shown().Caption(setting)});
  //: What kind of setting it is: number, choice, state or action.
  table.Add({label(Acctl::tr("kind")), KindText(setting.kind)});
  if (setting.kind == ModelSetting::Kind::Choice && setting.entries.empty()) {
    table.Add({label(Acctl::tr("values")), Message(Acctl::tr("those that the projector reports"))});
  } else if (isListed || setting.changeable) {
    table.Add({label(Acctl::tr("values")), texts.ValuesWithCodes(setting)});
  }
  std::string uses;
  const auto add = [&uses](bool isSo, const char* use) {
    if (isSo) uses += (uses.empty() ? "" : ", ") + std::string(use);
  };
  add(setting.readable, "get");
  add(setting.changeable, "set");
  add(setting.reset.has_value(), "reset");
  add(setting.Restorable(), "save");
  add(setting.Restorable(), "apply");
  if (!uses.empty()) table.Add({label(Acctl::tr("commands")), uses});
  if (setting.IsPerSource()) {
    //: The setting has a value of its own "for each input source".
    table.Add({label(Acctl::tr("kept")), Message(Acctl::tr("for each input source"))});
  }
  table.Add({label(Acctl::tr("models")), Joined(explained.models)});
  return table.Text();
}

}  // namespace

void List(const Work& work, const Projectors& projectors, Printer& printer) {
  Table table;
  for (const FleetProfile* profile : projectors) {
    const CModelInfo2& model = profile->model->info;
    const bool isSimulated = IsSimulated(*profile, work.arguments);
    const std::string connection = ConnectionText(profile->connection).toStdString();
    if (work.arguments.brief) {
      table.Add({profile->name});
    } else {
      table.Add({ShownName(profile->name, isSimulated), model.ModelName,
                 std::to_string(model.DialogType), std::to_string(model.ModelCode), connection,
                 Joined(profile->tags)});
    }
    Report report;
    report.json = {{"id", Wide(FleetIdOf(*profile))}, {"model", Wide(model.ModelName)},
                   {"dialogType", model.DialogType},  {"modelCode", model.ModelCode},
                   {"connection", Wide(connection)},  {"tags", Array(profile->tags)}};
    printer.Add(profile->name, isSimulated, report);
  }
  printer.AddTable(table.Text());
}

int ListModels(const Work& work, ModelCache& models) {
  Table table;
  QJsonArray json;
  for (const FleetProfile* profile : ModelsOf(work.profiles)) {
    const CModelInfo2& model = profile->model->info;
    if (!IsLike(model.ModelName, work.arguments.words)) continue;
    const auto count = std::ranges::count_if(work.profiles, [&model](const FleetProfile& other) {
      return other.model->info.ModelName == model.ModelName;
    });
    const auto settings = static_cast<int>(models.Of(*profile).All().size());
    if (work.arguments.brief) {
      table.Add({model.ModelName});
    } else {
      table.Add({model.ModelName, std::to_string(model.DialogType), std::to_string(model.ModelCode),
                 CountedProjectors(static_cast<int>(count)),
                 Message(Acctl::tr("%n settings", nullptr, settings))});
    }
    json.append(QJsonObject{{"model", Wide(model.ModelName)},
                            {"dialogType", model.DialogType},
                            {"modelCode", model.ModelCode},
                            {"projectors", static_cast<int>(count)},
                            {"settings", settings}});
  }
  return PrintEntries(work.arguments, table.Text(), "models", json);
}

int Explain(const Work& work, ModelCache& models) {
  std::vector<Explained> found;
  for (const FleetProfile* profile : ModelsOf(work.profiles)) {
    const ModelSettings& model = models.Of(*profile);
    for (const ModelSetting& setting : model.All()) {
      const bool isMeant = std::ranges::any_of(work.arguments.words, [&](const std::string& word) {
        return IsLike(setting.key, {word}) || AliasOf(setting.key) == word;
      });
      if (!isMeant) continue;
      // If the values differ between models, each model gets its own description.
      const QJsonObject json = DescribeSetting(work.texts, setting);
      auto same = std::ranges::find(found, json, &Explained::json);
      if (same == found.end()) {
        found.push_back({&setting, json, {}});
        same = found.end() - 1;
      }
      same->models.emplace_back(profile->model->info.ModelName);
    }
  }
  if (found.empty()) {
    return ReportError(work.arguments, {.code = ProblemCode::NoSuchSetting,
                                        .text = Message(Acctl::tr("no model has such a setting")),
                                        .key = work.arguments.words.front(),
                                        .exitCode = ExitCode::WrongUse});
  }
  std::string text;
  QJsonArray json;
  for (const Explained& explained : found) {
    text += (text.empty() ? "" : "\n") + Text(work.texts, explained);
    QJsonObject entry = explained.json;
    entry["models"] = Array(explained.models);
    json.append(entry);
  }
  return PrintEntries(work.arguments, text, "settings", json);
}
