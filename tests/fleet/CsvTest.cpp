// Tables in and out.

#include <gmock/gmock.h>
#include <string>
#include <utility>

#include <QStringConverter>

#include "fleet/Csv.h"
#include "fleet/ProfileCsv.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"

namespace {

using testing::ElementsAre;

QByteArray Utf16(const char* utf8, bool bigEndian, bool marked) {
  using Flag = QStringConverter::Flag;
  QStringEncoder encoder(bigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf16LE,
                         marked ? Flag::WriteBom : Flag::Default);
  return encoder(QString::fromUtf8(utf8));
}

// "header | line: cell, cell | … ! line: reason"
std::string Described(const CsvTable& table) {
  QString text = table.header.join('/');
  for (const CsvRow& row : table.rows) {
    text += QString(" | %1: %2").arg(row.line).arg(row.cells.join('/'));
  }
  for (const CsvFault& fault : table.faults) {
    text += QString(" ! %1: %2").arg(fault.line).arg(fault.reason);
  }
  return text.replace('\n', '~').toStdString();
}

using Case = std::pair<QByteArray, const char*>;

TEST(Csv, ReadsWhatSpreadsheetsExport) {
  const Case cases[] = {
      {"name,address\nA,B\n", "name/address | 2: A/B"},
      {"\xEF\xBB\xBFname;address\r\nA,x;B\r\n\r\n;\r\nC;D", "name/address | 2: A,x/B | 5: C/D"},
      {"name\taddress\rA; x\tB\r", "name/address | 2: A; x/B"},
      {"sep=|\nname|x\nA;,|B", "name/x | 3: A;,/B"},
      {"\n\nname , \"x;y;z\"\n \"A \"\"b\"\"\" , B \n", "name/x;y;z | 4: A \"b\"/B"},
      {"name,x\n\"two\r\nlines\",B\nC;;;;,D", "name/x | 2: two~lines/B | 4: C;;;;/D"},
      {"name,x\nA\nB,C,\nD,E,F\nG,'=1\n",
       "name/x | 2: A/ | 3: B/C | 5: G/=1 ! 4: 3 cells, but the header has 2"},
      {"name,x\n\"A\" b,C\nD,E\nF,\"G\nH,I",
       "name/x | 3: D/E | 5: H/I ! 2: a text goes on behind its closing quotation mark ! 4: a "
       "quotation mark is not closed"},
      {Utf16("name;ü\nÄ;B", false, true), "name/ü | 2: Ä/B"},
      {Utf16("name;ü\nÄ;B", true, false), "name/ü | 2: Ä/B"},
      {Utf16("name;ü\nÄ;B", false, false), "name/ü | 2: Ä/B"},
      {Utf16("ab", false, false), "ab"},
      {"name,\xFC\n\xC4 "
       "\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8d\x8e\x8f\x90\x91\x92\x93\x94\x95"
       "\x96\x97\x98\x99\x9a\x9b\x9c\x9d\x9e\x9f\xa0-,B",
       "name/ü | 2: Ä €�‚ƒ„…†‡ˆ‰Š‹Œ�Ž��‘’“”•–—˜™š›œ�žŸ -/B"},
      {"", " ! 1: there is no header"},
      {"\"name\nA", " ! 1: a quotation mark is not closed"},
      {"sep=", "sep="},
      {"name,x\rA, \r'B,\"C\"", "name/x | 2: A/ | 3: 'B/C"},
      {"name\n\"A\" ", "name | 2: A"},
      {"name\nA\n ", "name | 2: A"},
      {"name\n" + QByteArray(255, ','), "name"},
      {"name\n" + QByteArray(256, ','), "name ! 2: more than 256 cells"},
      {QByteArray((64 << 20) + 1, ' '), " ! 1: more than 67108864 bytes"},
  };
  for (const auto& [bytes, expected] : cases) {
    EXPECT_EQ(Described(ParseCsv(bytes)), expected) << bytes.left(80).toStdString();
  }
  const CsvTable longest = ParseCsv("name" + QByteArray("\nA").repeated(100'001));
  EXPECT_EQ(longest.rows.size(), 100'000U);
  EXPECT_EQ(Described({{}, {}, longest.faults}), " ! 100002: more than 100000 rows");
}

TEST(Csv, IsReadAsItWasWritten) {
  const std::vector<QStringList> rows{
      {"name", "x"}, {"A, b;", "\"c\"\nd"}, {"=SUM(A1)", "'-x"}, {" e ", "ü"}};
  const QByteArray written = WriteCsv(rows);
  EXPECT_TRUE(written.contains("'=SUM(A1)"));
  const CsvTable table = ParseCsv(written);
  ASSERT_EQ(table.rows.size(), 3U) << Described(table);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(table.rows[i].cells, rows[i + 1]);
}

constexpr char kFile[] = R"({
  "families": {"hall": {"model": "M 30", "dialogType": 5, "modelCode": 30}},
  "projectors": [
    {"name": "A", "like": "hall", "identity": "mac:00:00:5e:00:53:01", "x-mine": 1, "link": "pjlink",
     "connection": {"network": {"address": "192.0.2.1", "port": 4352, "secret": "open"}}},
    {"name": "B", "like": "hall", "connection": {"serial": {"port": 2}}}
  ]
})";

TEST(ProfileCsv, TakesTheRowsThatAreRight) {
  const CsvImport import = ImportCsv(
      kFile,
      "Name;IP Address;Port;Protocol;Model;MAC address;Building;Tags;Lamp life;Purchased;Notes;"
      "Snapshot\r\n"
      "A2;192.0.2.9;;;;00-00-5E-00-53-01;3;lab | old;2000;2019;by\tme;day\r\n"
      "C;192.0.2.2;7240;wire;M 30;;;;;\r\n"
      "D;pjlink://d.example:4400;;;X1;;;;;\r\n"
      "E;192.0.2;;;;;;;;\r\n"
      "F;192.0.2.4;;radio;;;;;;\r\n"
      "A2;192.0.2.5;;;;00:00:5E:00:53:77;;;;\r\n"
      ";192.0.2.6;;;;;;;;\r\n"
      "G;;;;;;;;;\r\n"
      "H;192.0.2.7;;;;;;;many;\r\n"
      "B;;;;;;;spare;;\r\n"
      "C;192.0.2.3;7240;wire;;;;;;\r\n"
      "I;;;;;;;;;;;;x\r\n");
  EXPECT_EQ(import.error, "");
  EXPECT_EQ(import.added, 2U);
  EXPECT_EQ(import.changed, 3U);
  EXPECT_THAT(import.unused, ElementsAre("Purchased"));
  EXPECT_EQ(Described({.header = {}, .rows = {}, .faults = import.faults}),
            " ! 5: no address '192.0.2'"
            " ! 6: \"radio\" is not a kind of link"
            " ! 7: \"A2\" is the name of another projector, with the identity mac:00:00:5e:00:53:01"
            " ! 8: \"name\" is missing"
            " ! 9: \"connection\" is missing"
            " ! 10: \"many\" is not a number of hours"
            " ! 13: 13 cells, but the header has 12");
  const ProfileList list = ParseProfileList(import.text, "p.json");
  ASSERT_EQ(list.error, "");
  ASSERT_EQ(list.profiles.size(), 4U);
  const FleetProfile& a = list.profiles[0];
  EXPECT_EQ(AddressOf(a), ProjectorAddress(PjLinkAddress{"192.0.2.9", 4352, "open"}));
  EXPECT_THAT(a.tags, ElementsAre("3", "lab", "old"));
  EXPECT_EQ(a.ratedLampHours, 2000);
  EXPECT_EQ(a.name + '/' + a.notes + '/' + a.snapshot, "A2/by me/day");
  EXPECT_TRUE(import.text.contains("\"x-mine\": 1, \"link\": \"pjlink\",\n"))
      << "as it was written";
  EXPECT_THAT(list.profiles[1].tags, ElementsAre("spare"));
  EXPECT_EQ(AddressOf(list.profiles[2]), ProjectorAddress(TcpAddress{"192.0.2.3", 7240}));
  EXPECT_EQ(list.profiles[2].model, a.model);
  EXPECT_EQ(AddressOf(list.profiles[3]), ProjectorAddress(PjLinkAddress{"d.example", 4400, ""}));
  EXPECT_EQ(list.profiles[3].model->info.ModelName, "X1");

  const CsvImport nothing = ImportCsv(kFile, "title,x\nA,B\n");
  EXPECT_EQ(nothing.error, "the header has no column \"name\"");
  EXPECT_EQ(nothing.text, kFile);
}

TEST(ProfileCsv, UnderstandsWhatListsContain) {
  // The connection and the identity, or what is wrong.
  const Case rows[] = {
      {"N,192.0.2.9,23,TCP,,,s1,", "192.0.2.9:23 serial:s1"},
      {"N,2001:db8::9,23,tcp,,,,i1", "2001:db8::9:23 i1"},
      {"N,[2001:db8::9],23,wire,,,,", "2001:db8::9:23 id:"},
      {"N,pjlink://h.example:9,23,,,,,", "h.example:9 id:"},
      {"N,/dev/ttyS1,,,,,,", "/dev/ttyS1 id:"},
      {"N,192.0.2.9,,simulated,,,,", "192.0.2.9:4352 id:"},
      {"N,192.0.2.9,,,,02:00,,", "\"02:00\" is not a MAC address"},
      {"A,,,,,,,i2",
       "\"A\" is the name of another projector, with the identity mac:00:00:5e:00:53:01"},
      {"B,,,,,00:00:5e:00:53:01,,", "\"B\" is the name of another projector"},
      {"B,/dev/ttyS1,,,,,,i3", "/dev/ttyS1 i3"},
      {"A,/dev/ttyS1,,,,,,", "/dev/ttyS1 mac:00:00:5e:00:53:01"},
      {"A,192.0.2.9,,pjlink,new,,,", "192.0.2.9:4352 mac:00:00:5e:00:53:01"},
  };
  for (const auto& [text, expected] : rows) {
    const CsvImport import = ImportCsv(kFile, "name,ip,port,link,password,mac,serial,id,\n" + text);
    std::string told;
    if (import.faults.empty()) {
      const auto profiles = ParseProfileList(import.text, "p.json").profiles;
      const auto& one =
          *std::ranges::find(profiles, text.left(1).toStdString(), &FleetProfile::name);
      told = ConnectionText(one.connection).toStdString() + ' ' + one.identity;
    } else {
      told = import.faults[0].reason.toStdString();
      EXPECT_EQ(import.text, kFile);
    }
    EXPECT_THAT(told, testing::StartsWith(expected)) << text.data();
  }
  EXPECT_EQ(ImportCsv(kFile, "").error, "there is no header");
}

TEST(ProfileCsv, WhatGoesOutComesInAgain) {
  const ProfileList before = ParseProfileList(kFile, "p.json");
  const QByteArray csv = ExportCsv(before.profiles);
  EXPECT_FALSE(csv.contains("open")) << "a password";
  FleetProfile line = before.profiles[1];
  line.connection.address = "/dev/ttyX";
  line.link = ProjectorLink::Serial;
  EXPECT_TRUE(ExportCsv({line}).contains("B,/dev/ttyX,,serial,"));
  const CsvImport same = ImportCsv(kFile, csv);
  EXPECT_EQ(same.changed, 2U);
  const ProfileList after = ParseProfileList(same.text, "p.json");
  ASSERT_EQ(after.error, "");
  EXPECT_EQ(AddressOf(after.profiles[0]), AddressOf(before.profiles[0]));

  const CsvImport fresh = ImportCsv(ProfileEdits::kNoProfiles, csv);
  EXPECT_EQ(fresh.added, 2U) << (fresh.faults.empty() ? "" : qPrintable(fresh.faults[0].reason));
  const ProfileList added = ParseProfileList(fresh.text, "p.json");
  EXPECT_EQ(added.profiles[0].identity, "mac:00:00:5e:00:53:01");
  EXPECT_TRUE(added.profiles[1].identity.starts_with("id:")) << "made up";
  EXPECT_EQ(ImportCsv(fresh.text, csv).text, fresh.text) << "and kept";
}

}  // namespace
