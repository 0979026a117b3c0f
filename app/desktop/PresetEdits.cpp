#include "app/desktop/PresetEdits.h"

#include <algorithm>
#include <memory>

#include <QAction>
#include <QFileInfo>

#include "app/desktop/presets/PresetManager.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/work/WorkActions.h"
#include "app/profiles/PresetFolder.h"
#include "device/ModelDataIntake.h"
#include "fleet/WholeFile.h"

namespace {

constexpr qsizetype kMostBytes = 64 << 20;

}  // namespace

PresetEdits::PresetEdits(const Parts& parts) : QObject(&parts.window), parts_(parts) {
  // Not at once: the list may just be taking a name.
  connect(
      &parts_.history, &ProfileHistory::Changed, this,
      [this] {
        if (manager_ != nullptr) manager_->Fill();
      },
      Qt::QueuedConnection);
}

void PresetEdits::Open() {
  manager_ = new PresetManager(
      {.users = [this](const QString& preset) { return UsersOf(preset); },
       .model = [this](const Snapshot& preset) { return ModelOf(preset); },
       .rename = [this](const QString& from, const QString& to) { return Rename(from, to); },
       .remove = [this](const QString& preset) { return Remove(preset); },
       .texts = parts_.work.Texts()},
      &parts_.window);
  manager_->setAttribute(Qt::WA_DeleteOnClose);
  manager_->addActions({parts_.history.Undo(), parts_.history.Redo()});  // for their keys
  manager_->open();
}

QStringList PresetEdits::UsersOf(const QString& preset) const {
  QStringList names;
  for (const FleetProfile& profile : parts_.document.Projectors()) {
    if (QString::fromStdString(profile.snapshot) == preset)
      names += QString::fromStdString(profile.name);
  }
  return names;
}

// A projector of the same model knows the names of its inputs.
ModelSettings PresetEdits::ModelOf(const Snapshot& preset) const {
  const auto& all = parts_.document.Projectors();
  const auto same = std::ranges::find_if(all, [&preset](const FleetProfile& profile) {
    const CModelInfo2& model = profile.model->info;
    return model.DialogType == preset.dialogType && model.ModelCode == preset.modelCode;
  });
  if (same != all.end()) return ModelSettings(same->model->data);
  CModelInfo2 info;
  info.ModelName = preset.model;
  info.DialogType = preset.dialogType;
  info.ModelCode = preset.modelCode;
  return ModelSettings(MakeModelData(info));
}

QString PresetEdits::Rename(const QString& from, const QString& to) {
  const bool hasFile = parts_.document.HasFile();
  const auto rename = [from, to] { return PresetFolder::Rename(from, to); };
  const auto renameBack = [from, to] { return PresetFolder::Rename(to, from); };
  return parts_.history.Do(tr("Rename Preset"), -1,
                           [&] {
                             QString error = rename();
                             if (!error.isEmpty() || !hasFile) return error;
                             error = parts_.document.ReplacePreset(from, to);
                             if (!error.isEmpty()) renameBack();
                             return error;
                           },
                           {.undo = renameBack, .redo = rename});
}

QString PresetEdits::Remove(const QString& preset) {
  const bool hasFile = parts_.document.HasFile();
  const QString path = PresetFolder::FileOf(preset);
  const auto removed = std::make_shared<QByteArray>();
  const auto remove = [=] {
    const FileBytes file = ReadToEnd(path, kMostBytes);
    if (!file.error.isEmpty()) return file.error;
    *removed = file.bytes;
    return PresetFolder::Remove(preset);
  };
  const auto writeBack = [=] {
    if (QFileInfo::exists(path))
      return PresetManager::tr("There is already a preset %1.").arg(preset);
    return WriteWholeFile(path, *removed);
  };
  return parts_.history.Do(tr("Remove Preset"), -1,
                           [&] {
                             QString error = remove();
                             if (!error.isEmpty() || !hasFile) return error;
                             error = parts_.document.ReplacePreset(preset, {});
                             if (!error.isEmpty()) writeBack();
                             return error;
                           },
                           {.undo = writeBack, .redo = remove});
}
