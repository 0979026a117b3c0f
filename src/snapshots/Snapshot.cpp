#include "snapshots/Snapshot.h"

#include <map>

#include <QDateTime>

Snapshot EmptySnapshot(const std::string& projector, const ModelData& model) {
  return {.projector = projector,
          .model = model.ModelName,
          .dialogType = model.DialogType,
          .modelCode = model.ModelCode,
          .time = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString(),
          .settings = {}};
}

Snapshot TakeSnapshot(const std::string& projector, const ModelSettings& settings,
                      CPjtInterface& connection, const SettingTexts& texts,
                      const Progress& progress, std::vector<std::string>* unread) {
  Snapshot snapshot = EmptySnapshot(projector, settings.Model());
  std::vector<const ModelSetting*> restorable;
  for (const ModelSetting& setting : settings.All()) {
    if (setting.Restorable()) restorable.push_back(&setting);
  }
  settings.Announce(connection, restorable);
  std::map<OfSource, std::optional<int>> sources;  // each asked for once
  for (const ModelSetting* const setting : restorable) {
    if (!progress.goesOn()) break;
    const auto [source, isNew] = sources.try_emplace(setting->of);
    if (isNew) source->second = settings.PresentSource(connection, *setting);
    if (const auto value = settings.Read(connection, *setting, source->second)) {
      snapshot.settings.push_back(
          {std::string(setting->key), *value, texts.Value(*setting, *value), source->second});
    } else if (unread != nullptr) {
      unread->emplace_back(setting->key);
    }
    progress.step();
  }
  return snapshot;
}
