// What the programs do when something fails around them, and when several run at once.

#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/acctl/AcctlProgram.h"

namespace {

using testing::AnyOf;

/// Set for the programs that are started meanwhile.
class Environment {
 public:
  Environment(const char* name, const QByteArray& value) : name_(name) { qputenv(name_, value); }
  ~Environment() { qunsetenv(name_); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  const char* const name_;
};

/// Calls fail in the programs that are started meanwhile, as `name` and `value` tell
/// scripts/faults/FailingCalls.cpp.
struct FailingCalls {
  FailingCalls(const char* name, const QByteArray& value) : which(name, value) {}

  Environment library{"LD_PRELOAD", FAILING_CALLS};
  Environment which;
};

TEST(Adversity, AFailedAllocationEndsTheProgramWithOneLine) {
#ifdef SANITIZED
  GTEST_SKIP() << "what a sanitizer puts in the place of malloc cannot be preloaded over";
#endif
  const Simulator simulator;
  int told = 0;
  for (int failing = 1; failing < 30'000; failing += 1 + failing / 12) {
    SCOPED_TRACE(failing);
    const FailingCalls calls("FAIL_ALLOCATION", QByteArray::number(failing));
    const Outcome set = Acctl(simulator.At({"set", kRoom, "picture.tint", "3"}), "zh_CN.UTF-8");
#ifdef QT_NO_DEBUG
    EXPECT_THAT(set, AnyOf(Ends(0, ""), Ends(1, "acctl: out of memory\n")));
#else
    // In a debug build, Qt sometimes asserts that it has memory before it is used.
    EXPECT_THAT(set, AnyOf(Ends(0, ""), Ends(1, "acctl: out of memory\n"),
                           Ends(-1, HasSubstr("ASSERT: \"this->isMutable()"))));
#endif
    if (set.exitCode == 0) {
      EXPECT_THAT(set.output, testing::EndsWith("  ->  3\n"));
    }
    told += set.exitCode == 1;
  }
  EXPECT_GT(told, 50);
}

TEST(Adversity, OnlyWhatTheDiskHasIsSaved) {
  const OtherSettings saved;
  const QByteArray kept = Contents(saved.file);
  const QString fresh = saved.folder.filePath("new.json");
  const Simulator simulator;  // what acctl simulates itself is not recorded
  const QStringList apply = simulator.At({"apply", saved.file, kRoom});
  for (const char* what : {"file", "folder"}) {
    SCOPED_TRACE(what);
    const FailingCalls calls("FAIL_SYNC", what);
    const Outcome save = Acctl({"save", kRoom, fresh});
    EXPECT_THAT(save, Ends(1, HasSubstr("new.json: Input/output error\n")));
    EXPECT_EQ(save.output, "");
    EXPECT_THAT(Acctl(apply), Ends(1, HasSubstr(": Input/output error; nothing was sent\n")));
  }
  QFile::remove(fresh);
  const QStringList undo = UndoFiles();
  {
    const FailingCalls calls("FAIL_SYNC", "kill");
    EXPECT_EQ(Acctl({"save", kRoom, saved.file}).exitCode, -1);
    EXPECT_EQ(Acctl(apply).exitCode, -1);
    EXPECT_EQ(Contents(saved.file), kept);
    EXPECT_EQ(UndoFiles(), undo);
  }
  {
    const FailingCalls calls("FAIL_NEW_NAME", QByteArray::number(ENOSPC));
    EXPECT_THAT(Acctl(apply), Ends(1, HasSubstr(": No space left on device; nothing was sent\n")));
  }
  const FailingCalls calls("FAIL_NEW_NAME", QByteArray::number(EINVAL));
  EXPECT_EQ(Acctl(apply).exitCode, 0);
  EXPECT_EQ(UndoFiles().size(), undo.size() + 1) << "in the older way";
}

TEST(Adversity, LinksAreFollowedUnlessTheyLeadInACircle) {
  const QTemporaryDir folder;
  const QString link = folder.filePath("link"), other = folder.filePath("other");
  ASSERT_TRUE(QFile::link("other", link));
  EXPECT_EQ(Acctl({"save", kRoom, link}).exitCode, 0);
  EXPECT_TRUE(QFileInfo(link).isSymLink());
  EXPECT_THAT(Acctl({"diff", kRoom, other}), Ends(0, ""));
  QFile::remove(other);
  ASSERT_TRUE(QFile::link("link", other));
  EXPECT_THAT(Acctl({"save", kRoom, link}), Ends(1, HasSubstr("levels of symbolic links\n")));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System),
            (QStringList{"link", "other"}));
}

TEST(Adversity, StandardInputIsReadToItsEndHoweverSlowlyItIsWritten) {
  const OtherSettings saved;
  const QByteArray text = Contents(saved.file);
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_NONBLOCK | O_CLOEXEC), 0);
  QProcess acctl;
  acctl.setChildProcessModifier([&ends] { dup2(ends[0], STDIN_FILENO); });
  acctl.start(ACCTL_PROGRAM, {"diff", kRoom, "-"});
  ASSERT_TRUE(acctl.waitForStarted());
  for (int begin = 0; begin < text.size(); begin += 4000) {
    EXPECT_FALSE(acctl.waitForFinished(100));
    const QByteArray piece = text.mid(begin, 4000);
    EXPECT_EQ(write(ends[1], piece.data(), static_cast<std::size_t>(piece.size())), piece.size());
  }
  close(ends[1]);
  const Outcome diff = Finish(acctl);
  EXPECT_THAT(diff, Ends(0, ""));
  EXPECT_EQ(diff.output, Acctl({"diff", kRoom, saved.file}).output);
  EXPECT_NE(fcntl(ends[0], F_GETFL) & O_NONBLOCK, 0) << "it is ours";
  close(ends[0]);
}

TEST(Adversity, RunsOnOneProjectorWaitForEachOther) {
  const Environment here("XDG_CACHE_HOME", kCache.path().toUtf8());
  QDir locks(kCache.filePath("advanced-control/locks"));
  locks.removeRecursively();
  const Simulator simulator;
  const auto get = [&](const QString& timeOut) {
    return simulator.At({"--timeout", timeOut, "get", kRoom, "picture.tint"});
  };
  EXPECT_THAT(Acctl(get("60")), Ends(0, ""));
  locks.refresh();
  ASSERT_EQ(locks.entryList(QDir::Files).size(), 1);
  QFile lock(locks.filePath(locks.entryList(QDir::Files).front()));
  ASSERT_TRUE(lock.open(QFile::ReadOnly) && flock(lock.handle(), LOCK_EX) == 0);
  EXPECT_THAT(Acctl(get("0.1")), Ends(3, HasSubstr(": another run of acctl works on it\n")));
  QProcess waiting;
  waiting.start(ACCTL_PROGRAM, get("60"));
  EXPECT_FALSE(waiting.waitForFinished(300));
  lock.close();
  EXPECT_THAT(Finish(waiting), Ends(0, ""));
}

TEST(Adversity, AnUndoFileIsForItsOwnProjector) {
  const OtherSettings saved;
  const QString other = "Projector 5-31", undo = saved.folder.filePath("undo.json");
  EXPECT_THAT(Acctl({"apply", saved.file, other}), Ends(0, Not(HasSubstr("--force"))));
  EXPECT_THAT(Acctl({"apply", saved.file, kRoom}), Ends(0, kNothingLasting));
  Write(undo, Contents(saved.file).replace("\"model\": {", "\"undo\": true, \"model\": {"));
  EXPECT_THAT(Acctl({"apply", undo, other}),
              Ends(2, HasSubstr("undoes a change of Projector 5-30; --force applies it to " +
                                other.toStdString())));
  for (const char* option : {"--force", "--dry-run"}) {
    EXPECT_EQ(Acctl({"apply", option, undo, other}).exitCode, 0);
  }
  EXPECT_EQ(Acctl({"apply", undo, kRoom}).exitCode, 0);
  EXPECT_THAT(Acctl({"apply", "", kRoom}), Ends(2, "acctl: the name of the file is empty\n"));
}

TEST(Adversity, APasswordNeedNotBeAnArgument) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("password");
  Write(file, "secret\r\nmore");
  const Simulator simulator({"--password", "secret"});
  const QStringList get{"--connect", simulator.Address("pjlink"), "get", kRoom, "status.power"};
  EXPECT_THAT(Acctl(QStringList{"--password-file", file} + get), Ends(0, ""));
  EXPECT_THAT(Acctl(QStringList{"--password-file", "/nowhere"} + get),
              Ends(2, "acctl: --password-file /nowhere: No such file or directory\n"));
  {
    const Environment password("ACCTL_PASSWORD", "secret");
    EXPECT_THAT(Acctl(get), Ends(0, ""));
    EXPECT_EQ(Acctl(QStringList{"--password", "wrong"} + get).exitCode, 3);
  }
  EXPECT_THAT(Acctl(get), Ends(3, Not(HasSubstr("Password"))));

  QProcess terminal;
  terminal.setProcessChannelMode(QProcess::MergedChannels);
  terminal.start("script", {"-qec", "'" ACCTL_PROGRAM "' '" + get.join("' '") + "'", "/dev/null"});
  QByteArray shown;
  while (!shown.contains("Password of") && terminal.waitForReadyRead(60'000)) {
    shown += terminal.readAll();
  }
  terminal.write("secret\n");
  const Outcome asked = Finish(terminal);
  EXPECT_EQ(asked.exitCode, 0);
  EXPECT_THAT(shown.toStdString() + asked.output,
              AllOf(HasSubstr("Power Status  On"), Not(HasSubstr("secret"))));
}

TEST(Adversity, TheSimulatorServesOnAfterAFailedAcceptAndBehindIdleConnections) {
  [[maybe_unused]] const auto connect = [](const Simulator& simulator) {
    return Shell("exec 3<> /dev/tcp/127.0.0.1/\"$1\" && read -t 60 -n 1 -u 3; [[ $? -le 1 ]]",
                 {simulator.Address("tcp").section(':', -1)});
  };
  const auto status = [](const Simulator& simulator, const char* way) {
    return Acctl({"--connect", simulator.Address(way), "--timeout", "20", "status", kRoom});
  };
  std::optional<Simulator> simulator;
#ifndef SANITIZED
  {
    const FailingCalls calls("FAIL_ACCEPT", "1");
    simulator.emplace();
  }
  EXPECT_EQ(connect(*simulator).exitCode, 0) << "it is closed";
  EXPECT_THAT(status(*simulator, "tcp"), Ends(0, ""));
#endif
  simulator.emplace();
  for (const char* const way : {"tcp", "pjlink"}) {
    QProcess idle;
    idle.start("bash",
               {"-c", "for i in {1..19}; do exec {n}<> /dev/tcp/127.0.0.1/$0; done; echo; cat",
                simulator->Address(way).section(':', -1)});
    ASSERT_TRUE(idle.waitForReadyRead(60'000));
    EXPECT_THAT(status(*simulator, way), Ends(0, ""));
    idle.closeWriteChannel();
    EXPECT_EQ(Finish(idle).exitCode, 0);
  }
}

TEST(Adversity, TheSimulatorWritesItsProfilesIntoAPipe) {
  const QTemporaryDir folder;
  const QString pipe = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  QProcess reader;
  reader.start("cat", {pipe});
  const Simulator simulator({"--write-profiles", pipe});
  const Outcome read = Finish(reader);
  EXPECT_THAT(read.output, StartsWith("{"));
  struct stat status {};
  ASSERT_EQ(stat(QFile::encodeName(pipe).constData(), &status), 0);
  EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

}  // namespace
