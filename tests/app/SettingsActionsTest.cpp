// Settings saved in files, and compared and applied by choice; several projectors at once.

#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "app/desktop/SettingsActions.h"
#include "app/profiles/SettingsFile.h"
#include "fleet/FleetUndo.h"
#include "tests/app/Work.h"
#include "tests/support/Programs.h"

namespace {

/// Two projectors of one model in the window, and a folder.
struct SettingsOfTwo : testing::Test {
  SettingsOfTwo() { EXPECT_TRUE(AreWatched(window)); }
  SimulatedProjector& Projector(std::size_t index) { return window.Session(index)->Simulator(); }

  const QTemporaryDir folder;
  const QString file = folder.filePath("good.json");
  ShownWindow window{{Profile("A"), Profile("B")}};
  SettingsActions& actions = *window.findChild<SettingsActions*>();
};

TEST_F(SettingsOfTwo, AreSavedAtOnceAndTriedAgain) {
  MakeSilent(window, 1, true);
  actions.SaveTo(folder.path(), Rows(window));
  WorkDialog* dialog = &Done(window);
  EXPECT_EQ(Results(*dialog), QStringList({"A: done", "B: no answer"}));
  const auto files = [&] { return QDir(folder.path()).entryList({"*.json"}); };
  EXPECT_EQ(files(), QStringList("A.json"));
  Snapshot undo = EmptySnapshot("B", Rows(window)[1].profile.model->data);
  undo.isUndo = true;
  Write(folder.filePath("B.json"), WriteSnapshot(undo));
  MakeSilent(window, 1, false);
  Find<QPushButton>(*dialog, "Retry the Failed").click();
  const QStringList all{"A.json", "B-2.json", "B.json"};
  EXPECT_TRUE(Soon([&] { return files() == all; }));
  EXPECT_TRUE(window.statusBar()->currentMessage().startsWith("Settings of 2 projectors saved in"));
  delete dialog;
  QFile::resize(folder.filePath("A.json"), 0);
  for (const char* name : {"A-2.json", "B-2.json"}) {
    actions.SaveTo(folder.path(), Rows(window));
    delete &Done(window);
    const Snapshot saved = ReadSettingsFile(folder.filePath(name)).snapshot;
    EXPECT_EQ(saved.projector, std::string(1, *name));
    EXPECT_GT(saved.settings.size(), 50U);
  }
  EXPECT_EQ(files(), QStringList("A-2.json") + all) << "of each projector one, in its place";

  actions.SaveTo("/proc/x.json", {Rows(window)[0]});
  ASSERT_TRUE(Soon([] { return QApplication::activeModalWidget() != nullptr; }));
  EXPECT_TRUE(Modal<QMessageBox>().text().startsWith("cannot write /proc/x.json: "));
}

TEST_F(SettingsOfTwo, AreAppliedWhereCheckedAndPutBack) {
  actions.SaveTo(file, {Rows(window)[0]});
  ASSERT_TRUE(Soon([&] { return QFile::exists(file); }));
  Snapshot snapshot = ReadSettingsFile(file).snapshot;
  snapshot.beforehand = {{"picture.sharpness", 129, ""}, {"picture.tint", 129, ""}};
  snapshot.settings.insert(snapshot.settings.begin(), {"audio.volume", 999, "", 99});
  snapshot.settings.push_back({"main.contrast", 130, ""});  // of other models
  Write(file, WriteSnapshot(snapshot));
  Projector(0).SetValue(SettingId::Brightness, 135);
  for (const std::size_t i : {0U, 1U}) Projector(i).SetValue(SettingId::Contrast, 120);
  Projector(1).SetValue(SettingId::PositionV, 50);

  actions.OpenFile(file, Rows(window), true);
  auto* dialog = window.findChild<ComparisonDialog*>();
  ASSERT_NE(dialog, nullptr);
  ASSERT_TRUE(HasCompared(*dialog));
  auto& tree = *dialog->findChild<QTreeWidget*>();
  const QString first = "  First the other sources and modes||2 settings";
  const QString foreign = "  2 settings do not apply to this model||";
  const QStringList expected{
      "A||", first, "  Picture: Brightness|7|0", "  Picture: Contrast|-8|0",  foreign,
      "B||", first, "  Picture: Contrast|-8|0",  "  Image: Position V|50|40", foreign};
  EXPECT_EQ(Lines(tree).join('\n').toStdString(), expected.join('\n').toStdString());
  Find<QLabel>(*dialog, "2 projectors differ.");

  QTreeWidgetItem* b = tree.topLevelItem(1);
  for (QTreeWidgetItem* item : {tree.topLevelItem(0), b}) item->child(0)->setCheckState(0, {});
  b->child(2)->setCheckState(0, Qt::Unchecked);
  EXPECT_EQ(b->checkState(0), Qt::PartiallyChecked);
  window.Session(0)->SetFault(std::uint16_t{0x2004}, {Fault::Kind::Refuse});
  Find<QPushButton>(*dialog, "Apply").click();
  WorkDialog& work = Done(window);
  EXPECT_EQ(Results(work), QStringList({"A: Contrast: refused", "B: done"}));
  window.Session(0)->ClearFaults();
  Find<QPushButton>(work, "Retry the Failed").click();
  EXPECT_EQ(Results(Done(window)), QStringList({"A: done", "B: done"}));
  EXPECT_EQ(Projector(0).Value(SettingId::Brightness), 128);
  EXPECT_EQ(Projector(1).Value(SettingId::Contrast), 128);
  EXPECT_EQ(Projector(1).Value(SettingId::PositionV), 50) << "unchecked";
  EXPECT_EQ(Projector(1).Value(SettingId::Sharpness), 128) << "unchecked";
  const QStringList undo = QDir(folder.path()).entryList({"good.undo.*.json"});
  ASSERT_EQ(undo.size(), 2);
  EXPECT_EQ(ReadFleetUndo(Contents(folder.filePath(undo[1]))).undo.size(), 2U);
  Find<QPushButton>(work, "Undo All").click();
  EXPECT_TRUE(Soon([&] { return Projector(1).Value(SettingId::Contrast) == 120; }));
  EXPECT_TRUE(Soon([&] { return Projector(0).Value(SettingId::Brightness) == 135; }));
  EXPECT_EQ(Projector(0).Value(SettingId::Contrast), 120) << "both attempts";
}

}  // namespace
