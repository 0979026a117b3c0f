#include "app/desktop/presets/PresetTree.h"

#include <map>

#include <QTreeWidget>

namespace {

QString Wide(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

// A setting that the model does not have was written by a user, and is shown as he wrote it.
void FillPresetTree(QTreeWidget& tree, const Snapshot& preset, const ModelSettings& model,
                    const SettingTexts& texts) {
  std::map<int, QTreeWidgetItem*> pages;  // by the numbers of their captions
  for (std::size_t i = 0; i < preset.settings.size(); ++i) {
    const SavedSetting& saved = preset.settings[i];
    const ModelSetting* setting = model.Find(saved.key);
    if (setting == nullptr) {
      new QTreeWidgetItem(&tree, {Wide(saved.key), Wide(saved.text)});
      continue;
    }
    QTreeWidgetItem*& page = pages[setting->tab];
    if (page == nullptr) page = new QTreeWidgetItem(&tree, {Wide(texts.Tab(*setting))});
    auto* leaf = new QTreeWidgetItem(page, {Wide(texts.Name(model, *setting, saved.source)),
                                            Wide(texts.Value(*setting, saved.value))});
    leaf->setData(0, kPlaceRole, static_cast<int>(i));
  }
  tree.expandAll();
  tree.resizeColumnToContents(0);
  tree.setCurrentItem(tree.topLevelItem(0));
}
