// Reads profile files, and edits them without disturbing their formatting.

#include <ctime>
#include <gmock/gmock.h>
#include <set>
#include <sys/stat.h>

#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "app/desktop/profiles/ProfileDocument.h"
#include "app/profiles/WrittenMark.h"
#include "fleet/ProfileFile.h"
#include "fleet/ProfileLock.h"
#include "tests/support/Models.h"
#include "tests/support/Programs.h"
#include "tests/support/Record.h"

namespace {

// A case of the record is a file, or the members of its only projector, and then what is reported.
// There, ␡ and ␍ stand for the control characters.
TEST(ProfileFile, ErrorsAreReportedAsRecorded) {
  const char* const record = TEST_SOURCE_DIR "/app/WrongProfiles.txt";
  const QRegularExpression wrong("((?:.*\n)*?)→ .*\n\n?");
  QByteArray now;
  for (auto found = wrong.globalMatch(QString::fromUtf8(Contents(record))); found.hasNext();) {
    const QByteArray text = found.next().captured(1).toUtf8();
    QByteArray file = text.left(text.size() - 1);
    file.replace("␡", "\x7f").replace("␍", "\r");
    const bool isFile = file.isEmpty() || file[0] == '{' || file[0] == '[';
    const ProfileList contents =
        ParseProfileList(isFile ? file : "{\"projectors\": [{" + file + "}]}", "p.json");
    EXPECT_TRUE(contents.profiles.empty()) << file.data();
    now += text + "→ " + contents.error.toUtf8() + "\n\n";
  }
  ExpectRecord(record, now.chopped(1).toStdString());
}

TEST(ProfileFile, ARangeWithANameIsGivenByIt) {
  QString names;
  for (int i = 0; i < 34; ++i) {
    const QString text = QStringLiteral(R"({"projectors": [{"ranges": {"%1": [0, 1]}}]})").arg(i);
    names += ParseProfileList(text.toUtf8(), "p.json").error.section("its name ", 1) + '\n';
  }
  ExpectRecord(TEST_SOURCE_DIR "/app/RangeNames.txt", names.remove('"').toStdString());
}

// Oversized files must be refused before they cost time or memory.
TEST(ProfileFile, OversizedFilesAreRefusedAtOnce) {
  const auto chain = [](int first, int last, int step) {
    QString text = QString("{\"families\": {\"%1\": {}").arg(step > 0 ? last + step : first + step);
    for (int i = first; i <= last; ++i) {
      text += QString(", \"%1\": {\"like\": \"%2\"}").arg(i).arg(i + step);
    }
    return (text + "}}").toUtf8();
  };
  QByteArray many = "{\"families\": {\"0\": {}";
  for (int i = 1; i <= 1000; ++i) many += ", \"" + QByteArray::number(i) + "\": {}";
  const std::pair<QByteArray, const char*> tooMuch[] = {
      {QByteArray("{\"a\":").repeated(1000), "p.json:1:81: nested more than 16 deep"},
      {"[" + QByteArray(67'108'864, ' '), "p.json:1:1: more than 67108864 bytes"},
      {"[\n" + QByteArray("1,").repeated(5'000'001), "p.json:2:9999998: more than 5000000 values"},
      {"[\"" + QByteArray(2048, 'a') + "\"]", "p.json:1: the file must hold an object"},
      {"[\"" + QByteArray(2049, 'a') + "\"]", "p.json:1:2: text of more than 2048 bytes"},
      {"{\"projectors\": [" + QByteArray("0,").repeated(100'000) + "0]}",
       "p.json:1: projectors: has 100001 entries; at most 100000"},
      {many + "}}", "p.json:1: families: has 1001 families; at most 1000"},
      {chain(101, 117, -1), "p.json:1: families.117.like: leads through more than 16 families"},
      {chain(100, 998, 1), "p.json:1: families.116.like: leads through more than 16 families"},
  };
  for (const auto& [text, error] : tooMuch) {
    const std::clock_t start = std::clock();
    const auto contents = ParseProfileList(text, "p.json");
    EXPECT_THAT(contents.error.toStdString(), testing::StartsWith(error));
    EXPECT_LT(std::clock() - start, 10 * CLOCKS_PER_SEC) << error;
  }
}

TEST(ProfileFile, OnlyRegularFilesAreOpened) {
  const QTemporaryDir folder;
  const QString pipe = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
  for (const QString& name : {pipe, QStringLiteral("/dev/zero"), folder.path()})
    EXPECT_TRUE(ReadProfileList(name).error.endsWith(name + ": not a regular file"));
  QFile large(folder.filePath("large"));
  ASSERT_TRUE(large.open(QFile::WriteOnly) && large.resize(1LL << 40));
  EXPECT_TRUE(ReadProfileList(large.fileName()).error.endsWith("more than 67108864 bytes"));
}

TEST(ProfileFile, EntryOverridesItsFamilies) {
  const ProfileList contents = ReadProfileList(TEST_SOURCE_DIR "/app/Families.json");
  ASSERT_EQ(contents.error, "");
  ASSERT_EQ(contents.profiles.size(), 2U);

  const CModelInfo2& a = contents.profiles[0].model->info;
  EXPECT_EQ(std::pair(a.DialogType, a.ModelCode), std::pair(5, 30));
  EXPECT_EQ(a.GammaList.count, 1);
  EXPECT_EQ(a.GammaList.values[0], 16);
  EXPECT_EQ(NameText(a.GammaList.names[0]), "Warm");
  EXPECT_EQ(a.WhisperList.values[1], 1);
  EXPECT_EQ(NameText(a.WhisperList.names[1]), "Bright");
  EXPECT_EQ(a.MySourceList.secondValues[0], 7);
  EXPECT_EQ(a.RangeText(RangeIndex::Brightness), "90,160");
  EXPECT_EQ(a.RangeText(RangeIndex::Contrast), "-5,5");
  EXPECT_EQ(a.RangeText(RangeIndex::Tint), "");
  EXPECT_EQ(a.RangeText(22), "3,4");
  EXPECT_EQ(ConnectionText(contents.profiles[0].connection), "192.0.2.1:23");
  EXPECT_EQ(ConnectionText({.address = "fe80::1%2", .port = 23}), "[fe80::1%2]:23");
  EXPECT_EQ(contents.profiles[0].model->lacks, std::vector{SettingId::ActiveIris});

  const FleetProfile& b = contents.profiles[1];
  EXPECT_EQ(b.model->info.GammaList.count, 3);
  EXPECT_EQ(ModelInfoOf(b).ConnectionParameters[0], 9600);
  EXPECT_EQ(ConnectionText(b.connection), "serial port 2");
  EXPECT_TRUE(b.model->lacks.empty());
}

TEST(ProfileFile, ShippedFileHasEveryModelWithPagesOfItsOwn) {
  const auto contents = ReadProfileList(TEST_CATALOG_DIR "/projectors.json");
  ASSERT_EQ(contents.error, "");
  using Models = std::set<std::pair<int, int>>;
  Models missing;
  for (const auto& [dialogType, codes] : ListedModels()) {
    for (const int code : codes) missing.emplace(dialogType, code);
  }
  for (const FleetProfile& profile : contents.profiles)
    missing.erase({profile.model->info.DialogType, profile.model->info.ModelCode});
  EXPECT_EQ(missing, (Models{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 29}, {5, 55}}));
}

const QJsonValue kNone(QJsonValue::Undefined);

struct ProfileDocumentFile : testing::Test {
  void SetUp() override {
    ASSERT_TRUE(QFile::copy(TEST_CATALOG_DIR "/projectors.json", name));
    ASSERT_EQ(document.Load(name), "");
  }

  const QTemporaryDir folder;
  const QString name = folder.filePath("p.json");
  ProfileDocument document;
};

TEST_F(ProfileDocumentFile, EachProjectorIsCopiedAndRemovedWithoutATrace) {
  const QByteArray before = Contents(name);
  const std::size_t count = document.Projectors().size();
  for (std::size_t i = 0; i < count; i += 7) {
    ASSERT_EQ(document.Duplicate(i, {{"name", "copy"}}), "");
    ASSERT_EQ(document.Projectors().size(), count + 1);
    EXPECT_EQ(document.Projectors()[i].model, document.Projectors()[i + 1].model);
    EXPECT_NE(Contents(name), before);
    ASSERT_EQ(document.Remove({static_cast<int>(i) + 1}), "");
    ASSERT_EQ(Contents(name), before) << i;
  }
}

TEST_F(ProfileDocumentFile, AnAddedOrRenamedProjectorHasAnIdentityThatStays) {
  const auto identity = [&](std::size_t i) { return document.Projectors()[i].identity; };
  ASSERT_EQ(document.Duplicate(0, {{"name", "copy"}}), "");
  ASSERT_EQ(document.Duplicate(1, {{"name", "copy of it"}}), "");
  ASSERT_EQ(document.Change(3, {{"notes", "here"}}), "");
  EXPECT_EQ(identity(0) + identity(3), "") << "written by hand";
  ASSERT_EQ(document.Change(0, {{"name", "renamed"}}), "");
  const std::set all{identity(0), identity(1), identity(2)};
  EXPECT_EQ(all.size() - all.count(""), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    ASSERT_EQ(document.Change(i, {{"name", QString::number(i)}, {"tags", QJsonArray{"a"}}}), "");
  }
  EXPECT_EQ((std::set{identity(0), identity(1), identity(2)}), all);
}

TEST_F(ProfileDocumentFile, NothingThatSomebodyHasChangedIsTheSimulators) {
  const QByteArray mark = R"("x-written-by": "advanced-control-simulator", "modelCode")";
  const QByteArray marked = Contents(name).replace(R"("modelCode")", mark);
  const JsonEdit::Members other{{"name", "other"}};
  const auto isTheirsAfter = [&](const auto& edit) {
    Write(name, marked);
    EXPECT_EQ(document.Load(name), "");
    EXPECT_EQ(edit(), "");
    return IsWritten(Contents(name));
  };
  EXPECT_TRUE(isTheirsAfter([&] { return document.Change(0, {}); }));
  EXPECT_FALSE(isTheirsAfter([&] { return document.Change(0, other); }));
  EXPECT_FALSE(isTheirsAfter([&] { return document.Duplicate(0, other); }));
  EXPECT_FALSE(isTheirsAfter([&] { return document.Tag({0}, {"new"}, true); }));
  EXPECT_FALSE(isTheirsAfter([&] { return document.SetMember({0}, other[0]); }));
}

TEST_F(ProfileDocumentFile, FailedChangesChangeNothing) {
  using testing::HasSubstr;
  const QByteArray before = Contents(name);
  const QString taken = QString::fromStdString(document.Projectors()[0].name);
  EXPECT_THAT(document.Duplicate(1, {{"name", taken}}).toStdString(), HasSubstr("is the name of"));
  EXPECT_THAT(document.Change(1, {{"modelCode", "x"}}).toStdString(), HasSubstr("whole number"));
  EXPECT_THAT(document.Change(1, {{"name", kNone}}).toStdString(), HasSubstr("is missing"));
  {
    ProfileLock other(name);
    ASSERT_EQ(other.Take({}) + ProfileLock("/nowhere/p.json").Take({}), "");
    for (const QString& error : {document.Remove({1}), document.SaveAs(name)})
      EXPECT_THAT(error.toStdString(), HasSubstr("another program is changing"));
  }
  EXPECT_EQ(Contents(name), before);

  Write(name, before + "\n");
  EXPECT_THAT(document.Remove({1}).toStdString(), HasSubstr("changed by another program"));
  EXPECT_THAT(document.SaveAs(name).toStdString(), HasSubstr("changed by another program"));
  EXPECT_EQ(Contents(name), before + "\n");
  EXPECT_EQ(document.Load(name), "");
  EXPECT_EQ(document.Remove({1}), "");

  const std::size_t count = document.Projectors().size();
  QFile::remove(name);
  EXPECT_THAT(document.Remove({1}).toStdString(), HasSubstr("cannot read"));
  EXPECT_THAT(document.SaveAs("/nowhere/p.json").toStdString(), HasSubstr("/nowhere/p.json"));
  EXPECT_EQ(document.Projectors().size(), count);
  EXPECT_EQ(document.SaveAs(name), "");
  EXPECT_EQ(document.Remove({1}), "");
}

TEST_F(ProfileDocumentFile, WithAPasswordIsReadableByItsOwnerOnly) {
  const auto mode = [](const QString& file) {
    struct stat status {};
    EXPECT_EQ(stat(file.toLocal8Bit().constData(), &status), 0);
    return status.st_mode & 0777;
  };
  const QString copy = folder.filePath("copy.json"), other = folder.filePath("other.json");
  for (const QString& file : {name, other}) {
    ASSERT_TRUE(QFile::exists(file) || QFile::copy(name, file));
    ASSERT_EQ(chmod(file.toLocal8Bit().constData(), 0644), 0);
  }
  ASSERT_EQ(document.SaveAs(other), "");
  EXPECT_EQ(mode(other), 0644U) << "no password yet";
  const QJsonObject network{{"address", "192.0.2.1"}, {"port", 4352}, {"secret", "open"}};
  ASSERT_EQ(document.Change(0, {{"connection", QJsonObject{{"network", network}}}}), "");
  EXPECT_EQ(mode(other), 0600U);
  ASSERT_EQ(document.SaveAs(copy), "");
  EXPECT_EQ(mode(copy), 0600U) << "a new file";
  ASSERT_EQ(document.SaveAs(name), "");
  EXPECT_EQ(mode(name), 0600U) << "one that all could read";
}

}  // namespace
