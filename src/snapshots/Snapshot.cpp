#include "snapshots/Snapshot.h"

#include <QDateTime>

namespace AdvancedControl {

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
  for (const auto& [setting, source] : settings.PrepareReads(connection, restorable)) {
    if (!progress.goesOn()) break;
    // A value could not be restored without knowing its source.
    const bool isKnown = setting->of == OfSource::None || source;
    const int notOffered = connection.Sent().notOffered;
    const auto value = isKnown ? settings.Read(connection, *setting, source) : std::nullopt;
    if (value) {
      snapshot.settings.push_back(
          {std::string(setting->key), *value, texts.Value(*setting, *value), source});
    } else if (unread != nullptr && connection.Sent().notOffered == notOffered) {
      unread->emplace_back(setting->key);
    }
    progress.step();
  }
  return snapshot;
}

}  // namespace AdvancedControl
