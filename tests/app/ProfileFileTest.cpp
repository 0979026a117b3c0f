#include <gmock/gmock.h>
#include <set>
#include <string>
#include <sys/stat.h>
#include <utility>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/ProfileFile.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kShippedProfiles = TEST_CATALOG_DIR "/projectors.json";

struct WrongFile {
  const char* name;
  const char* text;
  const char* error;  // how the message begins
};

void PrintTo(const WrongFile& file, std::ostream* out) { *out << file.name; }

class WrongProfiles : public testing::TestWithParam<WrongFile> {};

TEST_P(WrongProfiles, AreReportedWithTheirPlace) {
  const ProfileFileContents contents = ParseProfiles(GetParam().text, "p.json");
  EXPECT_THAT(contents.error.toStdString(), StartsWith(GetParam().error));
  EXPECT_FALSE(contents.error.contains('\n'));
  EXPECT_TRUE(contents.projectors.empty());
}

constexpr WrongFile kWrongFiles[] = {
    {"Empty", "", "p.json:1:1: "},
    {"Syntax", "{\n  \"projectors\": [\n    {\"é\": 1,, }\n  ]\n}", "p.json:3:14: "},
    {"Torn", "{\n\"projectors\": [\n", "p.json:3:1: "},
    {"NoObject", "[]", "p.json:1: the file must hold an object"},
    {"NoProjectors", "{}", "p.json:1: \"projectors\" is missing"},
    {"EmptyList", "{\n\"projectors\": []}", "p.json:2: projectors: there is no projector"},
    {"MissingKey", "{\"projectors\": [\n{\"name\": \"A\"}]}",
     "p.json:2: projectors[0]: \"model\" is missing"},
    {"UnknownKey", "{\"projectors\": [\n{\n\"brightnes\": 1}]}",
     "p.json:3: projectors[0].brightnes: unknown key"},
    {"KeyTwice", "{\"projectors\": [{\n\"name\": \"A\",\n\"name\": \"B\"}]}",
     "p.json:3: projectors[0].name: stands here twice"},
    {"EmptyName", "{\"projectors\": [{\"name\": \"\"}]}", "p.json:1: projectors[0].name: must be"},
    {"FractionalCode", "{\"projectors\": [{\"modelCode\": 1.5}]}",
     "p.json:1: projectors[0].modelCode: must be a whole number"},
    {"HugeCode", "{\"projectors\": [{\"modelCode\": 2147483648}]}",
     "p.json:1: projectors[0].modelCode: is 2147483648;"},
    {"LongList",
     "{\"projectors\": [{\"gamma\": [0,1,2,3,4,5,6,7,8,9,0,1,2,3,4,5,6,7,8,9,0,1,2,3,4,5,6,7,8,9,"
     "0,1,2]}]}",
     "p.json:1: projectors[0].gamma: has 33 entries; at most 32"},
    {"LongEntryName",
     "{\"projectors\": [{\"whisper\": [\"Normal\",\n"
     "\"0123456789012345678901234567890123456789012345678901234567890123é\"]}]}",
     "p.json:2: projectors[0].whisper[1]: is longer than 64 bytes"},
    {"ListEntryWithoutName", "{\"projectors\": [{\"myButtons\": [{\n\"value\": 1}]}]}",
     "p.json:1: projectors[0].myButtons[0].name: must be a text"},
    {"SourceWithoutValue", "{\"projectors\": [{\"mySources\": [{\"name\": \"A\"}]}]}",
     "p.json:1: projectors[0].mySources[0].value: must be a whole number"},
    {"RangeName", "{\"projectors\": [{\"ranges\": {\n\"loudness\": [0, 1]}}]}",
     "p.json:2: projectors[0].ranges.loudness: is neither"},
    {"RangeNumber", "{\"projectors\": [{\"ranges\": {\"34\": [0, 1]}}]}",
     "p.json:1: projectors[0].ranges.34: is neither the name of a range nor a number 0 to 33"},
    {"RangeByNumberThatHasAName", "{\"projectors\": [{\"ranges\": {\"17\": [0, 1]}}]}",
     "p.json:1: projectors[0].ranges.17: must be given by its name \"brightness\""},
    {"RangeEnds", "{\"projectors\": [{}, {\"ranges\": {\"brightness\":\n[10]}}]}",
     "p.json:1: projectors[0]: \"name\" is missing"},
    {"RangeTurned", "{\"projectors\": [{\"ranges\": {\"brightness\":\n[160, 96]}}]}",
     "p.json:2: projectors[0].ranges.brightness: has a minimum above its maximum"},
    {"RangeEndNoNumber", "{\"projectors\": [{\"ranges\": {\"brightness\": [0,\n\"1\"]}}]}",
     "p.json:2: projectors[0].ranges.brightness[1]: must be a whole number"},
    {"BothConnections", "{\"projectors\": [{\"connection\": {\"network\": {}, \"serial\": {}}}]}",
     "p.json:1: projectors[0].connection: must have either"},
    {"PortTooHigh",
     "{\"projectors\": [{\"connection\": {\"network\": {\"address\": \"a\", \"port\": 65536}}}]}",
     "p.json:1: projectors[0].connection.network.port: is 65536; it must be 1 to 65535"},
    {"SerialPortZero", "{\"projectors\": [{\"connection\": {\"serial\": {\"port\": 0}}}]}",
     "p.json:1: projectors[0].connection.serial.port: is 0;"},
    {"SerialPortTooHigh", "{\"projectors\": [{\"connection\": {\"serial\": {\"port\": 257}}}]}",
     "p.json:1: projectors[0].connection.serial.port: is 257; it must be 1 to 256"},
    {"BaudTooHigh",
     "{\"projectors\": [{\"connection\": {\"serial\": {\"port\": 1, \"baud\": 4000001}}}]}",
     "p.json:1: projectors[0].connection.serial.baud: is 4000001;"},
    {"RangeEndTooHigh", "{\"projectors\": [{\"ranges\": {\"bass\": [0, 65536]}}]}",
     "p.json:1: projectors[0].ranges.bass[1]: is 65536; it must be -32768 to 65535"},
    {"RangeEndTooLow", "{\"projectors\": [{\"ranges\": {\"bass\": [-32769, 0]}}]}",
     "p.json:1: projectors[0].ranges.bass[0]: is -32769;"},
    {"RangeNumberWrittenOddly", "{\"projectors\": [{\"ranges\": {\"022\": [0, 1]}}]}",
     "p.json:1: projectors[0].ranges.022: is neither"},
    {"DeviceValueTooHigh", "{\"projectors\": [{\"gamma\": [1, 65536]}]}",
     "p.json:1: projectors[0].gamma[1]: is 65536; it must be 0 to 65535"},
    {"NegativeNamedValue", "{\"projectors\": [{\"aspect\": [{\"value\": -1, \"name\": \"A\"}]}]}",
     "p.json:1: projectors[0].aspect[0].value: is -1;"},
    {"SourceTooHigh", "{\"projectors\": [{\"mySources\": [{\"name\": \"A\", \"value\": 65536}]}]}",
     "p.json:1: projectors[0].mySources[0].value: is 65536;"},
    {"EscapedNul", "{\n\"a\\u0000b\": 1}", "p.json:2:3: control character in a text"},
    {"EscapedLineBreak", "{\"a\\nb\": 1}", "p.json:1:4: control character in a text"},
    {"RawControlCharacter", "{\"a\x1b\": 1}", "p.json:1:4: control character in a text"},
    {"HighSurrogateAlone", "[\"\\ud800\\u0041\"]", "p.json:1:3: half a surrogate pair in a text"},
    {"LowSurrogateAlone", "[\"\\ud83d\\ude00\\ude00\"]",
     "p.json:1:15: half a surrogate pair in a text"},
    {"PlaceholderAsFamily", "{\"families\": {\n\"%1\": {\"gamma\": [\n-1]}}}",
     "p.json:3: families.%1.gamma[0]: is -1;"},
    {"LackOfNothing", "{\"projectors\": [{\"lacks\": [\"Active iris\", \"Coffee\"]}]}",
     "p.json:1: projectors[0].lacks[1]: there is no setting \"Coffee\""},
    {"UnknownFamily", "{\"projectors\": [{\"like\": \"x\"}]}",
     "p.json:1: projectors[0].like: there is no family \"x\""},
    {"FamiliesInACircle",
     "{\"families\": {\n\"a\": {\"like\": \"b\"},\n\"b\": {\"like\": \"a\"}},\n\"projectors\": []}",
     "p.json:3: families.b.like: makes \"a\" like itself"},
    {"WrongFamilyThatNobodyIsLike",
     "{\"families\": {\"a\": {\n\"dialogType\": \"5\"}}, \"projectors\": []}",
     "p.json:2: families.a.dialogType: must be a whole number"},
};

INSTANTIATE_TEST_SUITE_P(Table, WrongProfiles, testing::ValuesIn(kWrongFiles),
                         [](const auto& test) { return std::string(test.param.name); });

std::string Repeat(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

// What is too much is refused before it takes time or memory.
TEST(ProfileFile, TooMuchIsRefusedAtOnce) {
  std::string families = "{\"families\": {\"f99\": {}";
  for (int i = 1; i <= 17; ++i) {
    families +=
        ", \"f" + std::to_string(99 - i) + "\": {\"like\": \"f" + std::to_string(100 - i) + "\"}";
  }
  struct Excess {
    std::string text;
    const char* error;
  };
  const Excess tooMuch[] = {
      {Repeat("{\"a\":", 1000), "p.json:1:81: nested more than 16 deep"},
      {Repeat("{\"a\":", 900'000), "p.json:1:1: more than 4194304 bytes"},
      {"[" + Repeat("1,", 25'000'000), "p.json:1:1: more than 4194304 bytes"},
      {"[\n" + Repeat("1,", 200'000), "p.json:2:199998: more than 100000 values"},
      {"[\"" + Repeat("a", 256) + "\"]", "p.json:1: the file must hold an object"},
      {"[\"" + Repeat("a", 257) + "\"]", "p.json:1:2: text of more than 256 bytes"},
      {"{\"projectors\": [" + Repeat("0,", 1000) + "0]}",
       "p.json:1: projectors: has 1001 entries; at most 1000"},
      {families + "}}", "p.json:1: families.f98.like: leads through more than 16 families"},
  };
  for (const Excess& excess : tooMuch) {
    QElapsedTimer timer;
    timer.start();
    const auto contents = ParseProfiles(QByteArray::fromStdString(excess.text), "p.json");
    EXPECT_THAT(contents.error.toStdString(), StartsWith(excess.error));
    EXPECT_LT(timer.elapsed(), 1000) << excess.error;
  }
}

TEST(ProfileFile, OnlyRegularFilesAreOpened) {
  const QTemporaryDir folder;
  const QString pipe = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
  for (const QString& name : {pipe, QStringLiteral("/dev/zero"), folder.path()}) {
    EXPECT_EQ(ReadProfileFile(name).error,
              QStringLiteral("cannot read profiles %1: not a regular file").arg(name));
  }
}

TEST(ProfileFile, NameTwiceNamesBothEntries) {
  const char* entry = R"({"name": "A", "model": "M", "dialogType": 1, "modelCode": 1,
                          "connection": {"serial": {"port": 1}}})";
  const auto contents =
      ParseProfiles(QByteArray("{\"projectors\": [") + entry + "," + entry + "]}", "p.json");
  EXPECT_THAT(contents.error.toStdString(),
              HasSubstr("projectors[1].name: \"A\" is the name of projectors[0] too"));
}

TEST(ProfileFile, EntryGoesOverItsFamilies) {
  const ProfileFileContents contents = ParseProfiles(R"({
    "families": {
      "base": {"dialogType": 5, "gamma": [1, 2, 3], "whisper": ["Normal", "Bright"],
               "ranges": {"brightness": [90, 160], "contrast": [80, 170], "tint": [1, 2]},
               "lacks": ["Active iris"]},
      "derived": {"like": "base", "gamma": [{"value": 16, "name": "Warm"}],
                  "ranges": {"contrast": [-5, 5], "22": [3, 4]}}
    },
    "projectors": [
      {"name": "A", "model": "M", "like": "derived", "modelCode": 30,
       "mySources": [{"name": "Video", "value": 1, "second": 7}],
       "ranges": {"tint": null},
       "connection": {"network": {"address": "192.0.2.1", "port": 23}}},
      {"name": "B", "like": "base", "model": "M", "modelCode": 31, "lacks": [],
       "connection": {"serial": {"port": 2, "baud": 9600}}}
    ]})",
                                                     "p.json");
  ASSERT_EQ(contents.error, "");
  ASSERT_EQ(contents.projectors.size(), 2U);

  const CModelInfo2& a = contents.projectors[0].Model;
  EXPECT_EQ(a.DialogType, 5);
  EXPECT_EQ(a.ModelCode, 30);
  EXPECT_EQ(a.GammaList.count, 1);
  EXPECT_EQ(a.GammaList.values[0], 16);
  EXPECT_EQ(NameText(a.GammaList.names[0]), "Warm");
  EXPECT_EQ(a.WhisperList.count, 2);
  EXPECT_EQ(a.WhisperList.values[1], 1);
  EXPECT_EQ(NameText(a.WhisperList.names[1]), "Bright");
  EXPECT_EQ(a.MySourceList.secondValues[0], 7);
  EXPECT_EQ(a.RangeText(RangeIndex::Brightness), "90,160");
  EXPECT_EQ(a.RangeText(RangeIndex::Contrast), "-5,5");
  EXPECT_EQ(a.RangeText(RangeIndex::Tint), "");
  EXPECT_EQ(a.RangeText(22), "3,4");
  EXPECT_EQ(a.ConnectionKinds[0], 1);
  EXPECT_EQ(ConnectionText(a), "192.0.2.1:23");
  EXPECT_EQ(contents.projectors[0].Lacks, std::vector{SettingId::ActiveIris});

  const ProjectorProfile& b = contents.projectors[1];
  EXPECT_EQ(b.Model.GammaList.count, 3);
  EXPECT_EQ(b.Model.ConnectionNumbers[0], 1);
  EXPECT_EQ(b.Model.ConnectionParameters[0], 9600);
  EXPECT_EQ(ConnectionText(b.Model), "serial port 2");
  EXPECT_TRUE(b.Lacks.empty());
}

TEST(ProfileFile, ShippedFileHasEveryModelThatPagesTellApart) {
  const ProfileFileContents contents = ReadProfileFile(kShippedProfiles);
  ASSERT_EQ(contents.error, "");
  std::set<std::pair<int, int>> models;
  for (const ProjectorProfile& profile : contents.projectors) {
    models.emplace(profile.Model.DialogType, profile.Model.ModelCode);
  }
  const auto expectCodes = [&models](int dialogType, std::initializer_list<int> codes) {
    for (const int code : codes) {
      EXPECT_TRUE(models.contains({dialogType, code})) << dialogType << '-' << code;
    }
  };
  expectCodes(1, {1, 2, 3, 16, 17});
  expectCodes(2, {6, 7, 14, 15, 18, 19, 20});
  expectCodes(3, {4, 5, 8, 10, 47, 48, 71});
  expectCodes(4, {9, 11, 12, 13, 21, 22, 23, 24, 25, 26, 27, 28, 29});
  expectCodes(5, {30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42,
                  43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54});
}

}  // namespace
