#include <numeric>

#include "host/FindLine.h"
#include "tests/host/PacedDialog.h"
#include "tests/support/Soon.h"

namespace {

// A list as a host passes it, with entries beyond the count.
CountedList Filled(int count, int from) {
  CountedList list{.count = count};
  std::iota(list.values.begin(), list.values.end(), from);
  list.names.back() = MakeNameSlot("last of " + std::to_string(from));
  return list;
}

TEST(Intake, EachFormAddsToThePreviousOne) {
  const CountedList whisper = Filled(4, 300), aspect = Filled(1, 400), gamma = Filled(2, 500),
                    colorTemp = Filled(0, 600);
  const auto names = [](const auto& list) { return list.names.data()->data(); };
  SourceList sources{.count = 3};
  sources.names.back() = MakeNameSlot("last");
  sources.firstValues.back() = 115;
  sources.secondValues.back() = 215;
  CAdvanceDlg dialog;
  dialog.CopyData2("New", 42, 5, sources.count, names(sources), sources.firstValues.data(),
                   sources.secondValues.data(), whisper.count, whisper.values.data(),
                   names(whisper), aspect.count, aspect.values.data(), names(aspect), gamma.count,
                   gamma.values.data(), names(gamma), colorTemp.count, colorTemp.values.data(),
                   names(colorTemp));
  dialog.CopyData3("r0", "r1", "r2", "r3", "r4", "r5", "r6", "r7", "r8", "r9", "r10", "r11", "r12",
                   "r13", "r14", "r15", "r16", "r17", "r18", "r19", "r20", "r21", "r22", "r23",
                   "r24", "r25", "r26", "r27", "r28", "r29", "r30", "r31");
  const ModelData& model = dialog.Model();
  EXPECT_TRUE(model.ModelName == "New" && model.DialogType == 5);
  EXPECT_EQ(model.MySourceList, sources);
  EXPECT_EQ(model.AspectList, aspect);
  EXPECT_TRUE(model.GammaList == gamma && model.ColorTempList == colorTemp);
  for (std::size_t i = 0; i < RangeIndex::Count; ++i)
    EXPECT_EQ(model.RangeTexts[i], i < 32 ? "r" + std::to_string(i) : "");

  dialog.CopyData("Old", 2, 0, nullptr, nullptr, nullptr, 0, nullptr, nullptr, 0, nullptr, nullptr,
                  0, nullptr, nullptr);
  EXPECT_TRUE(model.ModelName == "Old" && model.DialogType == 2);
  EXPECT_EQ(model.GammaList, CountedList());
  EXPECT_EQ(model.ModelCode, 42) << "the oldest form sets neither this";
  EXPECT_EQ(model.WhisperList, whisper);
}

TEST(Intake, ARecordOrItemGivesModelAndConnectionAndNullChangesNothing) {
  CModelInfo2 record = MakeModel(5, 30);
  record.ConnectionNumbers[3] = 40;
  CAdvanceDlg dialog;
  dialog.CopyData(&record, 3);
  dialog.CopyData(static_cast<const CModelInfo2*>(nullptr), 0);
  dialog.CopyData(static_cast<const CProjectorItem*>(nullptr));
  EXPECT_TRUE(dialog.Model().ModelCode == 30 && dialog.Projector().ConnectionNumber() == 40);

  const CProjectorItem item{.Name = "Room 7", .ConnectionKind = 1, .Address = 0xC0A80107};
  dialog.CopyData(&item);
  EXPECT_TRUE(dialog.Model().ModelName == "Room 7" && dialog.Model().ModelCode == 0);
  EXPECT_EQ(dialog.Projector().ConnectionText1(), "192.168.1.7");
}

struct ReportingChannel final : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    return {AcceptedResult(command.operation), 0};
  }
  std::optional<SourceList> Inputs() override { return inputs; }

  std::optional<SourceList> inputs = SourceList();
};

TEST(Intake, WithoutNamesOfTheHostThoseOfTheProjectorAreUsedAsItReportsThem) {
  CModelInfo2 model = MakeModel(5, 30);
  for (const auto& [name, then] : {std::pair("HDMI", QStringList{"HDMI", "Camera"}),
                                   std::pair("Video", QStringList{"Video"})}) {
    const auto projector = std::make_shared<ReportingChannel>();
    AddSource(*projector->inputs, 3, "HDMI");
    CAdvanceDlg dialog;
    Open(dialog, model, projector);
    dialog.findChild<QTabBar*>()->setCurrentIndex(8);
    const auto inputs = [&dialog] { return DialogDriver(*dialog.ShownPage()).Entries(20103); };
    auto& list = dialog.ShownPage()->Item<CComboBox>(20103);
    list.showPopup();
    AddSource(*projector->inputs, 4, "Camera");
    QTest::qWait(600);
    EXPECT_EQ(inputs(), QStringList{name}) << "while it is open";
    list.hidePopup();
    AddSource(model.MySourceList, 1, "Video");
    EXPECT_TRUE(Soon([&, &then = then] { return inputs() == then; }));
    const int sent = dialog.Projector().Sent().commands;
    QTest::qWait(600);
    EXPECT_EQ(dialog.Projector().Sent().commands, sent) << "nothing new, nothing read";
    EXPECT_EQ(inputs(), then);
  }
}

using IntakeOfAnOpenDialog = PacedDialog;

TEST_F(IntakeOfAnOpenDialog, TakesEffectAtTheNextCreation) {
  Open();
  CModelInfo2 other = FullModel(4, 9);
  other.ConnectionKinds[0] = 0;
  other.ConnectionNumbers[0] = 6;
  const QString title = dialog_.windowTitle();
  const int tabs = Tabs().count();
  for (const bool waiting : {true, false}) {
    if (waiting) {
      InTheWait([&] {
        dialog_.CopyData(&other, 0);
        projector_->Pace({});
      });
    } else {
      dialog_.CopyData(&other, 0);
    }
    for (int tab = 0; tab < tabs; ++tab) ClickTab(tab);
    dialog_.DispTabScreen();
    EXPECT_EQ(dialog_.Model().ModelCode, 30);
  }
  dialog_.close();
  EXPECT_EQ(dialog_.windowTitle(), title);
  dialog_.CopyData("Newest", 4, 0, nullptr, nullptr, nullptr, 0, nullptr, nullptr, 0, nullptr,
                   nullptr, 0, nullptr, nullptr);
  Open();
  EXPECT_TRUE(dialog_.Model().ModelName == "Newest" && dialog_.Model().ModelCode == 9);
  EXPECT_TRUE(dialog_.Projector().ConnectionNumber() == 6 && dialog_.windowTitle() != title);
  for (int tab = 0; tab < Tabs().count(); ++tab) ClickTab(tab);
  InTheWait([&] {
    dialog_.reject();
    dialog_.CopyData("Later", 4, 0, nullptr, nullptr, nullptr, 0, nullptr, nullptr, 0, nullptr,
                     nullptr, 0, nullptr, nullptr);
    EXPECT_NE(dialog_.Model().ModelName, "Later") << "a handler still runs";
    projector_->Pace({});
  });
  dialog_.DispTabScreen();
  Open();
  EXPECT_EQ(dialog_.Model().ModelName, "Later");
}

TEST_F(IntakeOfAnOpenDialog, OfAClosedOneMayHaveOtherPagesThanItsTabsAndEndsASearch) {
  Open(1);
  QTest::keyClick(&dialog_, Qt::Key_F, Qt::ControlModifier);
  auto& line = *dialog_.findChild<FindLine*>();
  QTest::keyClicks(&line, QStringLiteral("gamma point"));
  QTest::keyClick(&line, Qt::Key_Return);
  dialog_.close();
  for (const int type : {0, 3}) {
    dialog_.CopyData("Other", type, 0, nullptr, nullptr, nullptr, 0, nullptr, nullptr, 0, nullptr,
                     nullptr, 0, nullptr, nullptr);
    dialog_.SetWanted(WantedSettings());
    dialog_.DispTabScreen();
    EXPECT_EQ(dialog_.ShownPage(), nullptr);
    dialog_.show();
    dialog_.hide();
  }
  Open();
  EXPECT_FALSE(line.isVisible());
  line.show();
  QTest::keyClick(&line, Qt::Key_Return);
  QTest::qWait(0);
  EXPECT_EQ(Tabs().currentIndex(), 0) << "what it found before is forgotten";
  dialog_.close();
  Activate(dialog_);
  QTest::keyClick(&dialog_, Qt::Key_F, Qt::ControlModifier);
  EXPECT_FALSE(line.isVisible()) << "a closed dialog has nothing to find";
}

}  // namespace
