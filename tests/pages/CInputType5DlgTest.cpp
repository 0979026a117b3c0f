#include <gtest/gtest.h>

#include "pages/input/CInputType5Dlg.h"
#include "tests/support/NumberedCatalog.h"
#include "tests/support/PageTables.h"

namespace {

constexpr int kInputTab = 3;

const ReadRow kRows[] = {
    {20294, "GetProgressive"},    {20295, "GetVideoNrVal"},     {20296, "Get3dycs"},
    {20297, "GetColorSpace"},     {20298, "GetComponent"},      {20299, "GetVideoFormat 1"},
    {20300, "GetVideoFormat 0"},  {20307, "GetHDMI"},           {20301, "GetM1d"},
    {20302, "GetFrameLock"},      {20309, "GetFrameLockComp1"}, {20305, "GetFrameLockComp1"},
    {20310, "GetFrameLockComp2"}, {20306, "GetFrameLockComp2"}, {20308, "GetFrameLockHDMI"},
    {20303, "GetRgbIn 1"},        {20311, "GetRgbIn 1"},        {20304, "GetRgbIn 2"},
    {20312, "GetRgbIn 2"},
};
const RowsOfModels kModels{
    {"30 31", "1111111011000001010"},       {"32 33 36", "1101111001000001010"},
    {"37", "1101011001000000101"},          {"38", "1101011001000000100"},
    {"39 45", "1101111001000000101"},       {"40 44 49 50", "1101111000010100101"},
    {"41 43 51 54", "1111111100101011010"}, {"42 53", "1101111100010110101"},
    {"46", "1111111001000001010"},          {"52", "1111111000101001010"},
};

TEST(Input5, EachModelShowsAndReadsItsRowsInOrder) {
  for (int code = 28; code <= 56; ++code) {
    SCOPED_TRACE(code);
    OpenDialog open(MakeModel(5, code), kInputTab);
    open.Page().InitDisp();
    ExpectRows(kRows, DigitsOf(kModels, code), open.Page(), open.Projector().Take());
  }
}

TEST(Input5, PresentRowsArePackedInTwoColumns) {
  OpenDialog open(MakeModel(5, 40), kInputTab);
  const int left[] = {20294, 20295, 20297, 20298};  // no gap for 3D-YCS
  const int right[] = {20305, 20306, 20311, 20312};
  const auto top = [&](int list) { return open.Driver().Item<CComboBox>(list).y(); };
  for (int slot = 0; slot < 4; ++slot) {
    EXPECT_EQ(top(left[slot]), top(left[0]) + slot * (top(left[1]) - top(left[0])));
    EXPECT_EQ(top(right[slot]), top(left[slot]));
  }
}

TEST(Input5, AModelWithoutRowsOfItsOwnKeepsTheTemplatesLists) {
  OpenDialog open(MakeModel(5, 47), kInputTab);
  EXPECT_EQ(open.Driver().Entries(20307), (QStringList{"Sync On G Off", "Sync On G On"}));
  EXPECT_EQ(open.Driver().Text(20500), "Progressive") << "captions are localized all the same";
}

TEST(Input5, ListsAskForTheirTexts) {
  const NumberedCatalog catalog;
  for (int code = 30; code <= 54; ++code) {
    const std::string rows = DigitsOf(kModels, code);
    if (rows.empty()) continue;
    OpenDialog open(MakeModel(5, code), kInputTab);
    const DialogDriver driver = open.Driver();
    EXPECT_EQ(driver.Entries(20294), (QStringList{"30", "2011", "2012"}));
    EXPECT_EQ(driver.Entries(20295), (QStringList{"367", "3368", "369"}));
    if (rows[2] == '1') {
      EXPECT_EQ(driver.Entries(20296), (QStringList{"30", "417", "3418"}));
    }
    EXPECT_EQ(driver.Entries(20299),
              (QStringList{"98", "NTSC", "PAL", "SECAM", "NTSC4.43", "M-PAL", "N-PAL"}));
    const bool automatic =
        std::string("37 38 41 43 51 52 54").find(std::to_string(code)) != std::string::npos;
    EXPECT_EQ(driver.Entries(rows[15] == '1' ? 20303 : 20311),
              (QStringList{"102", automatic ? "98" : "103"}));
  }
}

TEST(Input5, ValuesBecomePositions) {
  OpenDialog open(MakeModel(5, 30), kInputTab);
  const auto shown = [&](const char* key, int value, int list) {
    open.Projector().Answer(key, value);
    open.Page().InitDisp();
    return open.Driver().Selected(list);
  };
  EXPECT_EQ(shown("GetProgressive", 2, 20294), 2);
  EXPECT_EQ(shown("GetProgressive", 3, 20294), -1);
  EXPECT_EQ(shown("GetVideoNrVal", 3, 20295), 2);
  EXPECT_EQ(shown("GetVideoNrVal", 0, 20295), -1);
  EXPECT_EQ(shown("GetVideoFormat 1", 2, 20299), 4);
  EXPECT_EQ(shown("GetVideoFormat 1", 0, 20299), -1) << "0 is none of the formats";
  EXPECT_EQ(shown("GetVideoFormat 0", 7, 20300), 6);
  EXPECT_EQ(shown("GetRgbIn 1", 2, 20303), 0);
  EXPECT_EQ(shown("GetRgbIn 2", 3, 20304), 1);
  EXPECT_EQ(shown("GetRgbIn 2", 1, 20304), -1);
  EXPECT_EQ(CInputType5Dlg::VideoFmtToIdx(10), 0);
  EXPECT_EQ(CInputType5Dlg::VideoFmtToIdx(-1), -1) << "the table's end is none of its values";
}

TEST(Input5, AFailedReadTakesOnlyItsListOutOfUse) {
  OpenDialog open(MakeModel(5, 30), kInputTab,
                  [](RecordingChannel& projector) { projector.Refuse("GetVideoFormat 1"); });
  const DialogDriver driver = open.Driver();
  EXPECT_FALSE(driver.IsEnabled(20299));
  EXPECT_EQ(driver.Selected(20299), -1) << "an unread list must not show a setting";
  EXPECT_TRUE(driver.IsEnabled(20526) && driver.IsEnabled(20300));
  open.Projector().Accept("GetVideoFormat 1");
  open.Page().InitDisp();
  EXPECT_TRUE(driver.IsEnabled(20299));
}

// The video formats are read as device values, but sent as positions.
TEST(Input5, EachChoiceSendsItsPosition) {
  const ListChoice choices[] = {
      {30, 20294, 2, "SetProgressive 2"},
      {30, 20295, 0, "SetVideoNR 0 1"},
      {30, 20296, 1, "Set3DYCS 1"},
      {30, 20297, 4, "SetColorSpace 4"},
      {30, 20298, 1, "SetComponent 1"},
      {30, 20299, 0, "SetCVideoFormat 0"},
      {30, 20300, 6, "SetSVideoFormat 6"},
      {30, 20301, 1, "SetM1D 1"},
      {30, 20302, 1, "SetFrameLock 1"},
      {30, 20303, 1, "SetRgbIn1 1 1"},
      {30, 20304, 0, "SetRgbIn2 0 1"},
      {41, 20307, 2, "SetHDMI 2"},
      {41, 20309, 1, "SetFrameLockComp1 1 1"},
      {41, 20310, 1, "SetFrameLockComp2 1 1"},
      {41, 20308, 1, "SetFrameLockHDMI 1"},
      {53, 20305, 1, "SetFrameLockComp1 1 0"},
      {53, 20306, 1, "SetFrameLockComp2 1 0"},
      {53, 20311, 1, "SetRgbIn1 1 0"},
      {53, 20312, 1, "SetRgbIn2 1 0"},
  };
  for (const ListChoice& choice : choices) {
    OpenDialog open(MakeModel(5, choice.modelCode), kInputTab);
    ExpectSent(choice, open);
  }
}

}  // namespace
