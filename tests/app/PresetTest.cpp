// Presets: made from a projector, put on others, and what projectors should be like.

#include <gmock/gmock.h>
#include <set>

#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include "app/desktop/DriftCheck.h"
#include "app/desktop/LiveProjectors.h"
#include "app/desktop/groups/GroupList.h"
#include "app/desktop/presets/PresetDialog.h"
#include "app/desktop/presets/PresetManager.h"
#include "app/profiles/PresetFolder.h"
#include "fleet/AddressHold.h"
#include "fleet/MakeVisit.h"
#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"
#include "tests/app/Work.h"
#include "toolkit/StateLabel.h"

namespace {

/// The window with the shipped projectors, and a folder for presets of its own.
struct PresetTest : testing::Test {
  PresetTest() {
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    window.emplace(Shipped(folder));
    window->show();
    a = Position("name:Projector 5-30");
    b = Position("name:Projector 4-24");
    EXPECT_TRUE(Soon([&] { return Row(a).state.power && Row(b).state.power; }));
    for (const std::size_t one : {a, b}) Projector(one).SetValue(SettingId::Power, 1);
  }
  ~PresetTest() override { qunsetenv("XDG_DATA_HOME"); }

  std::size_t Position(const char* id) const {
    return static_cast<std::size_t>(window->findChild<ProjectorView*>()->Model().Find(id));
  }
  const ProjectorRow& Row(std::size_t position) const { return Rows(*window)[position]; }
  SimulatedProjector& Projector(std::size_t position) const {
    return window->Session(position)->Simulator();
  }

  void Select(const std::vector<std::size_t>& positions) {
    auto& view = *window->findChild<ProjectorView*>();
    view.Select(static_cast<int>(positions.front()));
    for (const std::size_t position : positions) {
      Table(*window).selectionModel()->select(
          view.Model().IndexOf(static_cast<int>(position)),
          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
  }

  /// Chooses an entry of the menu; `in` names a menu within it.
  void Choose(const QString& entry, const QString& in = {}) {
    QMenu* menu = Find<QAction>(*window, "Presets").menu();
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(menu->findChildren<QMenu*>(Qt::FindDirectChildrenOnly).size(), 1) << "no old ones";
    for (QMenu* inner : menu->findChildren<QMenu*>()) {
      if (inner->title().remove('&') == in) menu = inner;
    }
    for (QAction* action : menu->actions()) {
      if (action->text().remove('&').remove(u'…') == entry) return action->trigger();
    }
    ADD_FAILURE() << "no " << entry.toStdString();
  }

  const QTemporaryDir folder;
  std::optional<MainWindow> window;
  std::size_t a = 0, b = 0;
};

TEST_F(PresetTest, APageOfAProjectorIsSavedAndPutOnOthers) {
  Select({a});
  Projector(a).SetValue(SettingId::Brightness, 120);
  Choose("Save as Preset");
  ASSERT_TRUE(Soon([&] { return window->findChild<PresetDialog*>() != nullptr; }));
  auto& dialog = *window->findChild<PresetDialog*>();
  auto& tree = *dialog.findChild<QTreeWidget*>();
  auto& save = Find<QPushButton>(dialog, "Save");
  EXPECT_THAT(Lines(tree), testing::Contains("  Brightness|-8"));
  EXPECT_GE(tree.columnWidth(0), static_cast<QAbstractItemView&>(tree).sizeHintForColumn(0));
  const auto type = [&](const char* name) {
    dialog.findChild<QLineEdit*>()->clear();
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), name);
    return save.isEnabled();
  };
  EXPECT_FALSE(save.isEnabled()) << "without a name";
  EXPECT_TRUE(type("Dark"));
  EXPECT_FALSE(type("../Dark") || type(".Dark"));
  Find<QPushButton>(dialog, "None").click();
  EXPECT_FALSE(type("Dark")) << "nothing is checked";
  tree.setCurrentItem(tree.findItems("Brightness", Qt::MatchRecursive).value(0));
  Find<QPushButton>(dialog, "This Page").click();
  save.click();
  EXPECT_EQ(window->statusBar()->currentMessage(), "Saved as the preset Dark");
  const auto preset = PresetFolder::Read("Dark").snapshot;
  ASSERT_NE(preset, nullptr);
  EXPECT_EQ(preset->projector, "Projector 5-30");
  EXPECT_GT(preset->settings.size(), 5U);
  const std::set<std::string> ofPage{"picture", "gamma", "color-temp"};
  for (const SavedSetting& saved : preset->settings)
    EXPECT_TRUE(ofPage.contains(saved.key.substr(0, saved.key.find('.')))) << saved.key;

  Projector(a).SetValue(SettingId::Brightness, 128);
  Select({a, b});
  Choose("Dark");
  auto& preview = Modal<ComparisonDialog>();
  ASSERT_TRUE(HasCompared(preview));
  const QStringList lines = Lines(*preview.findChild<QTreeWidget*>());
  EXPECT_THAT(lines, testing::Contains("  Picture: Brightness|0|-8"));
  EXPECT_EQ(lines.filter("do not apply to this model").size(), 1) << "on the other model";
  EXPECT_EQ(lines.filter("picture.").size(), 0) << "keys are for programs";
  Find<QPushButton>(preview, "Apply").click();
  EXPECT_TRUE(Soon([&] { return Projector(a).Value(SettingId::Brightness) == 120; }));
}

TEST_F(PresetTest, WhatIsNotAsItShouldBeIsToldAndPutBack) {
  // Nothing is compared merely because it is time.
  window->findChild<DriftCheck*>()->findChild<QTimer*>()->stop();
  Snapshot day = EmptySnapshot("any", Row(a).profile.model->data);
  day.settings = {{.key = "picture.brightness", .value = 140, .text = {}},
                  {.key = "other.mute", .value = 0, .text = {}},
                  {.key = "main.contrast", .value = 130, .text = {}}};  // of other models
  ASSERT_EQ(PresetFolder::Write("day", day), "");
  Select({a});
  std::optional<AddressHold> hold(
      PlaceOf(window->findChild<LiveProjectors*>()->Watch().TargetOf(Row(a).profile)));
  for (const char* wanted : {"day", "Nothing"}) Choose(wanted, "Should Be Like");
  hold.reset();
  EXPECT_TRUE(Soon([&] { return window->findChild<WorkRun*>() == nullptr; }));
  EXPECT_EQ(Row(a).state.drift, std::nullopt) << "it has no preset when it is compared";
  Choose("day", "Should Be Like");
  EXPECT_TRUE(Soon([&] { return Row(a).state.drift == 1; }));
  Projector(a).SetValue(SettingId::LampTime, 750);
  const CAdvanceDlg& dialog = *window->OpenDialog(a, 0);
  EXPECT_EQ(static_cast<StateLabel*>(dialog.ShownPage()->GetDlgItem(20014))->Share(), 0.25);
  auto& tabs = *dialog.findChild<QTabBar*>();
  tabs.setCurrentIndex(1);
  EXPECT_EQ(tabs.tabText(1), "Picture (1)");
  Choose("Nothing", "Should Be Like");
  EXPECT_EQ(tabs.tabText(1), "Picture") << "nothing is wanted any more";
  EXPECT_EQ(window->Dialog(a), &dialog);
  Choose("day", "Should Be Like");
  const int value = Projector(a).Value(SettingId::Brightness);
  EXPECT_TRUE(Soon([&] { return dialog.LastSeen("picture.brightness") == value; }))
      << "the dialog counts what differed";
  EXPECT_TRUE(Soon([&] { return Row(a).hasAlert; }));
  Choose("Put Back What It Should Be");
  EXPECT_TRUE(Soon([&] { return Row(a).state.drift == 0; }));
  EXPECT_EQ(Projector(a).Value(SettingId::Brightness), 140);
  EXPECT_TRUE(Soon([&] { return !Row(a).hasAlert; }));

  Find<QAction>(*window, "Mute the Sound").trigger();
  EXPECT_TRUE(Soon([&] { return Row(a).state.drift == 1; })) << "after any work";
  EXPECT_TRUE(Soon([&] { return tabs.tabText(8) == "Other (1?)"; }));
  Choose("Save as Preset");
  ASSERT_TRUE(Soon([&] { return window->findChild<PresetDialog*>() != nullptr; }));
  auto& saved = *window->findChild<PresetDialog*>();
  QTest::keyClicks(saved.findChild<QLineEdit*>(), "day");
  Find<QPushButton>(saved, "Save").click();
  EXPECT_TRUE(Soon([&] { return Row(a).state.drift == 0 && tabs.tabText(8) == "Other"; }));
}

TEST_F(PresetTest, ATagHasAPresetForAllItsProjectors) {
  const Snapshot day = EmptySnapshot("any", Row(a).profile.model->data);
  ASSERT_EQ(PresetFolder::Write("day", day), "");
  window->findChild<GroupList*>()->Choose({ProjectorGroup::Kind::Tag, "Lecture halls"});
  Choose("day", "All of Lecture halls");
  std::ptrdiff_t all = 0;
  for (const ProjectorRow& row : Rows(*window)) {
    const auto has = std::ranges::count(row.profile.tags, "Lecture halls");
    EXPECT_EQ(row.profile.snapshot, has > 0 ? "day" : "");
    all += has;
  }
  EXPECT_GT(all, 1);
  ProfileDocument document = Shipped(folder);
  EXPECT_EQ(document.Tag({0, 1}, {"Lecture halls"}, true), "");
  EXPECT_EQ(document.Projectors()[1].snapshot, "day") << "one that gets the tag later";
  for (const char* preset : {"day", ""}) EXPECT_EQ(document.SetTagPreset("Library", preset), "");
  EXPECT_EQ(document.Write(QByteArray(document.Text()).replace(R"(day"})", R"(day", "x-a":1})")),
            "");
  EXPECT_EQ(document.ReplacePreset("day", "night"), "");
  EXPECT_EQ(document.Projectors()[1].snapshot, "night");
  EXPECT_FALSE(document.Entry(1).contains("snapshot")) << "it is the tag's";
  EXPECT_EQ(document.SetTagPreset("Lecture halls", ""), "");
  EXPECT_EQ(document.Projectors()[1].snapshot, "");
  EXPECT_TRUE(document.Text().contains(R"("tags": {"Lecture halls": {"x-a":1}})"));
}

TEST_F(PresetTest, PresetsAreRenamedAndRemovedWithThoseThatShouldBeLikeThem) {
  Snapshot day = EmptySnapshot("any", Row(a).profile.model->data);
  day.settings = {{.key = "picture.brightness", .value = 140, .text = {}}};
  for (const char* name : {"day", "other"}) ASSERT_EQ(PresetFolder::Write(name, day), "");
  Select({a});
  Choose("day", "Should Be Like");
  Choose("Manage Presets");
  QApplication::processEvents();  // the list takes what "Should Be Like" has changed
  auto& manager = *window->findChild<PresetManager*>();
  auto& list = *manager.findChild<QListWidget*>();
  EXPECT_THAT(Lines(*manager.findChild<QTreeWidget*>()), testing::Contains("  Brightness|12"));
  const auto rename = [&](const char* name) {
    QTest::keyClick(&list, Qt::Key_F2);
    auto* field = list.findChildren<QLineEdit*>().last();
    field->clear();
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
    QApplication::processEvents();
  };
  for (const char* wrong : {"../day", "other"}) {
    SCOPED_TRACE(wrong);
    rename(wrong);
    Modal<QMessageBox>().close();
    EXPECT_EQ(list.currentItem()->text(), "day");
  }
  rename("night");
  EXPECT_EQ(PresetFolder::Names(), (QStringList{"night", "other"}));
  EXPECT_EQ(Row(a).profile.snapshot, "night");
  EXPECT_TRUE(Soon([&] { return list.currentItem() && list.currentItem()->text() == "night"; }));

  manager.activateWindow();
  ASSERT_TRUE(Soon([&] { return list.hasFocus(); }));
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_TRUE(Modal<QMessageBox>().informativeText().contains("Projector 5-30"));
  Find<QPushButton>(Modal<QMessageBox>(), "Remove").click();
  EXPECT_EQ(PresetFolder::Names(), QStringList{"other"});
  EXPECT_EQ(Row(a).profile.snapshot, "");
  const auto trigger = [&](auto... edits) { (Find<QAction>(*window, edits).trigger(), ...); };
  trigger("Undo Remove Preset", "Undo Rename Preset");
  EXPECT_EQ(PresetFolder::Names(), (QStringList{"day", "other"}));
  EXPECT_EQ(Row(a).profile.snapshot, "day");
  trigger("Redo Rename Preset");
  EXPECT_EQ(PresetFolder::Names(), (QStringList{"night", "other"}));
  day.settings.clear();
  EXPECT_EQ(PresetFolder::Write("night", day), "");
  trigger("Redo Remove Preset", "Undo Remove Preset");
  EXPECT_TRUE(PresetFolder::Read("night").snapshot->settings.empty()) << "another one by then";
  trigger("Redo Remove Preset");
  EXPECT_EQ(PresetFolder::Write("night", day), "");
  trigger("Undo Remove Preset");
  EXPECT_EQ(Modal<QMessageBox>().informativeText(),
            "There is already a preset night.\nThe edits so far can no longer be undone.");
  EXPECT_FALSE(Find<QAction>(*window, "Undo").isEnabled());
}

TEST(PresetFolder, KeepsPresetsByTheirNames) {
  const QTemporaryDir data;
  qputenv("XDG_DATA_HOME", data.path().toUtf8());
  EXPECT_EQ(PresetFolder::Write("day", {}), "");
  EXPECT_EQ(PresetFolder::Rename("day", "Day 2"), "");
  EXPECT_NE(PresetFolder::Read("day").error, "");
  EXPECT_NE(PresetFolder::Rename("day", "night"), "");
  EXPECT_NE(PresetFolder::Remove("day"), "");
  EXPECT_EQ(PresetFolder::Write("Day 2.undo.20260301T093000Z-2", {}), "");
  EXPECT_EQ(PresetFolder::Names(), QStringList("Day 2")) << "no values that it has replaced";
  qputenv("XDG_DATA_HOME", "/dev/null");
  EXPECT_TRUE(PresetFolder::Write("day", {}).startsWith("cannot create the folder /dev/null/"));
  qunsetenv("XDG_DATA_HOME");
  for (const QString& name :
       {QString(), QString(" a"), QString(".a"), QString("a/b"), QString("a\tb"),
        QString("a.undo.20260301T093000Z"), QString(101, QChar(0xE9))})
    EXPECT_FALSE(PresetFolder::IsName(name)) << qPrintable(name);
}

}  // namespace
