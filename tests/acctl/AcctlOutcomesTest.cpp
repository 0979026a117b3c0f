// What the program says of files edited by hand and of several projectors, and where it stops when
// it is interrupted.

#include <csignal>
#include <tuple>

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/acctl/AcctlProgram.h"

namespace {

TEST(AcctlFile, NamesEveryMistakeByFileLineAndKeyAndSendsNothing) {
  const QTemporaryDir folder;
  const QString good = folder.filePath("good.json");
  ASSERT_EQ(Acctl({"save", kRoom, good}).exitCode, 0);
  const QByteArray text = Contents(good);
  constexpr const char* kTint = "picture.tint";
  // Key, member and how it is edited; the error, and whether --lenient skips it.
  const std::tuple<const char*, const char*, const char*, const char*, bool> kCases[] = {
      {kTint, "key", R"("picture.tnit")",
       ":26: picture.tnit: no model has such a setting; did you mean picture.tint?", true},
      {kTint, "value", "999",
       ":28: picture.tint: value 999 is not possible; possible are 97 to 159, shown as -31 to 31",
       true},
      {kTint, "value", R"("5")", ":28: picture.tint: settings[3].value: must be a whole", false},
      {kTint, "value", "128, \"value\": 129", ":28: picture.tint: settings[3].value is here twice",
       false},
      {kTint, "text", R"("2",)", ":27: picture.tint: text \"2\" is not that of value 128", true},
      {"picture.active-iris", "text", R"("Foo",)",
       ":47: picture.active-iris: text \"Foo\" is not that of value 0, which is \"Off\"", true},
      {"picture.active-iris", "value", "77",
       "value 77 is not possible; possible are 0 (Off), 16 (Theater), 17 (Presentation)", true},
      {"audio.volume", "source", "99,",
       ": audio.volume: source 99 does not exist; there are 0 (RGB1), ", true},
      {"picture.active-iris", "key", R"("picture.tint",)", "\"picture.tint\" is here twice", false},
  };
  for (const auto& [key, member, edited, error, isSkipped] : kCases) {
    SCOPED_TRACE(error);
    QByteArray wrong = text;
    const auto at = wrong.indexOf(QByteArray("\"") + key + '"');
    const QByteArray name = QByteArray("\"") + member + "\": ";
    const auto begin = wrong.indexOf(name, wrong.lastIndexOf('{', at)) + name.size();
    const QByteArray rest = wrong.mid(wrong.indexOf('\n', begin));
    const bool needsComma = QByteArray(member) == "key" && !QByteArray(edited).endsWith(',');
    wrong = wrong.left(begin) + edited + (needsComma ? "," : "") + rest;
    const QString file = folder.filePath("wrong.json");
    Write(file, wrong);
    // A projector that would be asked could not be reached.
    const QStringList nobody{"--connect", "tcp://127.0.0.1:1"};
    for (const QStringList& command : {QStringList{"apply", file, kRoom}, {"diff", kRoom, file}}) {
      EXPECT_THAT(
          Acctl(nobody + command),
          Ends(2, AllOf(StartsWith("acctl: " + file.toStdString() + ':'), HasSubstr(error))));
    }
    EXPECT_EQ(Acctl({"diff", "--lenient", kRoom, file}).exitCode, isSkipped ? 0 : 2);
  }
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
