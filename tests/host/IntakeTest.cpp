#include <numeric>

#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"
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

/// Copied whole, whatever the count.
void ExpectList(const CountedList& list, int count, int from, const char* lastName) {
  EXPECT_EQ(list.count, count);
  EXPECT_EQ(list.values.front(), from);
  EXPECT_EQ(list.values.back(), from + 31);
  EXPECT_EQ(NameText(list.names.back()), lastName);
}

TEST(Intake, EachFormAddsToTheOneBefore) {
  const HostLists lists;
  CAdvanceDlg dialog;
  dialog.CopyData2("New", 42, 5, 3, lists.sourceNames, lists.first.data(), lists.second.data(), 4,
                   lists.whisper.data(), lists.names[0], 1, lists.aspect.data(), lists.names[1], 2,
                   lists.gamma.data(), lists.names[2], 0, lists.colorTemp.data(), lists.names[3]);
  dialog.CopyData3("r0", "r1", "r2", "r3", "r4", "r5", "r6", "r7", "r8", "r9", "r10", "r11", "r12",
                   "r13", "r14", "r15", "r16", "r17", "r18", "r19", "r20", "r21", "r22", "r23",
                   "r24", "r25", "r26", "r27", "r28", "r29", "r30", "r31");
  const ModelData& model = dialog.Model();
  EXPECT_EQ(model.ModelName, "New");
  EXPECT_EQ(model.DialogType, 5);
  EXPECT_EQ(model.MySourceList.count, 3);
  EXPECT_EQ(NameText(model.MySourceList.names.back()), "Last source");
  EXPECT_EQ(model.MySourceList.firstValues.back(), 115);
  EXPECT_EQ(model.MySourceList.secondValues.front(), 200);
  ExpectList(model.AspectList, 1, 400, "Last 1");
  ExpectList(model.GammaList, 2, 500, "Last 2");
  ExpectList(model.ColorTempList, 0, 600, "Last 3");
  for (std::size_t i = 0; i < RangeIndex::Count; ++i) {
    EXPECT_EQ(model.RangeTexts[i], i < 32 ? "r" + std::to_string(i) : "");
  }

  dialog.CopyData("Old", 2, 0, nullptr, nullptr, nullptr, 0, nullptr, nullptr, 0, nullptr, nullptr,
                  0, nullptr, nullptr);
  EXPECT_EQ(model.ModelName, "Old");
  EXPECT_EQ(model.DialogType, 2);
  EXPECT_EQ(model.GammaList.values.back(), 0);
  EXPECT_EQ(model.ModelCode, 42) << "the oldest form sets neither this";
  ExpectList(model.WhisperList, 4, 300, "Last 0");
}

void ExpectConnection(CAdvanceDlg& dialog, const ConnectionData& expected) {
  const CPjtInterface& from = dialog.Projector();
  EXPECT_EQ(expected, (ConnectionData{from.ConnectionKind(), from.ConnectionNumber(),
                                      from.ConnectionParameter(), from.ConnectionText1(),
                                      from.ConnectionText2()}));
}

TEST(Intake, ARecordOrAnItemGivesTheModelAndTheChosenConnection) {
  CModelInfo2 record = MakeModel(5, 30);
  record.ConnectionNumbers[3] = 40;
  record.ConnectionParameters[3] = 41;
  record.ConnectionTexts2[3] = MakeNameSlot("four-2");
  CAdvanceDlg dialog;
  dialog.CopyData(&record, 3);
  dialog.CopyData(static_cast<const CModelInfo2*>(nullptr), 0);
  dialog.CopyData(static_cast<const CProjectorItem*>(nullptr));
  EXPECT_EQ(dialog.Model().ModelCode, 30);
  ExpectConnection(dialog, {0, 40, 41, "", "four-2"});

  const CProjectorItem item{.Name = "Room 7", .ConnectionKind = 1, .Address = 0xC0A80107};
  dialog.CopyData(&item);
  EXPECT_EQ(dialog.Model().ModelName, "Room 7");
  EXPECT_EQ(dialog.Model().ModelCode, 0) << "an item without a record";
  ExpectConnection(dialog, {1, 0, 0, "192.168.1.7", ""});
}

}  // namespace
