#include <QClipboard>
#include <QGuiApplication>
#include <QPalette>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "app/desktop/log/CommandLog.h"
#include "app/desktop/log/SettingNames.h"
#include "tests/support/Programs.h"
#include "tests/support/Soon.h"

namespace {

CommandLogModel::Entry Entry(const QString& projector, PjtCommand command, PjtReply reply) {
  return {{}, projector, QStringLiteral("Sharpness"), command, reply, {}};
}

const PjtCommand kRead{PjtOperation::Get, 0x2201};
const PjtCommand kChange{PjtOperation::Set, 0x2201, 130};

TEST(CommandLog, KeepsTheNewestEntries) {
  CommandLogModel model;
  constexpr int kMaximum = CommandLogModel::kMaximumEntries;
  for (const int size : {3, kMaximum, 4}) {
    model.Append(std::vector(static_cast<std::size_t>(size),
                             Entry(QString::number(size), kRead, {.result = 1, .value = 5})));
  }
  ASSERT_EQ(model.rowCount(), kMaximum);
  EXPECT_EQ(model.index(kMaximum - 5, 1).data(), QString::number(kMaximum));
  EXPECT_EQ(model.index(kMaximum - 4, 1).data(), "4");
}

struct Shown {
  PjtCommand command;
  PjtReply reply;
  const char* text;
};

TEST(CommandLog, ShowsSettingNamesAndOutcomes) {
  const Shown cases[] = {
      {kRead, {.result = 1, .value = 128}, "Get Sharpness 0x2201\t128\tok"},
      {kRead, {.answered = false}, "Get Sharpness 0x2201\t\tno answer"},
      {kChange, {.result = 1}, "Set Sharpness 0x2201\t0x82\tok"},
      {kChange, {.result = 0}, "Set Sharpness 0x2201\t0x82\trefused"},
      {{PjtOperation::SetBrightness, 0, 140}, {.result = 0}, "SetBrightness\t140\trefused"},
      {kRead, {.answered = false, .abandoned = true}, "Get Sharpness 0x2201\t\tleft"},
      {kRead, {.offered = false}, "Get Sharpness 0x2201\t\tnot offered"},
      {kChange, {.busy = true}, "Set Sharpness 0x2201\t0x82\tbusy"},
      {kChange, {.result = 1, .pending = true}, "Set Sharpness 0x2201\t0x82\tnot yet so"},
  };
  for (const auto& [command, reply, text] : cases) {
    CommandLogModel model;
    model.Append({Entry("A", command, reply)});
    EXPECT_EQ(LogText(model, {0}), QStringLiteral("\tA\t%1\t0.0\n").arg(text));
    const bool isRed = model.index(0, CommandLogModel::Result).data(Qt::ForegroundRole).isValid();
    EXPECT_EQ(isRed, !IsSuccess(command.operation, reply.result) && !reply.abandoned);
  }
  const auto names = SettingNames(5, 30);
  EXPECT_EQ(names.at(0x2201), "Sharpness");
  EXPECT_EQ(names.at(0x6000), "Power Status");
  EXPECT_EQ(SettingNames(0, 0).at(0x2201), "Sharpness") << "of no row";
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
  log.resize(800, 400);
  log.show();
  log.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&log));
  auto& table = *log.findChild<QTableView*>();
  log.Add(Entry("A", kChange, {.result = 1}));
  ASSERT_TRUE(Soon([&table] { return table.model()->rowCount() == 1; }));
  EXPECT_EQ(table.visualRect(table.model()->index(0, 0)).bottom(), table.viewport()->height() - 1);
  log.Clear();
  int insertions = 0;
  QObject::connect(table.model(), &QAbstractItemModel::rowsInserted, [&] { ++insertions; });
  for (int i = 0; i < 5000; ++i) {
    log.Add(Entry("A", kRead, {.result = 1, .value = 1}));
    log.Add(Entry("A", kChange, {.result = 1}));
  }
  ASSERT_TRUE(Soon([&table] { return table.model()->rowCount() == 10'000; }));
  EXPECT_LT(insertions, 100) << "many at a time";
  EXPECT_TRUE(
      table.viewport()->rect().contains(table.visualRect(table.model()->index(9999, 0)).topLeft()));
  log.ChangesOnly()->trigger();
  ASSERT_EQ(table.model()->rowCount(), 5000);

  table.setFocus();
  table.selectRow(7);
  QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
  const QString line = LogText(*table.model(), {7});
  EXPECT_EQ(QGuiApplication::clipboard()->text(), line);
  EXPECT_EQ(line.count('\t'), 5);

  const QTemporaryDir folder;
  ASSERT_EQ(log.Save(folder.filePath("log.tsv")), "");
  const QList<QByteArray> lines = Contents(folder.filePath("log.tsv")).split('\n');
  EXPECT_EQ(lines.size(), 5002);
  EXPECT_EQ(lines[0], "Time\tProjector\tCommand\tValue\tResult\tms");
  EXPECT_NE(log.Save("/nowhere/log.tsv"), "");
}

}  // namespace
