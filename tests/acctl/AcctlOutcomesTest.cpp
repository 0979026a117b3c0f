// What the program says of files edited by hand and of several projectors, and where it stops when
// it is interrupted.

#include <csignal>

#include "tests/acctl/AcctlProgram.h"
#include "tests/support/Record.h"

namespace {

TEST(AcctlFile, NamesEveryMistakeByFileLineAndKeyAndSendsNothing) {
  const QTemporaryDir folder;
  const QString good = folder.filePath("good.json");
  ASSERT_EQ(Acctl({"save", kRoom, good}).exitCode, 0);
  const QByteArray text = Contents(good);
  ExpectAnswers(TEST_SOURCE_DIR "/acctl/WrongFiles.txt", [&](const std::string& edit) {
    const QList<QByteArray> parts = QByteArray::fromStdString(edit).split('|');
    QByteArray wrong = text;
    const auto at = wrong.indexOf('"' + parts[0] + '"');
    const QByteArray name = '"' + parts[1] + "\": ";
    const auto begin = wrong.indexOf(name, wrong.lastIndexOf('{', at)) + name.size();
    const QByteArray rest = wrong.mid(wrong.indexOf('\n', begin));
    const bool needsComma = parts[1] == "key" && !parts[2].endsWith(',');
    wrong = wrong.left(begin) + parts[2] + (needsComma ? "," : "") + rest;
    const QString file = folder.filePath("wrong.json");
    Write(file, wrong);
    // A projector that would be asked could not be reached.
    const QStringList nobody{"--connect", "tcp://127.0.0.1:1"};
    const Outcome apply = Acctl(nobody + QStringList{"apply", file, kRoom});
    EXPECT_THAT(apply, Ends(2, StartsWith("acctl: " + file.toStdString() + ':')));
    EXPECT_THAT(Acctl(nobody + QStringList{"diff", kRoom, file}), Ends(2, apply.errors));
    const int code = Acctl({"diff", "--lenient", kRoom, file}).exitCode;
    EXPECT_TRUE(code == 0 || code == 2) << code;
    const auto said = QString::fromStdString(apply.errors).section(file, 1).section('\n', 0, 0);
    return said.toStdString() + (code == 0 ? "; passed over" : "");
  });
  const QString chinese = folder.filePath("chinese.json");
  ASSERT_EQ(Acctl({"save", kRoom, chinese}, "zh_CN.UTF-8").exitCode, 0);
  EXPECT_THAT(Acctl({"diff", kRoom, chinese}), Ends(0, ""));
  // What one model takes and another does not is no mistake.
  EXPECT_THAT(Acctl({"diff", "Projector 4-24", good}), Ends(0, HasSubstr("this model does not")));
}

/// Two projectors of a file, served by one simulator, over the wire.
const QString kRooms = "Projector ?-??";

struct TwoRooms {
  Outcome Run(const QStringList& arguments) const {
    return Acctl(QStringList{"--profiles", folder.filePath("served.json")} + arguments);
  }

  const QTemporaryDir folder{};
  const SimulatorProcess simulator{{"--projector", kRoom, "--projector", "Projector 4-24",
                                    "--write-profiles", folder.filePath("served.json")}};
};

TEST(AcctlSet, SendsNothingToAnyoneWhereAWordIsWrongForOne) {
  const TwoRooms rooms;
  const QStringList watched{"get", kRooms, "picture.tint", "picture.brightness"};
  ASSERT_THAT(rooms.Run({"set", kRooms, "picture.tint", "3"}), Ends(0, ""));
  ASSERT_EQ(rooms.Run({"set", kRoom, "picture.tint", "31"}).exitCode, 0);
  const std::string before = rooms.Run(watched).output;
  EXPECT_THAT(before, AllOf(HasSubstr("Tint        31\n"), HasSubstr("Tint        3\n")));
  const std::pair<QStringList, const char*> kCases[] = {
      {{"picture.brightness", "5", "picture.tint", "99"}, "picture.tint: '99' is not one of: "},
      {{"picture.brightness", "5", "picture.tint", "+1"},
       "Projector 5-30: picture.tint: '+1' from 31 is not one of: -31 to 31"}};
  for (const auto& [words, error] : kCases) {
    EXPECT_THAT(rooms.Run(QStringList{"set", kRooms} + words), Ends(2, HasSubstr(error)));
    EXPECT_EQ(rooms.Run(watched).output, before) << error;
  }
}

TEST(AcctlSet, StopsWhereItIsInterruptedAndDoesNotBeginWhatCannotBeReached) {
  const Simulator simulator({"--fault", "late 40"});
  const QString key = "image.position-h";
  const auto patiently = [&simulator](const QStringList& arguments) {
    return simulator.At(QStringList{"--timeout", "60"} + arguments);
  };
  EXPECT_THAT(Acctl(patiently({"set", kRoom, key, "70000"})),
              Ends(2, HasSubstr("'70000' is not one of: ")));
  EXPECT_THAT(Acctl(patiently({"set", kRoom, "picture.tint", "3", key, "60000"})),
              Ends(2, HasSubstr("'60000' is more than 4096 steps from ")));
  QProcess watch;
  watch.start(ACCTL_PROGRAM, patiently({"watch", kRoom, key, "--interval", "0.05"}));
  ASSERT_TRUE(watch.waitForReadyRead(30'000));
  const auto interrupt = [&](const QStringList& arguments) {
    QProcess process;
    process.start(ACCTL_PROGRAM, patiently(arguments));  // for minutes, if nobody interrupts it
    // The first ones may still be of the run before.
    for (int step = 0; step < 4; ++step) {
      watch.readAllStandardOutput();
      EXPECT_TRUE(watch.waitForReadyRead(30'000));
    }
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    return Finish(process);
  };
  const auto isStopped = Ends(
      128 + SIGINT, AllOf(HasSubstr(": image.position-h: stopped at "), Not(HasSubstr("refused"))));
  const Outcome set = interrupt({"--json", "set", kRoom, key, "+4000"});
  EXPECT_THAT(set, isStopped);
  EXPECT_EQ(Entry(set)["changes"][0]["outcome"], "stopped");
  const QTemporaryDir folder;
  const QString file = folder.filePath("far.json");
  const auto write = [&](const char* value) {
    Write(file, QByteArray(R"({"format": "advanced-control-settings", "version": 1,
      "model": {"name": "Model 5-30", "dialogType": 5, "modelCode": 30},
      "settings": [{"key": "image.position-h", "value": )") +
                    value + "}]}");
  };
  write("60000");
  const Outcome far = Acctl(patiently({"--json", "apply", file, kRoom}));
  EXPECT_THAT(far, Ends(1, HasSubstr(": not sent, it is more than 4096 steps away\n")));
  EXPECT_EQ(Entry(far)["notDone"][0]["key"], key);
  write("4000");
  const Outcome apply = interrupt({"--json", "apply", file, kRoom});
  EXPECT_THAT(apply, isStopped);
  EXPECT_EQ(Entry(apply)["notDone"][0]["key"], key);
  watch.terminate();
  EXPECT_EQ(Finish(watch).exitCode, 0);
}

}  // namespace
