// What the dialog shows of each projector of the profile file, held against the list of its
// settings that programs without a window use.

#include <map>
#include <set>

#include <QCheckBox>
#include <gtest/gtest.h>

#include "app/profiles/ProjectorAccess.h"
#include "device/ModelDataIntake.h"
#include "i18n/SystemLanguage.h"
#include "settings/PageTables.h"
#include "snapshots/SettingTexts.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/CSliderCtrl.h"

namespace {

const SettingTexts& Texts() {
  static const std::vector<std::string> folders{TEST_CATALOG_DIR};
  static const SettingTexts texts(folders, kEnglishUnitedStates);
  return texts;
}

/// A control as its setting has it: what a person could choose there.
using Shown = std::map<int, std::string>;

/// The settings that a dialog shows, by their controls.
Shown ShownBy(CDialog& dialog, const PageTable& table) {
  std::set<int> helpers;  // lists of resets and actions, which are no settings
  for (const PageRow& row : table.rows) {
    if (const auto* reset = std::get_if<ResetRow>(&row)) helpers.insert(reset->list);
    if (const auto* action = std::get_if<ActionRow>(&row)) helpers.insert(action->list);
  }
  Shown shown;
  for (const RowTemplate& row : dialog.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (control.kind == ControlKind::None || helpers.contains(control.id)) continue;
      QWidget* const widget = dialog.GetDlgItem(control.id);
      if (widget == nullptr || widget->isHidden()) continue;
      if (qobject_cast<CComboBox*>(widget) != nullptr) {
        const auto entries = DialogDriver(dialog).Entries(control.id);
        shown[control.id] = entries.join(", ").toStdString();
      } else if (const auto* slider = qobject_cast<CSliderCtrl*>(widget)) {
        shown[control.id] =
            std::to_string(slider->minimum()) + " to " + std::to_string(slider->maximum());
      } else if (qobject_cast<QCheckBox*>(widget) != nullptr) {
        shown[control.id] = "Off, On";
      }
    }
  }
  return shown;
}

/// The same as the list of settings says. Fields and buttons tell no choice: only that they show.
Shown SaidFor(const ModelSettings& settings, const CDialog& dialog, const PageTable& table) {
  Shown said;
  for (const ModelSetting& setting : settings.All()) {
    if (setting.row < table.rows.data() || setting.row >= table.rows.data() + table.rows.size()) {
      continue;
    }
    const int control = ControlOf(*setting.row);
    EXPECT_FALSE(dialog.GetDlgItem(control)->isHidden()) << setting.key;
    if (std::holds_alternative<ListRow>(*setting.row) ||
        std::holds_alternative<CheckRow>(*setting.row)) {
      QStringList texts;
      for (const ListEntry& entry : setting.entries) texts << Texts().Entry(entry).c_str();
      said[control] = texts.join(", ").toStdString();
    } else if (setting.range) {
      said[control] = Texts().Values(setting);
    }
  }
  return said;
}

void ExpectSame(const ModelSettings& settings, CDialog& dialog, const PageTable& table) {
  EXPECT_EQ(ShownBy(dialog, table), SaidFor(settings, dialog, table));
}

TEST(SettingsList, HoldsWhatThePagesAndPopUpsOfEveryProjectorShow) {
  const auto profiles = ReadProfileFile(TEST_CATALOG_DIR "/projectors.json").projectors;
  ASSERT_GT(profiles.size(), 50U);
  for (const ProjectorProfile& profile : profiles) {
    SCOPED_TRACE(profile.Name);
    const ModelSettings settings(MakeModelData(profile.Model));
    CAdvanceDlg dialog;
    dialog.CopyData(&profile.Model, 0);
    dialog.Projector().SetChannel(std::make_shared<SimulatedProjector>(SimulatedModelOf(profile)));
    ASSERT_TRUE(dialog.Create());
    const auto tabs = TabsOf(profile.Model.DialogType, profile.Model.ModelCode);
    for (std::size_t tab = 0; tab < tabs.size(); ++tab) {
      dialog.findChild<QTabBar*>()->setCurrentIndex(static_cast<int>(tab) + 1);
      SCOPED_TRACE(Texts().Tab({.key = "", .tab = tabs[tab].caption, .entries = {}}));
      const PageTable& table = TableOf(tabs[tab].page);
      if (KeepsTemplate(table, profile.Model.ModelCode)) continue;
      ExpectSame(settings, *dialog.ShownPage(), table);
    }
    for (const auto& [kind, key, table] :
         {std::tuple{PopUp::Gamma, "gamma.pattern", &kGammaRows},
          {PopUp::ColorTemp, "color-temp.pattern", &kColorTempRows},
          {PopUp::Service, "service.auto-adjust", &kServiceRows}}) {
      if (settings.Find(key) == nullptr) continue;
      SCOPED_TRACE(key);
      const auto popUp = MakePopUp(kind, dialog);
      ASSERT_TRUE(popUp->Create());
      ExpectSame(settings, *popUp, *table);
    }
  }
}

}  // namespace
