// Profiles as the fleet reads and edits them.

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonObject>

#include "fleet/JsonLines.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "tests/support/Programs.h"

namespace {

using testing::ElementsAre;

const QByteArray kFile = Contents(TEST_SOURCE_DIR "/fleet/Profiles.json");

TEST(Profile, HasWhatTheFleetKnowsOfAProjector) {
  const ProfileList list = ParseProfileList(kFile, "p.json");
  ASSERT_EQ(list.error, "");
  ASSERT_EQ(list.profiles.size(), 3U);
  const FleetProfile& a = list.profiles[0];
  const FleetProfile& b = list.profiles[1];
  EXPECT_EQ(FleetIdOf(a) + ' ' + FleetIdOf(b), "serial:1 name:B");
  EXPECT_EQ(a.snapshot + a.notes,
            "day\"[[[[[[[[[[[[[[[[[[ \U00010000\U0010FFFF\xED\x9F\xBF\uE000 \\");
  EXPECT_THAT(a.tags, ElementsAre("halls"));
  EXPECT_TRUE(a.ratedLampHours == 3000 && b.ratedLampHours == 2000);
  EXPECT_EQ(AddressOf(a), ProjectorAddress(PjLinkAddress{"192.0.2.1", 4352, "open"}));
  EXPECT_THAT(b.tags, ElementsAre("Building 3", "lab"));
  EXPECT_EQ(a.model, b.model) << "shared by those that are described alike";
  EXPECT_EQ(list.profiles[2].model->info.ModelCode, 31);
  EXPECT_EQ(AddressOf(ProjectorLink::Serial, b.connection),
            ProjectorAddress(SerialAddress{SerialDevice(1), SerialAddress::kDefaultBaud}));
  const CModelInfo2 net = ModelInfoOf(a), line = ModelInfoOf(b);
  EXPECT_TRUE(net.ConnectionKinds[0] == 1 && line.ConnectionKinds[0] == 0);
  EXPECT_TRUE(net.ConnectionNumbers[0] == 0 && line.ConnectionNumbers[0] == 1);
  EXPECT_EQ(std::string(net.ConnectionTexts1[0].data()) + net.ConnectionTexts2[0].data(),
            "192.0.2.1open");
  for (const char* wrong : {R"(["\n0041"])", R"(["\udc00\udc00"])", R"(["\ud83dxude00"])"}) {
    EXPECT_TRUE(ParseProfileList(wrong, "p.json").error.startsWith("p.json:1:3: ")) << wrong;
  }
  EXPECT_FALSE(JsonLines::FaultOf(R"([[],{"a":1},[1,2]])", {.bytes = 18, .values = 8}));
  EXPECT_EQ(JsonLines::FaultOf(R"([[],{"a":1},[1,2]])", {.values = 7})->offset, 14);
  EXPECT_EQ(JsonLines::FaultOf("{},[]" + QByteArray("{[").repeated(9), {})->offset, 21);
  FleetProfile none;
  EXPECT_EQ(ProfileChecker(kFile).Check({{"name", 1}}, none),
            "name: must be a text that is not empty");
}

// With a mark where an unknown key would be.
const QByteArray kMost = Contents(TEST_SOURCE_DIR "/fleet/Most.json");

TEST(Profile, HasAsMuchAsItMayAndNothingUnknown) {
  QString text = kMost, families;
  for (int i = 1; i < 1000; ++i) {
    families += QString(R"("%1": {"like": "%2"}, )").arg(i).arg(i > 15 ? 0 : i - 1);
  }
  text.replace("%1", families).replace("%2", QString("1,").repeated(31));
  text.replace("%3", QString(256, 'n')).replace("%4", QString("\"t\",").repeated(31));
  QStringList parts = text.split('%');
  ASSERT_EQ(parts.size(), 10);
  const ProfileList list = ParseProfileList(parts.join("\"x-mine\": 0,").toUtf8(), "p.json");
  ASSERT_EQ(list.error, "");
  EXPECT_EQ(list.profiles[0].snapshot, "b");
  EXPECT_EQ(NameText(list.profiles[0].model->info.MySourceList.names[0]), "DVI");
  for (qsizetype i = 1; i < parts.size(); ++i) {
    QStringList wrong = parts;
    wrong[i].prepend("\"mine\": 0,");
    EXPECT_THAT(ParseProfileList(wrong.join("").toUtf8(), "p.json").error.toStdString(),
                testing::HasSubstr("mine: unknown key"))
        << i;
  }
}

TEST(JsonEdit, KeepsTheFormattingOfEverythingElse) {
  using JsonEdit::InsertElement, JsonEdit::RemoveElement, JsonEdit::SetMember;
  const QJsonValue kNone(QJsonValue::Undefined);
  const std::pair<QByteArray, const char*> cases[] = {
      {SetMember(R"({ "a" :1 ,"b": 2})", {}, {"a", 5}), R"({ "a" :5 ,"b": 2})"},
      {SetMember("{\n  \"a\": 1\n}", {}, {"c", "x"}), "{\n  \"a\": 1,\n  \"c\": \"x\"\n}"},
      {SetMember("{\r\n\t\"a\": 1\r\n}", {}, {"c", true}),
       "{\r\n\t\"a\": 1,\r\n\t\"c\": true\r\n}"},
      {SetMember(R"({"a": 1})", {}, {"a", QJsonObject{{"b", 2}}}), R"({"a": {"b": 2}})"},
      {SetMember("{}", {}, {"c", QJsonArray{1, 2}}), R"({"c": [1,2]})"},
      {SetMember(R"({"a": 1})", {}, {"b", kNone}), R"({"a": 1})"},
      {SetMember(R"({"a": 1, "b": 2})", {}, {"a", kNone}), R"({"b": 2})"},
      {SetMember(R"({"a": 1,  "b": 2 })", {}, {"b", kNone}), R"({"a": 1 })"},
      {SetMember(R"({ "a": 1 })", {}, {"a", kNone}), R"({  })"},
      {SetMember("\xEF\xBB\xBF [0, {\"x\\\"}\": \"]\\\\\", \"\\u0061\": {\"b\": [{}]}}]",
                 {qsizetype{1}, "a"}, {"b", 1}),
       "\xEF\xBB\xBF [0, {\"x\\\"}\": \"]\\\\\", \"\\u0061\": {\"b\": 1}}]"},
      {SetMember("{\"a\": {\n \"z\": {\n  \"y\": 1, \"x\": 2 }}}", {},
                 {"a", QJsonObject{{"z", QJsonObject{{"x", 3}, {"y", 1}}}}}),
       "{\"a\": {\n \"z\": {\n  \"y\": 1, \"x\": 3 }}}"},
      {InsertElement("{\"a\": [1,\n 2]}", {"a"}, 0, "9"), "{\"a\": [1,\n 9,\n 2]}"},
      {InsertElement("{\"a\": [\n {}\n]}", {"a"}, 0, "9"), "{\"a\": [\n {},\n 9\n]}"},
      {RemoveElement(R"({"a": [1 , 2 , 3 ]})", {"a"}, 1), R"({"a": [1 , 3 ]})"},
      {RemoveElement(R"({"a": [1 , 2 , 3 ]})", {"a"}, 2), R"({"a": [1 , 2 ]})"},
      {RemoveElement(R"({"a": [{"b": [1, 2]}, 2]})", {"a"}, 0), R"({"a": [2]})"},
  };
  for (const auto& [edited, expected] : cases) EXPECT_EQ(edited.toStdString(), expected);
}

TEST(ProfileEdits, LeaveWhatAPersonWrote) {
  ProfileEdits untouched(kFile);
  EXPECT_EQ(untouched.Text(), kFile);

  QByteArray expected = kFile;
  expected.replace("\"192.0.2.1\"", "\"192.0.2.9\"").replace(", \"snapshot\": \"day\"", "");
  expected.replace(R"("port": 3}}})", R"("port": 3}}},
    {"name": "D", "like": "hall", "connection": {"serial": {"port": 1}}})");
  ProfileEdits edits(kFile);
  edits.Change(
      0, {{"connection", ConnectionValue({.address = "192.0.2.9", .port = 4352, .secret = "open"})},
          {"snapshot", QJsonValue::Undefined}});
  edits.Add(
      {{"name", "D"}, {"like", "hall"}, {"connection", ConnectionValue({.isNetwork = false})}});
  EXPECT_EQ(edits.Text().toStdString(), expected.toStdString());
  EXPECT_EQ(ParseProfileList(edits.Text(), "p.json").error, "");
  for (const std::size_t i : {3U, 0U, 1U}) edits.Remove(i);
  const ProfileList last = ParseProfileList(edits.Text(), "p.json");
  ASSERT_EQ(last.profiles.size(), 1U);
  EXPECT_EQ(last.profiles[0].name, "C");
}

TEST(ProfileEdits, FollowTheStyleOfTheFile) {
  ProfileEdits edits(R"({"projectors":[{"name": "A"}]})");
  edits.Add({{"name", "B"}, {"tags", QJsonValue::Undefined}});
  edits.Add({{"name", "C"}});
  EXPECT_EQ(edits.Text(), R"({"projectors":[{"name": "A"}, {"name": "B"}, {"name": "C"}]})");
  edits.Remove(0);
  EXPECT_EQ(edits.Text(), R"({"projectors":[{"name": "B"}, {"name": "C"}]})");
}

}  // namespace
