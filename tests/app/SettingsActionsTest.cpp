#include <gmock/gmock.h>

#include <QCheckBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

#include "app/desktop/projectors/ProjectorSession.h"
#include "app/desktop/settings/SettingsActions.h"
#include "app/profiles/SettingsFile.h"
#include "app/profiles/Translations.h"
#include "fleet/ProfileFile.h"
#include "i18n/SystemLanguage.h"
#include "tests/support/Soon.h"

namespace {

constexpr int kSettingColumn = 1, kResultColumn = 4;
const QString kBeforehand = "Beforehand: other sources and modes";

/// Two projectors of one model, and a file with the settings of the first.
struct ProjectorPair {
  ProjectorPair() {
    for (const FleetProfile& profile :
         ReadProfileList(TEST_CATALOG_DIR "/projectors.json").profiles) {
      if (profile.name != "Projector 5-30" && profile.name != "Projector 5-31") continue;
      sessions.push_back(std::make_shared<ProjectorSession>(
          profile, [this](const PjtCommand&, const PjtReply& reply, std::chrono::microseconds) {
            if (!reply.answered) sessions[1]->ClearFaults();
          }));
    }
    EXPECT_EQ(SettingsActions::SaveTo(file, {sessions[0]}), QStringList());
  }
  SimulatedProjector& Projector(std::size_t index) { return sessions[index]->Simulator(); }

  QTemporaryDir folder;
  const QString file = folder.filePath("good.json");
  ProjectorSessions sessions;
};

/// The texts of a column in the order shown.
QStringList Column(const RestoreDialog& dialog, int column) {
  const QAbstractItemModel& model = *dialog.findChild<QTreeView*>()->model();
  QStringList texts;
  for (int row = 0; row < model.rowCount(); ++row) {
    texts.append(model.index(row, column).data().toString());
  }
  return texts;
}

TEST(SettingsActions, RestoresCheckedSettingsOfEveryProjector) {
  ProjectorPair projectors;
  projectors.Projector(0).SetValue(SettingId::Brightness, 135);
  projectors.Projector(1).SetValue(SettingId::Contrast, 120);
  projectors.Projector(1).SetValue(SettingId::PositionV, 50);
  projectors.sessions[1]->SetFault({}, {.kind = Fault::Kind::DropOut});
  Snapshot snapshot = ReadSettingsFile(projectors.file).snapshot;
  snapshot.beforehand = {{"picture.sharpness", 129, ""}};
  snapshot.settings.insert(snapshot.settings.begin(), {"audio.volume", 16, "", 99});
  InstallTranslations(kEnglishUnitedStates);  // for the plurals
  RestoreDialog dialog(RestoreDialog::Purpose::Restore, snapshot, projectors.file,
                       projectors.sessions, [](QObject*, const std::function<void()>& work) {
                         work();
                         return true;
                       });
  dialog.show();
  ASSERT_TRUE(Soon([&] { return Column(dialog, kSettingColumn).size() >= 50; }));
  EXPECT_EQ(Column(dialog, kResultColumn)[5], "not read");
  QAbstractItemModel& model = *dialog.findChild<QTreeView*>()->model();
  model.setData(model.index(3, kSettingColumn), Qt::Unchecked, Qt::CheckStateRole);
  dialog.Compare();
  EXPECT_EQ(Column(dialog, kSettingColumn),
            QStringList({kBeforehand, "Audio: Volume (99)", "Picture: Brightness", kBeforehand,
                         "Audio: Volume (99)", "Picture: Contrast", "Image: Position V"}));
  EXPECT_EQ(Column(dialog, 2), QStringList({"", "", "7", "", "", "-8", "50"}));
  EXPECT_EQ(Column(dialog, 3), QStringList({"1 setting", "16", "0", "1 setting", "16", "0", "40"}));

  QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  auto* table = dialog.findChild<QTreeView*>();
  for (const auto key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Space}) QTest::keyClick(table, key);
  EXPECT_EQ(model.index(6, kSettingColumn).data(Qt::CheckStateRole), Qt::Unchecked);
  projectors.sessions[1]->SetFault(PjtOperation::SetContrast, {.kind = Fault::Kind::DropOut});
  dialog.Restore();
  const QString skipped = "skipped: this model does not take the value";
  EXPECT_EQ(Column(dialog, kResultColumn), QStringList({"changed", skipped, "changed", "not read",
                                                        skipped, "changed", "different"}));
  EXPECT_EQ(projectors.Projector(0).Value(SettingId::Sharpness), 129);
  EXPECT_EQ(projectors.Projector(1).Value(SettingId::Sharpness), 128);
  EXPECT_EQ(projectors.Projector(0).Value(SettingId::Brightness), 128);
  EXPECT_EQ(projectors.Projector(1).Value(SettingId::Contrast), 128);
  EXPECT_EQ(projectors.Projector(1).Value(SettingId::PositionV), 50);
  EXPECT_EQ(QDir(projectors.folder.path()).entryList({"good.undo.*"}).size(), 2);
  dialog.findChild<QCheckBox*>()->setChecked(false);
  EXPECT_GT(Column(dialog, kSettingColumn).size(), 100) << "what is the same is shown on demand";
}

TEST(SettingsActions, ReportsWhatCannotBeSaved) {
  ProjectorPair projectors;
  projectors.sessions[1]->SetFault({}, {.kind = Fault::Kind::FailRead});
  const QStringList errors = SettingsActions::SaveTo(projectors.folder.path(), projectors.sessions);
  EXPECT_EQ(errors, QStringList("Projector 5-31: nothing can be read"));
  const QDeadlineTimer soon(
      std::chrono::minutes(1));  // much shorter than a time-out for each setting
  const auto falter = [&] { projectors.sessions[0]->SetFault({}, {.kind = Fault::Kind::DropOut}); };
  EXPECT_EQ(SettingsActions::SaveTo("/nowhere", {projectors.sessions[0]}, {.step = falter}),
            QStringList("Projector 5-30: no answer"));
  EXPECT_FALSE(soon.hasExpired());
  projectors.sessions[0]->ClearFaults();
  SettingsActions::SaveTo(projectors.folder.path(),
                          {projectors.sessions[0], projectors.sessions[0]});
  EXPECT_EQ(QDir(projectors.folder.path()).entryList({"Projector_5-30*.json"}).size(), 3);
  EXPECT_THAT(
      SettingsActions::SaveTo("/proc/x.json", {projectors.sessions[0]}).join('\n').toStdString(),
      testing::StartsWith("cannot write /proc/x.json: "));
}

}  // namespace
