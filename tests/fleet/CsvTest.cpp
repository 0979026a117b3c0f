// Tables in and out.

#include <gmock/gmock.h>
#include <utility>

#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringConverter>

#include "fleet/Csv.h"
#include "fleet/ProfileCsv.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "tests/support/Programs.h"
#include "tests/support/Record.h"

namespace {

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

TEST(Csv, ReadsWhatSpreadsheetsExport) {
  ExpectAnswers(TEST_SOURCE_DIR "/fleet/Tables.txt", [](const std::string& question) {
    const QByteArray text = QByteArray::fromStdString(question).replace('"', "\\\"");
    const auto table = QJsonDocument::fromJson("[\"" + text + "\"]")[0].toString();
    return Described(ParseCsv(table.toUtf8()));
  });
  const std::pair<QByteArray, const char*> cases[] = {
      {Utf16("name;ü\nÄ;B", false, true), "name/ü | 2: Ä/B"},
      {Utf16("name;ü\nÄ;B", true, false), "name/ü | 2: Ä/B"},
      {Utf16("name;ü\nÄ;B", false, false), "name/ü | 2: Ä/B"},
      {Utf16("ab", false, false), "ab"},
      {"name,\xFC\n\xC4 "
       "\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8d\x8e\x8f\x90\x91\x92\x93\x94\x95"
       "\x96\x97\x98\x99\x9a\x9b\x9c\x9d\x9e\x9f\xa0-,B",
       "name/ü | 2: Ä €�‚ƒ„…†‡ˆ‰Š‹Œ�Ž��‘’“”•–—˜™š›œ�žŸ\u00A0-/B"},
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

const QByteArray kFile = Contents(TEST_SOURCE_DIR "/fleet/Imported.json");

/// What becomes of the file of profiles: what is told, and its lines that are new.
QString Imported(const QByteArray& csv) {
  const CsvImport import = ImportCsv(kFile, csv);
  EXPECT_EQ(ParseProfileList(import.text, "p.json").error.toStdString(), "");
  QString text = QString("  %1 added, %2 changed").arg(import.added).arg(import.changed);
  if (!import.unused.isEmpty()) text += ", unused: " + import.unused.join(", ");
  for (const CsvFault& fault : import.faults) {
    text += QString("\n  ! %1: %2").arg(fault.line).arg(fault.reason);
  }
  const QList<QByteArray> before = QByteArray(kFile).split('\n');
  for (const QByteArray& line : import.text.split('\n')) {
    if (!before.contains(line)) text += "\n  " + line.trimmed();
  }
  return text.replace(QRegularExpression("\"id:[-0-9a-f]+"), "\"id:…") + '\n';
}

// Each row of the record is taken into the file by itself; then many rows.
TEST(ProfileCsv, TakesRowsAsRecorded) {
  const std::string file = TEST_SOURCE_DIR "/fleet/Imports.txt";
  QString now;
  for (const QString& row : QString(Contents(file.c_str())).split('\n', Qt::SkipEmptyParts)) {
    if (row.startsWith(' ') || row == "many rows") continue;
    now += row + '\n' + Imported("name,ip,port,link,password,mac,serial,id,\n" + row.toUtf8());
  }
  now += "many rows\n" + Imported(Contents(TEST_SOURCE_DIR "/fleet/Import.csv"));
  ExpectRecord(file, now.toStdString());

  const CsvImport nothing = ImportCsv(kFile, "title,x\nA,B\n");
  EXPECT_EQ(nothing.error, "the header has no column \"name\"");
  EXPECT_EQ(nothing.text, kFile);
  EXPECT_EQ(ImportCsv(kFile, "").error, "there is no header");
}

TEST(ProfileCsv, WhatGoesOutComesInAgain) {
  const ProfileList before = ParseProfileList(kFile, "p.json");
  const QByteArray csv = ExportCsv(before.profiles);
  EXPECT_FALSE(csv.contains("open")) << "a password";
  const CsvImport same = ImportCsv(kFile, csv);
  EXPECT_EQ(same.changed, 5U);
  EXPECT_EQ(same.text, kFile);
  EXPECT_EQ(ImportCsv(kFile, "name,snapshot,like\nB,night,\nB,day,\nB,night,hall").text,
            ImportCsv(kFile, "name,snapshot,like\nB,night,hall").text);

  const CsvImport fresh = ImportCsv(ProfileEdits::kNoProfiles, csv);
  EXPECT_EQ(fresh.added, 5U) << (fresh.faults.empty() ? "" : qPrintable(fresh.faults[0].reason));
  const ProfileList added = ParseProfileList(fresh.text, "p.json");
  EXPECT_EQ(added.profiles[0].identity, "mac:00:00:5e:00:53:01");
  EXPECT_TRUE(added.profiles.back().identity.starts_with("id:")) << "made up";
  EXPECT_EQ(ImportCsv(fresh.text, csv).text, fresh.text) << "and kept";
}

}  // namespace
