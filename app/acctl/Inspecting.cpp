// The commands that only read.

#include "app/acctl/Aliases.h"
#include "app/acctl/Commands.h"
#include "app/acctl/Describing.h"
#include "app/acctl/Reading.h"
#include "settings/CatalogNumbers.h"

namespace {

std::vector<const ModelSetting*> States(const Target& target, Report& report) {
  std::vector<const ModelSetting*> states = Chosen(target, kRead, {}, false, report);
  std::erase_if(states,
                [](const ModelSetting* setting) { return setting->tab != Caption::TabStatus; });
  return states;
}

}  // namespace

Report RunSettings(const Work& work, ProjectorAccess& projector) {
  Report report;
  Table table;
  QJsonArray described;
  const SettingTexts& texts = work.texts.Shown();
  for (const ModelSetting* setting : Chosen(TargetOf(projector), UseBy(work.arguments.usedBy),
                                            work.arguments.words, work.isForSeveral, report)) {
    described.append(DescribeSetting(work.texts, *setting));
    if (work.arguments.brief) {
      table.Add({std::string(setting->key)});
    } else {
      table.Add({std::string(setting->key), texts.Tab(*setting), texts.Caption(*setting),
                 setting->changeable ? texts.Values(*setting) : NameOf(setting->kind)});
    }
  }
  report.text = table.Text();
  report.json["settings"] = described;
  return report;
}

Report RunGet(const Work& work, ProjectorAccess& projector) {
  Report report;
  ReadInto(work, projector,
           Chosen(TargetOf(projector), kRead, work.arguments.words, work.isForSeveral, report),
           report);
  return report;
}

Report RunStatus(const Work& work, ProjectorAccess& projector) {
  Report report;
  ReadInto(work, projector, States(TargetOf(projector), report), report);
  return report;
}
