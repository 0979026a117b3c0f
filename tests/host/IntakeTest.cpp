#include <numeric>

#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"

namespace {

template <class Array>
void Fill(Array& array, int from) {
  std::iota(array.begin(), array.end(), from);
}

// Whole arrays as a host passes them, filled far beyond the counts.
struct HostLists {
  char sourceNames[1024] = {};
  std::array<int, 16> first, second;
  std::array<int, 32> whisper, aspect, gamma, colorTemp;
  char names[4][2048] = {};

  HostLists() {
    std::snprintf(sourceNames + 15 * 64, 64, "Last source");
    Fill(first, 100);
    Fill(second, 200);
    Fill(whisper, 300);
    Fill(aspect, 400);
    Fill(gamma, 500);
    Fill(colorTemp, 600);
    for (int list = 0; list < 4; ++list) std::snprintf(names[list] + 31 * 64, 64, "Last %d", list);
  }
};

TEST(Intake, TheOldestFormSetsNeitherModelCodeNorWhisperList) {
  const HostLists lists;
  CAdvanceDlg dialog;
  dialog.CopyData("Old", 2, 3, lists.sourceNames, lists.first.data(), lists.second.data(), 1,
                  lists.aspect.data(), lists.names[1], 2, lists.gamma.data(), lists.names[2], 0,
                  lists.colorTemp.data(), lists.names[3]);
  const ModelData& model = dialog.Model();
  EXPECT_EQ(model.ModelName, "Old");
  EXPECT_EQ(model.DialogType, 2);
  EXPECT_EQ(model.ModelCode, 0);
  EXPECT_EQ(model.WhisperList.values[0], 0);
  EXPECT_EQ(model.MySourceList.count, 3);
  EXPECT_EQ(NameText(model.MySourceList.names[15]), "Last source") << "copied whole";
  EXPECT_EQ(model.MySourceList.firstValues[15], 115);
  EXPECT_EQ(model.MySourceList.secondValues[0], 200);
  EXPECT_EQ(model.AspectList.values[31], 431);
  EXPECT_EQ(model.GammaList.count, 2);
  EXPECT_EQ(model.ColorTempList.count, 0);
  EXPECT_EQ(model.ColorTempList.values[0], 600) << "kept although the count is 0";
  EXPECT_EQ(NameText(model.ColorTempList.names[31]), "Last 3");
}

TEST(Intake, TheSecondFormAddsModelCodeAndWhisperListAndTheThirdTheRanges) {
  const HostLists lists;
  CAdvanceDlg dialog;
  dialog.CopyData2("New", 42, 5, 1, lists.sourceNames, lists.first.data(), lists.second.data(), 4,
                   lists.whisper.data(), lists.names[0], 3, lists.aspect.data(), lists.names[1], 2,
                   lists.gamma.data(), lists.names[2], 1, lists.colorTemp.data(), lists.names[3]);
  dialog.CopyData3("r0", "r1", "r2", "r3", "r4", "r5", "r6", "r7", "r8", "r9", "r10", "r11", "r12",
                   "r13", "r14", "r15", "r16", "r17", "r18", "r19", "r20", "r21", "r22", "r23",
                   "r24", "r25", "r26", "r27", "r28", "r29", "r30", "r31");
  const ModelData& model = dialog.Model();
  EXPECT_EQ(model.ModelCode, 42);
  EXPECT_EQ(model.DialogType, 5);
  EXPECT_EQ(model.WhisperList.count, 4);
  EXPECT_EQ(model.WhisperList.values[31], 331);
  EXPECT_EQ(model.AspectList.count, 3);
  EXPECT_EQ(model.GammaList.values[0], 500);
  EXPECT_EQ(model.ColorTempList.values[0], 600);
  for (std::size_t i = 0; i < 32; ++i)
    EXPECT_EQ(model.RangeTexts[i], std::string("r") + std::to_string(i));
  EXPECT_EQ(model.RangeTexts[RangeIndex::Treble], "");
  EXPECT_EQ(model.RangeTexts[RangeIndex::Bass], "");
}

TEST(Intake, ARecordGivesTheModelAndTheChosenConnection) {
  CModelInfo2 record = MakeModel(5, 30);
  record.ConnectionKinds = {1, 2, 3, 4, 5};
  record.ConnectionNumbers = {10, 20, 30, 40, 50};
  record.ConnectionParameters = {11, 21, 31, 41, 51};
  record.ConnectionTexts1[3] = MakeNameSlot("four-1");
  record.ConnectionTexts2[3] = MakeNameSlot("four-2");
  record.RangeText(RangeIndex::Bass) = "1,2";
  CAdvanceDlg dialog;
  dialog.CopyData(&record, 3);
  EXPECT_EQ(dialog.Model().ModelCode, 30);
  EXPECT_EQ(dialog.Model().RangeTexts[RangeIndex::Bass], "1,2");
  const CPjtInterface& projector = dialog.Projector();
  EXPECT_EQ(projector.ConnectionKind(), 4);
  EXPECT_EQ(projector.ConnectionNumber(), 40);
  EXPECT_EQ(projector.ConnectionParameter(), 41);
  EXPECT_EQ(projector.ConnectionText1(), "four-1");
  EXPECT_EQ(projector.ConnectionText2(), "four-2");
  dialog.CopyData(static_cast<const CModelInfo2*>(nullptr), 0);
  EXPECT_EQ(dialog.Model().ModelCode, 30);
}

TEST(Intake, AProjectorOfTheListBringsItsOwnNameAndConnection) {
  const CModelInfo2 record = MakeModel(4, 9);
  const CProjectorItem item{.Name = "Room 7",
                            .ConnectionKind = 1,
                            .ConnectionNumber = 2,
                            .ConnectionParameter = 3,
                            .Address = 0xC0A80107,
                            .ConnectionText2 = MakeNameSlot("second"),
                            .Model = &record};
  CAdvanceDlg dialog;
  dialog.CopyData(&item);
  EXPECT_EQ(dialog.Model().ModelName, "Room 7");
  EXPECT_EQ(dialog.Model().ModelCode, 9);
  EXPECT_EQ(dialog.Projector().ConnectionText1(), "192.168.1.7");
  EXPECT_EQ(dialog.Projector().ConnectionText2(), "second");
}

}  // namespace
