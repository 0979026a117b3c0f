#include <tuple>

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPalette>
#include <QTest>

#include "app/desktop/log/CommandLog.h"
#include "app/desktop/log/SettingNames.h"
#include "device/channels/LoggingChannel.h"
#include "fleet/ProfileFile.h"
#include "tests/app/Windows.h"
#include "tests/support/Programs.h"

namespace {

CommandLogModel::Entry Entry(const QString& projector, PjtCommand command, PjtReply reply) {
  return {{}, projector, QStringLiteral("Sharpness"), QStringLiteral("4"), command, reply, {}};
}

const PjtCommand kRead{PjtOperation::Get, 0x2201};
const PjtCommand kChange{PjtOperation::Set, 0x2201, 130};

TEST(CommandLog, KeepsTheNewestEntries) {
  CommandLogModel model;
  constexpr int kMaximum = CommandLogModel::kMaximumEntries;
  for (const int size : {3, kMaximum, 4})
    model.Append(std::vector(static_cast<std::size_t>(size),
                             Entry(QString::number(size), kRead, {.result = 1, .value = 5})));
  ASSERT_EQ(model.rowCount(), kMaximum);
  EXPECT_EQ(model.index(kMaximum - 5, 1).data(), QString::number(kMaximum));
  EXPECT_EQ(model.index(kMaximum - 4, 1).data(), "4");
}

TEST(CommandLog, ShowsSettingNamesAndOutcomes) {
  const std::tuple<PjtCommand, PjtReply, const char*> cases[] = {
      {kRead, {.result = 1, .value = 128}, "Get 0x2201\t4 (128)\tok"},
      {kRead, {.answered = false}, "Get 0x2201\t\tno answer"},
      {kChange, {.result = 1}, "Set 0x2201\t4 (130)\tok"},
      {kChange, {.result = 0}, "Set 0x2201\t4 (130)\trefused"},
      {{PjtOperation::SetBrightness, 0, 140}, {.result = 0}, "SetBrightness\t4 (140)\trefused"},
      {{PjtOperation::GetInputSrcVolume, 0, 3}, {}, "GetInputSrcVolume(3)\t\trefused"},
      {kRead, {.answered = false, .abandoned = true}, "Get 0x2201\t\tabandoned"},
      {kRead, {.offered = false}, "Get 0x2201\t\tnot offered"},
      {kChange, {.busy = true}, "Set 0x2201\t4 (130)\tbusy"},
      {kChange, {.result = 1, .pending = true}, "Set 0x2201\t4 (130)\tnot yet so"},
  };
  for (const auto& [command, reply, text] : cases) {
    CommandLogModel model;
    model.Append({Entry("A", command, reply)});
    EXPECT_EQ(LogText(model, {0}), QStringLiteral("\tA\tSharpness\t%1\t0.0\n").arg(text));
    const bool isRed = model.index(0, CommandLogModel::Result).data(Qt::ForegroundRole).isValid();
    EXPECT_EQ(isRed, !IsSuccess(command.operation, reply.result) && !reply.abandoned);
  }
}

TEST(CommandLog, NamesSettingsAndValuesAsTheDialogDoes) {
  using Op = PjtOperation;
  const auto list = ReadProfileList(TEST_CATALOG_DIR "/projectors.json");
  const auto model = std::ranges::find(list.profiles, "Projector 5-30", &FleetProfile::name)->model;
  const PjtReply done{.result = 1};
  const auto read = [](std::int16_t value) { return PjtReply{.result = 1, .value = value}; };
  const std::tuple<PjtCommand, PjtReply, const char*, const char*> cases[] = {
      {{Op::Get, 0x2201}, read(126), "Sharpness", "2"},
      {{Op::Set, 0x2201, 122}, done, "Sharpness", "-2"},
      {{Op::SetBrightness, 0, 131}, done, "Brightness", "3"},
      {{Op::Get, 0x6000}, read(1), "Power Status", "On"},
      {{Op::ExecBrightnessReset}, {.result = 0}, "Brightness", ""},
      {{Op::SetAspect, 0, 1}, done, "Aspect", "16:9"},
      {{Op::Get, 0x2201}, {.result = 0}, "Sharpness", ""},
      {{Op::Get, 0x7FFF}, read(1), "", ""},
  };
  SettingNames names;
  const auto users = model.use_count();
  for (const auto& [command, reply, setting, value] : cases) {
    const auto meaning = names.Of(model, command, reply);
    EXPECT_EQ(meaning.setting, setting) << FormatCommand(command);
    EXPECT_EQ(meaning.value, value) << FormatCommand(command);
  }
  EXPECT_EQ(model.use_count(), users) << "a file that was read again has others";
}

TEST(CommandLog, RefusalsAreReadableOnEveryPalette) {
  CommandLogModel model;
  model.Append({Entry("A", kChange, {.result = 0})});
  const QPalette before = QGuiApplication::palette();
  for (const QColor& base : {QColor(Qt::white), QColor(0x1E, 0x1E, 0x1E)}) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    QGuiApplication::setPalette(palette);
    const auto color = model.index(0, CommandLogModel::Result).data(Qt::ForegroundRole);
    EXPECT_GT(std::abs(color.value<QBrush>().color().lightness() - base.lightness()), 90);
  }
  QGuiApplication::setPalette(before);
}

TEST(CommandLog, CopiesAndSavesShownRowsAndFollowsNewOnes) {
  CommandLog log;
  auto& table = *log.findChild<QTableView*>();
  const auto shows = [&table](int row) {
    const QPoint place = table.visualRect(table.model()->index(row, 0)).topLeft();
    return table.model()->rowCount() == row + 1 && table.viewport()->rect().contains(place);
  };
  int insertions = 0;
  QObject::connect(table.model(), &QAbstractItemModel::rowsInserted, [&] { ++insertions; });
  for (int i = 0; i < 5000; ++i) {
    log.Add(Entry("A", kRead, {.result = 1, .value = 1}));
    CommandLogModel::Entry change = Entry("A", kChange, {.result = 1});
    change.time = QDateTime({2026, 3, 1}, {9, 30});
    log.Add(change);
  }
  ASSERT_TRUE(Soon([&table] { return table.model()->rowCount() == 10'000; }));
  EXPECT_LT(insertions, 100) << "many at a time";
  log.resize(800, 250);  // with room for fewer rows than before
  log.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&log));
  EXPECT_TRUE(shows(9999)) << "when it opens";
  log.Add(Entry("A", kRead, {.result = 1}));
  EXPECT_TRUE(Soon([&] { return shows(10'000); }));
  log.ChangesOnly()->trigger();
  ASSERT_EQ(table.model()->rowCount(), 5000);

  table.setFocus();
  table.selectRow(7);
  QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
  const QString line = LogText(*table.model(), {7});
  EXPECT_EQ(QGuiApplication::clipboard()->text(), line);
  EXPECT_EQ(line.count('\t'), 6);

  const QTemporaryDir folder;
  ASSERT_EQ(log.Save(folder.filePath("log.tsv")), "");
  const QList<QByteArray> lines = Contents(folder.filePath("log.tsv")).split('\n');
  EXPECT_EQ(lines.size(), 5002);
  EXPECT_EQ(lines[0], "Time\tProjector\tSetting\tCommand\tValue\tResult\tms");
  EXPECT_TRUE(lines[1].startsWith("2026-03-01 09:30:00.000\tA\t")) << "with its date";
  EXPECT_NE(log.Save("/nowhere/log.tsv"), "");

  log.Add(Entry("B", kChange, {.result = 0}));
  ASSERT_TRUE(Soon([&table] { return table.model()->rowCount() == 5001; }));
  auto& projectors = *log.findChild<QComboBox*>();
  const auto choose = [&](const QString& name) {
    projectors.setCurrentText(name);
    Q_EMIT projectors.activated(projectors.currentIndex());
    return table.model()->rowCount();
  };
  EXPECT_EQ(choose("B"), 1);
  EXPECT_EQ(table.visualRect(table.model()->index(0, 0)).bottom(), table.viewport()->height() - 1);
  log.ErrorsOnly()->trigger();
  EXPECT_EQ(choose("A"), 0);
  EXPECT_EQ(choose("All projectors"), 1);
  log.ClearAll()->trigger();
  Modal<QMessageBox>().reject();
  EXPECT_EQ(table.model()->rowCount(), 1) << "asked, and answered with Esc";
}

}  // namespace
