// The program as scripts and people run it: what it prints, its exit codes, and what it leaves
// behind when something goes wrong.

#include <csignal>

#include "tests/acctl/AcctlProgram.h"
#include "tests/support/Record.h"
#include "tests/support/Soon.h"

namespace {

TEST(Acctl, AnswersWrongUseWithOneLineAndExitCode2) {
  ExpectAnswers(TEST_SOURCE_DIR "/acctl/WrongUses.txt", [](const std::string& words) {
    const Outcome run = Acctl(QProcess::splitCommand(QString::fromStdString(words)));
    EXPECT_EQ(run.output, "") << words;
    EXPECT_EQ(run.exitCode, 2) << words;
    EXPECT_EQ(run.errors.find('\n') + 1, run.errors.size()) << words;
    return run.errors.substr(0, run.errors.find('\n'));
  });
}

TEST(Acctl, PrintsAlignedTextInBothLanguages) {
  EXPECT_EQ(Acctl({"get", kRoom, "picture.brightness", "picture.active-iris"}).output,
            kSimulated + "picture.brightness   Brightness   0\n" + kSimulated +
                "picture.active-iris  Active Iris  Off\n");
  EXPECT_EQ(Acctl({"get", kRoom, "picture.t*", "picture.gamma"}, "zh_CN.UTF-8").output,
            "Projector 5-30（模拟）  picture.tint   色调  0\n"
            "Projector 5-30（模拟）  picture.gamma  伽马  #1-默认\n");
  EXPECT_EQ(Acctl({"set", kRoom, "picture.active-iris", "影院", "picture.tint", "=-3"}).output,
            kSimulated + "picture.active-iris  Active Iris  Off  ->  Theater\n" + kSimulated +
                "picture.tint         Tint         0    ->  -3\n");
  EXPECT_THAT(Acctl({"set", kRoom, "screen.language", "-1"}),
              Ends(2, HasSubstr("screen.language: '-1' from English is not one of: English")));
  EXPECT_THAT(Acctl({"settings", kRoom}).output, HasSubstr("picture.tint "));
  EXPECT_THAT(Acctl({"list", "--brief"}).output, HasSubstr("\nProjector 5-30\n"));
  EXPECT_THAT(Acctl({"--help"}).output, StartsWith("Use: acctl"));
}

TEST(Acctl, PrintsJsonForScripts) {
  const Outcome run = Acctl({"--json", "get", "Projector 5-3[01]", "picture.sharpness"});
  QByteArray expected = R"({"format": "acctl", "version": 1, "command": "get", "projectors": [
      {"name": "Projector 5-30", "simulated": true, "errors": [], "settings": [SETTING]},
      {"name": "Projector 5-31", "simulated": true, "errors": [], "settings": [SETTING]}]})";
  expected.replace("SETTING", R"({"key": "picture.sharpness", "caption": "Sharpness",
                                  "alias": "sharpness", "value": 128, "shown": 4, "code": "4",
                                  "text": "4"})");
  EXPECT_EQ(QJsonDocument::fromJson(QByteArray::fromStdString(run.output)),
            QJsonDocument::fromJson(expected));
}

TEST(Acctl, PutsSettingsBackAndUndoesIt) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("good.json");
  const Simulator simulator;
  const auto run = [&](const QStringList& arguments) { return Acctl(simulator.At(arguments)); };
  EXPECT_EQ(run({"set", kRoom, "picture.brightness", "7", "picture.gamma", "#2-Custom"}).exitCode,
            0);
  EXPECT_EQ(run({"set", kRoom, "picture.brightness", "9", "picture.gamma", "+99"}).exitCode, 2);
  EXPECT_THAT(run({"save", kRoom, file}).output,
              StartsWith("Projector 5-30  91 settings saved in "));
  EXPECT_EQ(run({"set", kRoom, "picture.brightness", "-3", "other.input-source", "+1"}).exitCode,
            0);
  EXPECT_THAT(run({"reset", kRoom, "picture.tint", "status.lamp-time"}).output,
              HasSubstr("status.lamp-time  Lamp Time  0 h\n"));
  EXPECT_THAT(run({"apply", "--only", "zzz", file, kRoom}), Ends(2, HasSubstr("--only zzz: ")));
  const Outcome dry = run({"apply", "--dry-run", "--only", "picture.*", file, kRoom});
  EXPECT_THAT(dry.output,
              HasSubstr("picture.brightness  Brightness  4  ->  7\nProjector 5-30  1 different, "));
  EXPECT_THAT(run({"apply", file, kRoom}).output, HasSubstr("\nProjector 5-30  2 changed, "));
  EXPECT_THAT(run({"diff", kRoom, file}).output,
              testing::ContainsRegex("^Projector 5-30  [0-9]+ already so\n$"));
  EXPECT_THAT(run({"undo"}).output, HasSubstr("\nProjector 5-30  2 changed\n"));
  EXPECT_THAT(run({"get", kRoom, "picture.brightness"}).output, HasSubstr("  4\n"));
}

TEST(Acctl, TellsWhatIsRefusedAndWhatDoesNotAnswer) {
  const Simulator refuses({"--fault", "refuse"});
  EXPECT_THAT(Acctl(refuses.At({"set", kRoom, "picture.tint", "3"})),
              Ends(1, StartsWith("acctl: Projector 5-30: picture.tint: refused\n")));
  EXPECT_THAT(Acctl(refuses.At({"save", kRoom, "x", "--only", "picture.tint"})),
              Ends(1, HasSubstr(": nothing can be read, and nothing was written\n")));
  EXPECT_THAT(Shell("{ \"$0\" \"$@\" 2>&1 & echo $!; wait; } | "
                    "{ read pid; read line; sleep 0.3; kill $pid; { echo $line; cat; } >&2; }",
                    refuses.At({"watch", kRoom, "picture.tint", "--interval", "0.05"})),
              Ends(0, "acctl: Projector 5-30: picture.tint: cannot be read now\n"));
  const Simulator simulator({"--password", "secret"});
  const OtherSettings saved;
  const QStringList other{"--password", "secret", "--connect", simulator.Address("pjlink")};
  const char* const notOffered = ": skipped, PJLink does not have it: 1 of the file's settings\n";
  EXPECT_THAT(Acctl(other + QStringList{"diff", kRoom, saved.file, "--only", "picture.tint"}),
              Ends(0, HasSubstr(notOffered)));
  const QString profiles = saved.folder.filePath("any");
  Write(profiles, kAnyProfile);
  const QStringList any{"--profiles", profiles, "--connect",          simulator.Address("pjlink"),
                        "set",        "Any",    "other.input-source", "RGB2"};
  EXPECT_THAT(Acctl(any + QStringList{"--password", "secret"}).output, HasSubstr(" RGB2 (32)\n"));
  EXPECT_THAT(Acctl(any), Ends(3, HasSubstr("no answer (password missing or wrong)\n")));

  const Simulator silent({"--fault", "silent"});
  const char* const noAnswer = "acctl: Projector 5-30: status.power: no answer\n";
  EXPECT_THAT(Acctl(silent.At({"--timeout", "0.5", "get", kRoom})), Ends(3, noAnswer));
  EXPECT_THAT(Acctl({"--connect", "tcp://127.0.0.1:1", "status", kRoom}),
              Ends(3, HasSubstr(": status.power: no answer (not reachable)\n")));
}

TEST(Acctl, WaitsForManyOnAFewThreads) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("fleet.json");
  const SimulatorProcess simulator(
      {"--fleet", "60", "--port", "0", "--fault", "silent 100%", "--write-profiles", file});
  for (const QStringList& command : {QStringList{"status", "*", "--jobs", "60"},
                                     {"set", "*", "other.freeze=on", "--jobs", "60"},
                                     {"watch", "*", "status.power"}}) {
    QProcess acctl;
    acctl.start(ACCTL_PROGRAM, QStringList{"--profiles", file, "--timeout", "60"} + command);
    ASSERT_TRUE(acctl.waitForStarted());
    const QString process = QStringLiteral("/proc/%1/").arg(acctl.processId());
    const auto count = [&process](const char* what) {
      return QDir(process + QLatin1String(what))
          .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
          .size();
    };
    EXPECT_TRUE(Soon([&] { return count("fd") > 60; })) << qPrintable(command[0]);
    EXPECT_LE(count("task"), 16);
    acctl.kill();
    acctl.waitForFinished();
  }
}

TEST(Acctl, SaysWhenInterruptedWhatWasDone) {
  const OtherSettings saved;
  const Simulator simulator({"--fault", "late 100"});
  const QStringList apply = simulator.At({"apply", saved.file, kRoom});
  QProcess process;
  process.start(ACCTL_PROGRAM, apply);
  const auto before = UndoFiles().size();
  while (UndoFiles().size() == before && process.state() != QProcess::NotRunning) {
    process.waitForFinished(20);
  }
  for (int i = 0; i < 2; ++i) {
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    QThread::msleep(30);  // else the system takes both for one
  }
  const Outcome cut = Finish(process);
  EXPECT_THAT(cut, Ends(128 + SIGTERM, HasSubstr("interrupted")))
      << "a second signal loses no report";
  EXPECT_THAT(cut.output, HasSubstr(" different, "));
  EXPECT_EQ(Acctl(apply).exitCode, 0);
  EXPECT_THAT(Acctl(simulator.At({"diff", kRoom, saved.file})).output,
              testing::ContainsRegex("^Projector 5-30  [0-9]+ already so\n$"));

  QProcess watch;
  watch.start("bash",
              QStringList{"-c", "trap '' INT; exec \"$0\" \"$@\" --interval 0.05", ACCTL_PROGRAM} +
                  simulator.At({"watch", kRoom, "picture.tint"}));
  ASSERT_TRUE(watch.waitForReadyRead(60'000));
  ::kill(static_cast<pid_t>(watch.processId()), SIGINT);  // which is ignored, as it was before
  EXPECT_EQ(Acctl(simulator.At({"set", kRoom, "picture.tint", "9"})).exitCode, 0);
  ASSERT_TRUE(watch.waitForReadyRead(60'000));
  watch.terminate();
  const Outcome watched = Finish(watch);
  EXPECT_THAT(watched, Ends(0, ""));
  EXPECT_EQ(watched.output,
            "Projector 5-30  picture.tint  Tint  1\nProjector 5-30  picture.tint  Tint  9\n");
}

TEST(Acctl, LeavesNothingHalfWritten) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("kept.json");
  Write(file, "precious");
  const QString full = "trap '' XFSZ; ulimit -f 1; exec \"$0\" \"$@\"";
  EXPECT_THAT(Shell(full, {"save", "--force", kRoom, file}),
              Ends(1, HasSubstr("cannot write " + file.toStdString() + ": File too large")));
  EXPECT_EQ(Contents(file), "precious");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"kept.json"});

  const OtherSettings saved;
  const Simulator simulator;
  const Outcome noUndo = Acctl(simulator.At({"apply", "--undo", "/proc", saved.file, kRoom}));
  EXPECT_THAT(noUndo, Ends(1, HasSubstr("nothing was sent")));
  EXPECT_THAT(noUndo.output, HasSubstr(" different, "));
  EXPECT_THAT(Acctl({"save", kRoom, "/proc/kept.json"}),
              Ends(1, HasSubstr("cannot write /proc/kept.json")));
  EXPECT_THAT(Acctl({"save", kRoom, "/dev/stdout"}).output, HasSubstr("picture.tint"));
}

// Nobody is left to read a message about a closed pipe.
TEST(Acctl, FailsWhereItCannotPrint) {
  for (const QStringList& command :
       {QStringList{"list"}, {"get", kRoom}, {"watch", kRoom, "picture.tint"}}) {
    for (const auto& [line, errors] :
         {std::pair("exec \"$0\" \"$@\" > /dev/full",
                    "acctl: cannot write: No space left on device\n"),
          {"exec \"$0\" \"$@\" >&-", "acctl: cannot write: Bad file descriptor\n"},
          {"set -o pipefail; (sleep 0.1; \"$0\" \"$@\") | true", ""}}) {
      SCOPED_TRACE(command.front().toStdString() + line);
      EXPECT_THAT(Shell(line, command), Ends(1, errors));
    }
  }
}

}  // namespace
