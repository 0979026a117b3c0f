// Settings saved in files, and compared and applied by choice; several projectors at once. What
// work on them can be undone.

#include <optional>

#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

#include "app/desktop/SettingsActions.h"
#include "app/profiles/SettingsFile.h"
#include "fleet/FleetUndo.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "tests/app/Work.h"
#include "tests/support/Programs.h"

namespace {

using namespace std::chrono_literals;

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
  SetFault(window, 1, {Fault::Kind::DropOut});
  actions.SaveTo(folder.path(), Rows(window));
  WorkDialog* dialog = &Done(window);
  EXPECT_EQ(Results(*dialog), QStringList({"A: done", "B: no answer"}));
  const auto files = [&] { return QDir(folder.path()).entryList({"*.json"}); };
  EXPECT_EQ(files(), QStringList("A.json"));
  Snapshot undo = EmptySnapshot("B", Rows(window)[1].profile.model->data);
  undo.isUndo = true;
  Write(folder.filePath("B.json"), WriteSnapshot(undo));
  SetFault(window, 1, {});
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

  for (const auto& [fault, text] :
       {std::pair(Fault::Kind::DropOut, "2 projectors could not be read."),
        {Fault::Kind::FailRead, "2 projectors do not report all of these settings now."},
        {Fault::Kind::None, "Nothing differs. 2 projectors have all these settings already."}}) {
    for (const std::size_t i : {0U, 1U}) SetFault(window, i, {fault});
    actions.OpenFile(folder.filePath("A-2.json"), Rows(window), false);
    auto& comparison = Modal<ComparisonDialog>();
    ASSERT_TRUE(HasCompared(comparison));
    Find<QLabel>(comparison, text);
    comparison.close();
  }

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

TEST_F(SettingsOfTwo, AreShownAfterASecondAndKeptForUndoIfTheProgramEnds) {
  std::optional<ShownWindow> other(std::in_place, std::vector{Profile("C")});
  ASSERT_TRUE(AreWatched(*other));
  Snapshot snapshot = EmptySnapshot("any", Rows(*other)[0].profile.model->data);
  for (const char* key : {"brightness", "contrast", "sharpness", "tint"})
    snapshot.settings.push_back({std::string("picture.") + key, 130, ""});
  Write(file, WriteSnapshot(snapshot));
  other->findChild<SettingsActions*>()->OpenFile(file, Rows(*other), true);
  ASSERT_TRUE(HasCompared(Modal<ComparisonDialog>()));
  SetFault(*other, 0, {Fault::Kind::Late, 400ms});
  Find<QPushButton>(Modal<ComparisonDialog>(), "Apply").click();
  const auto& projector = other->Session(0)->Simulator();
  EXPECT_TRUE(Soon([&] { return projector.Value(SettingId::Brightness) == 130; }));
  EXPECT_TRUE(Soon([&] { return QApplication::activeModalWidget() != nullptr; }));
  Find<QPushButton>(Modal<WorkDialog>(), "Stop").click();
  EXPECT_EQ(Results(Done(*other)), QStringList("C: stopped"));
  Find<QLabel>(Done(*other), "0 of 1 done · 1 stopped");
  Find<QPushButton>(Done(*other), "Do the Rest").click();
  EXPECT_TRUE(Soon([&] { return projector.Value(SettingId::Sharpness) == 130; }));
  other.reset();
  const QStringList undo = QDir(folder.path()).entryList({"good.undo.*.json"});
  ASSERT_EQ(undo.size(), 2);
  EXPECT_GE(ReadFleetUndo(Contents(folder.filePath(undo[1]))).undo.begin()->second->settings.size(),
            3U);
}

TEST(Work, UndoesWhatAnyAttemptMayHaveDone) {
  MainWindow window({Profile("A"), Profile("B"), Profile("C")},
                    {.interval = 200ms, .longestPause = 200ms, .soonest = 200ms});
  const auto setPower = [&](std::size_t i, bool isOn) {
    window.Session(i)->Simulator().SetValue(SettingId::Power, isOn);
  };
  setPower(0, true);
  for (const std::size_t i : {1U, 2U}) SetFault(window, i, {Fault::Kind::DropOut});
  window.show();
  ASSERT_TRUE(AreWatched(window));
  ASSERT_TRUE(Soon([&] { return Rows(window)[0].state.power == PowerState::On; }));
  SetFault(window, 0, {Fault::Kind::DropOut});
  Table(window).selectAll();
  Find<QAction>(window, "Switch Off").trigger();
  auto& dialog = *window.findChild<WorkDialog*>();
  Find<QPushButton>(dialog, "Switch Off").click();
  EXPECT_TRUE(Results(Done(window)).filter("done").empty());
  setPower(0, false);  // only the answer was lost
  for (const std::size_t i : {1U, 2U}) {
    setPower(i, i == 1);
    SetFault(window, i, {});
  }
  EXPECT_TRUE(Soon([&] { return Rows(window)[1].state.power && Rows(window)[2].state.power; }));
  Find<QPushButton>(dialog, "Retry the Failed").click();
  EXPECT_EQ(Results(Done(window)), (QStringList{"A: no answer", "B: done", "C: done"}));
  SetFault(window, 0, {});
  Find<QPushButton>(dialog, "Undo All").click();
  EXPECT_TRUE(Soon([&] { return window.findChild<WorkDialog*>() != &dialog; }));
  EXPECT_EQ(Results(Done(window)),
            (QStringList{"A: done", "B: done", "C: not known whether it was on"}));
  EXPECT_TRUE(Find<QPushButton>(Done(window), "Retry the Failed").isHidden());
}

TEST(DifferenceTree, MakesLinesWhenABranchIsOpenedAndKeepsThemWhenOthersAreReadAgain) {
  const auto model = std::make_shared<const ModelData>(Profile("any").model->data);
  const SettingDifference tint{{"picture.tint", 130, ""}, SettingDifference::Kind::Differs};
  std::vector<ComparedProjector> projectors;
  std::vector<WorkLine> lines;
  for (const std::size_t count : {2000U, 1U, 2U}) {
    const std::string id = std::to_string(count);
    projectors.push_back({{id, AddressError{}, model}, id.c_str(), std::make_shared<Snapshot>()});
    lines.push_back({.id = id, .outcome = WorkOutcome::Done});
    lines.back().differences = std::make_shared<const std::vector<SettingDifference>>(count, tint);
  }
  const WorkLine later = std::exchange(lines[1], {.id = "1", .outcome = WorkOutcome::NoAnswer});
  const SettingTexts texts(CatalogFolders(), kEnglishUnitedStates);
  DifferenceTree tree("File", true, texts);
  tree.Show(projectors, lines);
  EXPECT_EQ(Lines(tree).mid(2000), (QStringList{"  Picture: Tint||2", "1||", "2||"}));
  EXPECT_EQ(tree.Checked().at("2")->settings.size(), 2U) << "closed, and checked";
  QTreeWidgetItem& last = *tree.topLevelItem(2);
  last.setCheckState(0, Qt::Unchecked);
  lines[1] = later;
  tree.Show(projectors, lines);
  EXPECT_TRUE(tree.Checked().size() == 2 && tree.Checked().at("1")->settings.size() == 1);
  last.setExpanded(true);
  last.child(1)->setCheckState(0, Qt::Checked);
  EXPECT_EQ(tree.Checked().at("2")->settings.size(), 1U);
}

}  // namespace
