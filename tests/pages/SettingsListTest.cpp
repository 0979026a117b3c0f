// Compares what the dialog shows for each projector of the profile file with the list of its
// settings that programs without a window use.

#include <QCheckBox>
#include <gtest/gtest.h>

#include "app/profiles/ProjectorAccess.h"
#include "fleet/ProfileFile.h"
#include "settings/PageTables.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Texts.h"
#include "toolkit/CSliderCtrl.h"

namespace {

// Number of a control's caption in its template: that of the label before it, or of a box its own.
int CaptionNumber(const DialogTemplate& page, int control) {
  int label = 0;
  for (const RowTemplate& row : page.rows) {
    for (const ControlTemplate& item : row.controls) {
      const int own = std::atoi(item.caption);
      if (item.kind == ControlKind::Label) label = own;
      if (item.id == control) return item.kind == ControlKind::Check && own != 0 ? own : label;
    }
  }
  return 0;
}

// The lists, boxes and sliders must be the settings in the list, with the same captions, and accept
// the same values.
void ExpectSame(const ModelSettings& settings, CDialog& dialog, const PageTable& table) {
  std::set<int> listed;
  for (const PageRow& row : table.rows) {  // the list beside a button is not a setting
    if (const auto* action = std::get_if<ActionRow>(&row); action != nullptr && action->list) {
      listed.insert(action->list->control);
    } else if (const auto* reset = std::get_if<ResetRow>(&row)) {
      listed.insert(reset->list);
    }
  }
  for (const ModelSetting& setting : settings.All()) {
    if (setting.row < table.rows.data() || setting.row >= table.rows.data() + table.rows.size())
      continue;
    SCOPED_TRACE(setting.key);
    const int control = ControlOf(*setting.row);
    listed.insert(control);
    const QWidget* const widget = dialog.GetDlgItem(control);
    EXPECT_FALSE(widget->isHidden());
    EXPECT_EQ(setting.caption, CaptionNumber(*dialog.Template(), control));
    QStringList entries;
    for (const ListEntry& entry : setting.entries) entries << Texts().Entry(setting, entry).c_str();
    if (qobject_cast<const CComboBox*>(widget) != nullptr) {
      EXPECT_EQ(DialogDriver(dialog).Entries(control), entries);
    } else if (const auto* slider = qobject_cast<const CSliderCtrl*>(widget)) {
      EXPECT_EQ(std::to_string(slider->minimum()) + " to " + std::to_string(slider->maximum()),
                Texts().Values(setting));
    } else if (qobject_cast<const QCheckBox*>(widget) != nullptr) {
      EXPECT_EQ(entries, QStringList({"Off", "On"}));
    }
  }
  for (const RowTemplate& row : dialog.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      const QWidget* const widget = dialog.GetDlgItem(control.id);
      using enum ControlKind;
      const bool sets = control.kind == Combo || control.kind == Slider || control.kind == Check;
      if (!sets || widget->isHidden()) continue;
      EXPECT_TRUE(listed.contains(control.id)) << NameOf(*widget);
    }
  }
}

TEST(SettingsList, MatchesThePagesAndPopUpsOfEveryProjector) {
  const auto profiles = ReadProfileList(TEST_CATALOG_DIR "/projectors.json").profiles;
  ASSERT_GT(profiles.size(), 50U);
  for (const FleetProfile& profile : profiles) {
    SCOPED_TRACE(profile.name);
    const CModelInfo2 info = ModelInfoOf(profile);
    const ModelSettings settings(profile.model->data);
    CAdvanceDlg dialog;
    dialog.CopyData(&info, 0);
    dialog.Projector().SetChannel(std::make_shared<SimulatedProjector>(SimulatedModelOf(profile)));
    ASSERT_TRUE(dialog.Create());
    const auto tabs = TabsOf(info.DialogType, info.ModelCode);
    for (std::size_t tab = 0; tab < tabs.size(); ++tab) {
      dialog.findChild<QTabBar*>()->setCurrentIndex(static_cast<int>(tab) + 1);
      SCOPED_TRACE(Texts().Tab({.key = "", .tab = tabs[tab].caption, .entries = {}}));
      const PageTable& table = TableOf(tabs[tab].page);
      if (KeepsTemplate(table, info.ModelCode)) continue;
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
