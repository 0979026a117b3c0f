// The input and video pages of the older page sets.

#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/NumberedCatalog.h"
#include "tests/support/PageTables.h"
#include "tests/support/RowCases.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kPowerUpInput = 21057;

CModelInfo2 Model(int dialogType, int code) {
  CModelInfo2 model = MakeModel(dialogType, code);
  AddSource(model.MySourceList, 4, "RGB2");
  AddSource(model.MySourceList, 6, "MIU");
  AddSource(model.MySourceList, 16, "LAN");
  return model;
}

/// A list, a value that is read and what it shows, and a choice with what it sends, if anything.
RowCase List(int control, const char* code, int value, const char* shown, int position,
             const char* command) {
  const Strings sent = *command == '\0' ? Strings{} : Strings{command};
  return {control, std::string("Get ") + code, value, shown, {{control, position, sent}}};
}

RowCase AutoAdjust(int button) { return {button, "", 0, "", {{button, 0, {"ExecAutoAdjust"}}}}; }

/// A page, and the rows of its models: a digit a row.
struct PageCase {
  int dialogType;
  int tab;  ///< One later on models of set 4 with a video page.
  std::vector<RowCase> rows;
  RowsOfModels models;
};

// clang-format off
const PageCase kPages[] = {
    {1, 4, {List(21074, "0x2204", 1, "RGB", 4, "SetColorSpace 4"),
            List(21075, "0x2017", 1, "Scart RGB", 0, "SetComponent 0"),
            List(21076, "0x2200", 10, "Auto", 4, "SetVideoFormat 4"),
            List(21059, "0x3014", 1, "On", 0, "SetFrameLock 0"),
            List(21077, "0x220A", 0, "Off", 1, "Set3DYCS 1"),
            List(21053, "0x2206", 3, "High", 0, "SetVideoNR 0 1"),  // read one higher than sent
            List(21060, "0x2207", 2, "FILM", 1, "SetProgressive 1"),
            List(21058, "0x220B", 1, "On", 0, "SetS2Aspect 0"),
            List(21054, "0x2302", 1, "Video", 1, "SetPinPInput 1"),
            List(21055, "0x2301", 3, "Bottom Right", 0, "SetPinPPosition 0"),
            List(21056, "0x2303", 1, "Video", 0, "SetPinPAudio 0"),
            List(21061, "0x2300", 1, "Large", 2, ""),
            {kPowerUpInput, "Get 0x2018", 16, "Last Input",
             {{kPowerUpInput, 1, {"Set 0x2018 4"}}, {kPowerUpInput, 0, {"Set 0x2018 16"}}},
             "Set 0x2018", 57, "RGB2"}},
     {{"1 2", "1110110111111"}, {"3", "1110110011111"}, {"16 17", "1111111100000"}}},
    {2, 4, {List(20046, "0x2011", 1, "Component", 0, "SetBNC 0"),
            List(20055, "0x2200", 7, "N-PAL", 0, "SetVideoFormat 0"),
            List(20047, "0x2205", 1, "1035i", 0, "SetHDTV 0"),
            List(20048, "0x3008", 0, "On", 1, "SetSyncOnG 1"),
            AutoAdjust(20049),
            List(20050, "0x2302", 2, "S-Video", 0, "SetPinPInput 0"),
            List(20051, "0x2301", 0, "Upper Left", 2, "SetPinPPosition 2"),
            List(20052, "0x2303", 0, "RGB", 1, "SetPinPAudio 1"),
            List(20053, "0x2300", 2, "Small", 1, "SetPinPSize 1")},
     {{"6 7", "111101111"}, {"14 15", "011111110"}, {"18 19 20", "010111110"}}},
    {3, 2, {List(20109, "0x2200", 8, "M-PAL", 1, "SetVideoFormat 1"),
            List(20110, "0x2206", 1, "On", 0, "SetVideoNR 0 1"),
            List(21054, "0x2207", 1, "TV", 2, "SetProgressive 2"),
            List(21055, "0x2208", 1, "On", 0, "SetBlack 0"),
            List(20111, "0x2205", 0, "1080i", 1, "SetHDTV 1"),
            AutoAdjust(20108)},
     {{"4 5", "111111"}, {"8", "101111"}, {"10 48 71", "100011"}, {"47", "100001"}}},
    {4, 3, {List(20222, "0x2204", 4, "REC601", 0, "SetColorSpace 0"),
            List(20223, "0x2017", 0, "Component", 1, "SetComponent 1"),
            List(20224, "0x2200", 2, "NTSC 4.43", 6, "SetVideoFormat 6"),
            List(20225, "0x3014", 0, "Off", 1, "SetFrameLock 1"),
            List(21060, "0x2020", 1, "Computer", 0, "SetDVI 0")},
     {{"9 22", "11101"}, {"11 12 13 23 24 25 26", "11110"}, {"21 29", "10110"}, {"27 28", "11100"}}},
    {4, 2, {List(20221, "0x2207", 1, "TV", 2, ""),
            List(20111, "0x220A", 2, "Still Image", 1, "Set3DYCS 1"),
            List(20220, "0x2206", 2, "Middle", 2, "SetVideoNR 2 1")},
     {{"9 22", "111"}}},
};
// clang-format on

void ExpectModel(const PageCase& page, int code, const std::string& digits) {
  SCOPED_TRACE("set " + std::to_string(page.dialogType) + " code " + std::to_string(code));
  std::vector<ReadRow> rows;
  for (const RowCase& row : page.rows) rows.push_back({row.control, row.read});
  OpenDialog open(Model(page.dialogType, code), page.tab + (code == 9 || code == 22 ? 1 : 0));
  open.Page().InitDisp();
  ExpectRows(rows, digits, open.Page(), open.Projector().Take());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (digits[row] == '1') ExpectRow(open, page.rows[row]);
    open.Projector().Accept(page.rows[row].refuse);
  }
}

TEST(LegacyInput, EachModelReadsAndSendsItsRows) {
  for (const PageCase& page : kPages) {
    for (const auto& [codes, digits] : page.models) {
      std::istringstream list(codes);
      for (int code = 0; list >> code;) ExpectModel(page, code, digits);
    }
  }
}

TEST(LegacyInput, ListsAskForTheirTexts) {
  const NumberedCatalog catalog;
  OpenDialog one(Model(1, 1), 4);
  EXPECT_EQ(one.Driver().Entries(21061), (QStringList{"3330", "95", "96"}));
  EXPECT_EQ(one.Driver().Entries(21077), (QStringList{"30", "31"}));
  EXPECT_EQ(one.Driver().Entries(kPowerUpInput), (QStringList{"3371", "RGB2", "MIU", "LAN"}));
  for (const int code : {16, 17}) {
    OpenDialog open(Model(1, code), 4);
    EXPECT_EQ(open.Driver().Entries(21077), (QStringList{"30", "338", "97"}));
    EXPECT_EQ(open.Driver().Entries(21060), (QStringList{"30", "370", "326"}));
  }
  OpenDialog two(Model(2, 6), 4);
  EXPECT_EQ(two.Driver().Entries(20053), (QStringList{"330", "95", "96"}));
}

TEST(LegacyInput, OnlyAVideoFormatWithoutAnEntryIsThePosition) {
  OpenDialog open(Model(1, 1), 4);
  const auto shown = [&](const char* key, int value, int list) {
    open.Projector().Answer(key, value);
    open.Page().InitDisp();
    return open.Driver().Selected(list);
  };
  int position = 0;
  for (const int value : {10, 4, 5, 9, 2, 8, 7}) {
    EXPECT_EQ(shown("Get 0x2200", value, 21076), position++);
  }
  EXPECT_EQ(shown("Get 0x2200", 3, 21076), 3);
  EXPECT_EQ(shown("Get 0x2200", 11, 21076), -1);
  EXPECT_EQ(shown("Get 0x2206", 0, 21053), -1);
}

TEST(LegacyInput, OnlySourcesUpToFiveCanBeThePowerUpInput) {
  MessageBoxes boxes;
  OpenDialog open(Model(1, 1), 4);
  for (const int position : {2, 3}) {
    open.Driver().Choose(kPowerUpInput, position);
    EXPECT_EQ(open.Projector().Take(), Strings{});
  }
  EXPECT_TRUE(boxes.Take().empty());
  open.Projector().Answer("Get 0x2018", 6);
  open.Page().InitDisp();
  EXPECT_EQ(open.Driver().Text(kPowerUpInput), "MIU") << "but it may be reported";
}

}  // namespace
