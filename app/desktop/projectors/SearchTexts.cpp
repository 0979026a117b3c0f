#include "app/desktop/projectors/SearchTexts.h"

#include <algorithm>

#include "device/ModelDataIntake.h"
#include "i18n/Catalog.h"
#include "i18n/LocalizeControlTexts.h"
#include "i18n/SystemLanguage.h"
#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"
#include "snapshots/SettingTexts.h"

QStringList TabNames(const CModelInfo2& model) {
  const CatalogBatch batch;
  QStringList names{CatalogString(kCaptionCategory, Caption::TabStatus)};
  for (const PageTab& tab : TabsOf(model.DialogType, model.ModelCode)) {
    names += CatalogString(kCaptionCategory, tab.caption);
  }
  return names;
}

QString SearchTexts::OfProjector(const FleetProfile& profile) {
  QStringList texts{QString::fromStdString(profile.name),
                    QString::fromStdString(profile.model->info.ModelName),
                    ConnectionText(profile.connection), QString::fromStdString(profile.notes)};
  for (const std::string& tag : profile.tags) texts += QString::fromStdString(tag);
  return texts.join(QLatin1Char('\n')).toLower();
}

const QString& SearchTexts::OfModel(const std::shared_ptr<const ProfileModel>& model) {
  const auto [found, isNew] = models_.try_emplace(model);
  if (!isNew) return found->second;
  const SettingTexts texts(CatalogFolders(), SystemLanguageId());
  QStringList names = TabNames(model->info);
  const ModelSettings settings(MakeModelData(model->info));
  for (const ModelSetting& setting : settings.All()) {
    names += QString::fromStdString(texts.Caption(setting));
  }
  return found->second = names.join(QLatin1Char('\n')).toLower();
}

void SearchTexts::ForgetUnused() {
  std::erase_if(models_, [](const auto& model) { return model.first.use_count() == 1; });
}
