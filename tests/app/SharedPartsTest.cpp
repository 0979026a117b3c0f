// Files, sockets and texts that all programs share.

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/profiles/PjLinkCache.h"
#include "app/profiles/PresetFolder.h"
#include "app/profiles/SettingsFile.h"
#include "app/profiles/SimulatorNotice.h"
#include "tests/support/Limited.h"
#include "tests/support/Programs.h"

namespace {

/// A folder that a variable of the environment names.
class NamedFolder {
 public:
  explicit NamedFolder(const char* variable) : variable_(variable) { Set(folder_.path()); }
  ~NamedFolder() { qunsetenv(variable_); }
  NamedFolder(const NamedFolder&) = delete;
  NamedFolder& operator=(const NamedFolder&) = delete;

  void Set(const QString& path) const { qputenv(variable_, path.toUtf8()); }
  QString FilePath(const QString& name) const { return folder_.filePath(name); }

 private:
  const char* const variable_;
  const QTemporaryDir folder_;
};

TEST(PresetFolder, KeepsPresetsByTheirNames) {
  const NamedFolder data("XDG_DATA_HOME");
  Snapshot day;
  day.projector = "A";
  EXPECT_EQ(PresetFolder::Write("day", day), "");
  EXPECT_EQ(PresetFolder::FileMeantBy("day"), PresetFolder::FileOf("day"));
  for (const QString& other :
       {QString("-"), QString("night"), QString("../day"), data.FilePath("")}) {
    EXPECT_EQ(PresetFolder::FileMeantBy(other), other);
  }
  EXPECT_EQ(PresetFolder::Rename("day", "Day 2"), "");
  EXPECT_EQ(PresetFolder::Read("Day 2").snapshot->projector, "A");
  EXPECT_EQ(PresetFolder::Read("day").snapshot, nullptr);
  EXPECT_NE(PresetFolder::Read("day").error, "");
  EXPECT_NE(PresetFolder::Rename("day", "night"), "");
  EXPECT_NE(PresetFolder::Remove("day"), "");
  EXPECT_EQ(PresetFolder::Remove("Day 2"), "");
  data.Set("/dev/null");
  EXPECT_TRUE(PresetFolder::Write("day", day).startsWith("cannot create the folder /dev/null/"));
  for (const QString& name : {QString(), QString(" a"), QString(".a"), QString("a/b"),
                              QString("a\tb"), QString(201, 'x'), QString(101, QChar(0xE9))}) {
    EXPECT_FALSE(PresetFolder::IsName(name)) << qPrintable(name);
  }
  EXPECT_TRUE(PresetFolder::IsName(QString(200, 'x')));
}

TEST(SettingsFile, TellsWhereSomethingIsWrong) {
  Snapshot snapshot;
  snapshot.projector = "A";
  snapshot.settings = {{"main.mirror", 1, "H Inverse", {}}};
  snapshot.beforehand = {{"other.input-source", 2, "B", {}}};
  const QByteArray good = WriteSnapshot(snapshot);
  const auto error = [](const QByteArray& text) {
    return ParseSettingsFile(text, "f").error.section(':', 2).toStdString();
  };
  const auto with = [&good](const char* part, const char* instead) {
    EXPECT_TRUE(good.contains(part)) << part;
    return QByteArray(good).replace(part, instead);
  };
  EXPECT_EQ(error(good), "");
  EXPECT_EQ(error("[\"\x01\"]"), " control character in a text");
  EXPECT_EQ(error("["), " unterminated array");
  EXPECT_EQ(error(with("\"value\": 1", "\"value\": 1, \"value\": 1")),
            " main.mirror: settings[0].value is here twice");
  EXPECT_EQ(error(with("\"value\": 2", "\"value\": 2, \"value\": 2")),
            " other.input-source: beforehand[0].value is here twice");
  EXPECT_EQ(error(with("\"projector\":", "\"projector\": \"\", \"projector\":")),
            " projector is here twice");
  QByteArray twice = with("\"value\": 1", "\"value\": 1, \"value\": 1");
  twice.insert(twice.lastIndexOf('}'), ", \"settings\": []");
  EXPECT_EQ(error(twice), " settings[0].value is here twice");
  EXPECT_EQ(FileNameOf("Room 1/2-\xC3\xA4"), QString("Room_1_2-\u00E4"));
}

TEST(PjLinkCache, TakesOnlyWhatIsSound) {
  const NamedFolder cache("XDG_CACHE_HOME");
  const PjLinkFacts facts{.protocolClass = '2', .inputs = {{31, "HDMI"}}};
  const QString file = cache.FilePath("advanced-control/pjlink/a%3A1.json");
  WritePjLinkCache("a:1", facts);
  EXPECT_EQ(ReadPjLinkCache("a:1"), facts);
  const QByteArray good = Contents(file);
  const QByteArray input = good.mid(good.indexOf("{", 1), good.indexOf("}") - good.indexOf("{", 1));
  const std::pair<QByteArray, QByteArray> damages[] = {
      {"\"asked\": ", "\"asked\": 9"},
      {"\"2\"", "\"3\""},
      {"\"31\"", "\"x\""},
      {"\"HDMI\"", "\"\""},
      {"\"HDMI\"", '"' + QByteArray(513, 'x') + '"'},
      {"[", '[' + (input + "},").repeated(32)}};
  for (const auto& [part, instead] : damages) {
    ASSERT_TRUE(good.contains(part)) << part.data();
    Write(file, QByteArray(good).replace(part, instead));
    EXPECT_EQ(ReadPjLinkCache("a:1"), PjLinkFacts()) << instead.left(40).data();
  }
  for (const PjLinkInput& wrong : {PjLinkInput{-1, "A"}, {31, std::string(513, 'x')}}) {
    WritePjLinkCache("b:1", {.protocolClass = '1', .inputs = {wrong}});
    EXPECT_EQ(ReadPjLinkCache("b:1"), PjLinkFacts());
  }
  cache.Set("/dev/null");
  WritePjLinkCache("a:1", facts);
  EXPECT_EQ(ReadPjLinkCache("a:1"), PjLinkFacts());
}

TEST(SimulatorNotice, IsThatOfTheFirstSimulatorThatRuns) {
  const NamedFolder runtime("XDG_RUNTIME_DIR");
  const QString profiles = runtime.FilePath("p.json");
  Write(profiles, "{}");
  const ServedAddresses one{{"A", "tcp://127.0.0.1:1"}}, two{{"B", "tcp://127.0.0.1:2"}};
  EXPECT_EQ(FindServed(profiles), ServedAddresses());
  int ready[2], end[2];
  ASSERT_TRUE(pipe(ready) == 0 && pipe(end) == 0);
  const pid_t other = fork();
  char byte = 0;
  if (other == 0) {
    const SimulatorNotice notice(profiles, one);
    close(end[1]);
    _exit(write(ready[1], "!", 1) == 1 && read(end[0], &byte, 1) == 0 ? 0 : 1);
  }
  EXPECT_EQ(read(ready[0], &byte, 1), 1);
  { const SimulatorNotice second(profiles, two); }
  EXPECT_EQ(FindServed(profiles), one);
  close(end[1]);
  int status = -1;
  EXPECT_TRUE(waitpid(other, &status, 0) == other && status == 0);
  EXPECT_EQ(FindServed(profiles), ServedAddresses()) << "it was killed";

  const auto seenByOthers = [&] {
    const pid_t reader = fork();
    if (reader == 0) _exit(static_cast<int>(FindServed(profiles).size()));
    waitpid(reader, &status, 0);
    return WEXITSTATUS(status);
  };
  {
    const SimulatorNotice notice(profiles, two);
    EXPECT_EQ(seenByOthers(), 1);
  }
  EXPECT_TRUE(QDir(runtime.FilePath("advanced-control")).isEmpty());
  std::signal(SIGXFSZ, SIG_IGN);
  {
    const Limited size(RLIMIT_FSIZE, 3);
    const SimulatorNotice notice(profiles, two);
    EXPECT_EQ(seenByOthers(), 0) << "half of it";
  }
  runtime.Set("/dev/null");
  { const SimulatorNotice nowhere(profiles, two); }
  runtime.Set({});
  { const SimulatorNotice nowhere(profiles, two); }
  EXPECT_EQ(FindServed(profiles), ServedAddresses());
}

}  // namespace
