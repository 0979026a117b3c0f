// What the program says of files edited by hand, of several projectors, and of projectors that
// rest, take their time or get interrupted.

#include <csignal>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/acctl/AcctlProgram.h"
#include "tests/acctl/ScriptedPjLink.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// The entry of the only projector.
QJsonObject Entry(const Outcome& run) {
  const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(run.output));
  return json["projectors"][0].toObject();
}

/// A class 1 projector that is in a power state, and tells two inputs of one name.
ScriptedPjLink::Script Projector(const std::string& power) {
  return [power](const std::string& request) -> std::string {
    if (request == "POWR ?") return power;
    if (request == "CLSS ?") return "1";
    if (request == "INST ?") return "11 31 32";
    if (request == "ERST ?") return "000000";
    if (request == "LAMP ?") return "12 0";
    if (power != "1") return "ERR3";
    if (request == "INPT ?") return "31";
    if (request == "AVMT ?") return "30";
    return request.ends_with('?') ? "ERR1" : "OK";
  };
}

/// The same where one request is answered otherwise.
ScriptedPjLink::Script ProjectorBut(const std::string& request, const std::string& answer) {
  return [=, others = Projector("1")](const std::string& asked) {
    return asked == request ? answer : others(asked);
  };
}

/// A profile that names no inputs, so that the projector is asked for them.
class AnyProfile {
 public:
  AnyProfile() {
    Write(Path(), R"({"projectors": [{"name": "Any", "model": "M", "dialogType": 5,
        "modelCode": 30, "connection": {"network": {"address": "192.0.2.1", "port": 4352}}}]})");
  }
  QString Path() const { return folder_.filePath("any.json"); }
  /// With a time that is never over, unless the test waits for its end.
  Outcome Run(const ScriptedPjLink& projector, const QStringList& arguments,
              const char* timeOut = "60") const {
    return Acctl(QStringList{"--profiles", Path(), "--timeout", timeOut} + projector.At(arguments));
  }

 private:
  const QTemporaryDir folder_;
};

TEST(AcctlFile, NamesEveryMistakeByFileLineAndKeyAndSendsNothing) {
  const QTemporaryDir folder;
  const QString good = folder.filePath("good.json");
  ASSERT_EQ(Acctl({"save", kRoom, good}).exitCode, 0);
  const QByteArray text = Contents(good);
  const struct {
    const char* key;
    const char* member;
    const char* edited;
    const char* error;
    bool isSkipped;
  } kCases[] = {
      {"picture.tint", "key", R"("picture.tnit")",
       ":26: picture.tnit: no model has such a setting; did you mean picture.tint?", true},
      {"picture.tint", "value", "999",
       ":28: picture.tint: value 999 is not possible; possible are 97 to 159, shown as -31 to 31",
       true},
      {"picture.tint", "value", R"("5")", ":28: picture.tint: settings[3].value: must be a whole",
       false},
      {"picture.tint", "value", "128, \"value\": 129",
       ":28: picture.tint: settings[3].value stands here twice", false},
      {"picture.tint", "text", R"("2",)", ":27: picture.tint: text \"2\" is not that of value 128",
       true},
      {"picture.active-iris", "text", R"("Foo",)",
       ":47: picture.active-iris: text \"Foo\" is not that of value 0, which is \"Off\"", true},
      {"picture.active-iris", "value", "77",
       "value 77 is not possible; possible are 0 (Off), 16 (Theater), 17 (Presentation)", true},
      {"audio.volume", "source", "99,",
       ": audio.volume: source 99 does not exist; there are 0 (RGB1), ", true},
      {"picture.active-iris", "key", R"("picture.tint",)", "\"picture.tint\" stands here twice",
       false},
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
      {{"picture.brightness", "5", "picture.active-iris", "Theater"},
       "Projector 4-24: picture.active-iris: this model has no such setting"},
      {{"picture.brightness", "5", "picture.tint", "99"}, "picture.tint: '99' is not one of: "},
      {{"picture.brightness", "5", "picture.tint", "+1"},
       "Projector 5-30: picture.tint: '+1' from 31 is not one of: -31 to 31"}};
  for (const auto& [words, error] : kCases) {
    EXPECT_THAT(rooms.Run(QStringList{"set", kRooms} + words), Ends(2, HasSubstr(error)));
    EXPECT_EQ(rooms.Run(watched).output, before) << error;
  }
  EXPECT_THAT(rooms.Run({"reset", kRooms, "picture.tint", "picture.active-iris"}).exitCode, 2);
}

TEST(AcctlSet, StopsWhereItIsInterruptedAndDoesNotBeginWhatCannotBeReached) {
  const Simulator simulator({"--fault", "late 40"});
  const QString key = "image.position-h";
  EXPECT_THAT(Acctl(simulator.At({"set", kRoom, key, "70000"})),
              Ends(2, HasSubstr("'70000' is not one of: ")));
  EXPECT_THAT(Acctl(simulator.At({"set", kRoom, "picture.tint", "3", key, "60000"})),
              Ends(2, HasSubstr("'60000' is more than 4096 steps from ")));
  QProcess watch;
  watch.start(ACCTL_PROGRAM, simulator.At({"watch", kRoom, key, "--interval", "0.05"}));
  ASSERT_TRUE(watch.waitForReadyRead(30'000));
  const auto interrupt = [&](const QStringList& arguments) {
    QProcess process;
    process.start(ACCTL_PROGRAM, simulator.At(arguments));
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
  const Outcome set = interrupt({"--json", "set", kRoom, key, "+100"});
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
  const Outcome far = Acctl(simulator.At({"--json", "apply", file, kRoom}));
  EXPECT_THAT(far, Ends(1, HasSubstr(": not sent, it is more than 4096 steps away\n")));
  EXPECT_EQ(Entry(far)["notDone"][0]["key"], key);
  write("120");
  const Outcome apply = interrupt({"--json", "apply", file, kRoom});
  EXPECT_THAT(apply, isStopped);
  EXPECT_EQ(Entry(apply)["notDone"][0]["key"], key);
  watch.terminate();
  EXPECT_EQ(Finish(watch).exitCode, 0);
}

TEST(AcctlPjLink, TellsStandbyAsAStateAndNotAsFailures) {
  const AnyProfile any;
  const QTemporaryDir folder;
  const QString kept = folder.filePath("kept.json");
  Write(kept, "precious");
  const std::tuple<const char*, const char*, const char*, const char*> kStates[] = {
      {"0", "Standby", "in standby", "standby"},
      {"2", "Cooling Down", "cooling down", "coolingDown"},
      {"3", "Warming Up", "warming up", "warmingUp"}};
  for (const auto& [power, text, rest, member] : kStates) {
    ScriptedPjLink projector(Projector(power));
    const std::string left = std::string("acctl: Any: ") + rest + ", left out: ";
    const Outcome status = any.Run(projector, {"status", "Any"});
    EXPECT_THAT(status, Ends(0, AllOf(StartsWith(left), HasSubstr("status.blank"))));
    EXPECT_EQ(std::ranges::count(status.errors, '\n'), 1);
    EXPECT_THAT(status.output, AllOf(HasSubstr(text), HasSubstr("12 h\n")));
    const Outcome get = any.Run(projector, {"--json", "get", "Any", "status.*"});
    EXPECT_EQ(get.exitCode, 0);
    EXPECT_EQ(Entry(get)["power"], member);
    EXPECT_TRUE(Entry(get)["unread"].toArray().contains("status.mute"));
    ScriptedPjLink asked(Projector(power));
    EXPECT_THAT(any.Run(asked, {"get", "Any", "status.mute"}), Ends(0, StartsWith(left)));
    EXPECT_EQ(asked.Count("AVMT ?"), 1);
    EXPECT_EQ(asked.Count("POWR ?"), 1);
    EXPECT_THAT(any.Run(projector, {"save", "Any", kept}),
                Ends(0, AllOf(StartsWith(left), HasSubstr("nothing was written"))));
    EXPECT_EQ(Contents(kept), "precious");
  }
  ScriptedPjLink projector(Projector("0"));
  EXPECT_THAT(any.Run(projector, {"set", "Any", "other.mute", "on"}),
              Ends(1, HasSubstr("other.mute: refused, the projector is in standby\n")));
}

TEST(AcctlPjLink, OffersOnlyWhatTheProtocolHasAndTellsInputsOfOneNameApart) {
  const AnyProfile any;
  ScriptedPjLink projector([others = Projector("1")](const std::string& request) {
    return request == "INST ?" ? "31 32" : others(request);
  });
  EXPECT_THAT(
      any.Run(projector, {"settings", "Any", "--brief"}).output,
      AllOf(HasSubstr("other.mute\n"), Not(HasSubstr("audio.")), Not(HasSubstr("picture."))));
  EXPECT_THAT(any.Run(projector, {"settings", "Any", "--brief", "--for", "reset"}).output, "");
  EXPECT_THAT(any.Run(projector, {"get", "Any", "audio.*"}),
              Ends(0, "acctl: Any: audio.*: skipped, PJLink does not have it\n"));
  EXPECT_THAT(any.Run(projector, {"set", "Any", "picture.tint", "1"}),
              Ends(2, "acctl: Any: picture.tint: PJLink does not have it\n"));
  // Class 1 tells no names; "Digital 2" is one input's alone.
  EXPECT_THAT(any.Run(projector, {"settings", "Any"}).output, HasSubstr("Digital 1 (31), Dig"));
  EXPECT_THAT(any.Run(projector, {"get", "Any", "status.input-source"}).output,
              HasSubstr("  Digital 1 (31)\n"));
  EXPECT_EQ(any.Run(projector, {"set", "Any", "other.input-source", "digital 2"}, "3").exitCode, 0);
  EXPECT_EQ(projector.Count("INPT 32"), 1);

  const QTemporaryDir folder;
  const QString named = folder.filePath("named.json");
  Write(named, R"({"projectors": [{"name": "Any", "model": "M", "dialogType": 5, "modelCode": 30,
      "mySources": [{"name": "HDMI", "value": 31}, {"name": "hdmi", "value": 32}],
      "connection": {"network": {"address": "192.0.2.1", "port": 4352}}}]})");
  const auto run = [&](const QStringList& arguments) {
    return Acctl(QStringList{"--profiles", named} + projector.At(arguments));
  };
  EXPECT_THAT(run({"get", "Any", "other.input-source"}).output, HasSubstr("  HDMI (31)\n"));
  EXPECT_THAT(run({"set", "Any", "other.input-source", "HDMI"}),
              Ends(2, HasSubstr("'HDMI' is not one of: HDMI (31), hdmi (32)\n")));
  EXPECT_THAT(run({"set", "Any", "other.input-source", "hdmi (31)"}), Ends(0, ""));
  EXPECT_THAT(run({"set", "Any", "other.input-source", "31"}), Ends(0, ""));
}

TEST(AcctlPjLink, ChecksAndRunsACommandForSeveralProjectorsOverOneConnectionEach) {
  ScriptedPjLink one(Projector("1")), other(Projector("1"));
  const QTemporaryDir folder;
  const QString both = folder.filePath("both.json");
  const auto profile = [](const char* name, const ScriptedPjLink& projector) {
    return QByteArray(R"({"name": ")") + name +
           R"(", "model": "M", "dialogType": 5, "modelCode": 30,
               "link": "pjlink", "connection": {"network": {"address": "127.0.0.1", "port": )" +
           QByteArray::number(projector.Port()) + "}}}";
  };
  Write(both, R"({"projectors": [)" + profile("A", one) + ", " + profile("B", other) + "]}");
  EXPECT_THAT(
      Acctl({"--profiles", both, "--timeout", "60", "set", "?", "other.input-source", "31"}),
      Ends(0, ""));
  for (ScriptedPjLink* const projector : {&one, &other}) {
    EXPECT_EQ(projector->Count("INPT 31"), 1);
    EXPECT_EQ(projector->Connections(), 1);
  }
}

TEST(AcctlPjLink, StepsTheVolumeThatNobodyCanRead) {
  int volume = 1;
  ScriptedPjLink projector([&volume, others = Projector("1")](const std::string& request) {
    if (request == "CLSS ?") return std::string("2");
    if (request == "SVOL 1") return std::string(++volume > 3 ? "ERR2" : "OK");
    return others(request);
  });
  const auto set = [&](const char* value) {
    return Acctl(projector.At({"set", "Projector 4-24", "setup.volume", value}));
  };
  EXPECT_THAT(set("+2"), Ends(0, ""));
  EXPECT_THAT(set("+2"), Ends(1, HasSubstr("setup.volume: refused; 0 of 2 steps accepted\n")));
  EXPECT_THAT(set("-2"), Ends(0, ""));
  EXPECT_EQ(projector.Count("SVOL 0"), 2);
  EXPECT_THAT(set("5"), Ends(2, HasSubstr("setup.volume: '5' is no step like +1 or -1")));
  EXPECT_THAT(set("+4097"), Ends(2, HasSubstr("'+4097' is more than 4096 steps")));
}

TEST(AcctlPjLink, StopsSteppingWhereItIsInterrupted) {
  QProcess process;
  ScriptedPjLink projector([&process](const std::string& request) -> std::string {
    if (request == "CLSS ?") return "2";
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    return "OK";
  });
  process.start(ACCTL_PROGRAM, projector.At({"set", "Projector 4-24", "setup.volume", "+4000"}));
  EXPECT_THAT(Finish(process), Ends(128 + SIGTERM, HasSubstr("setup.volume: stopped, ")));
}

TEST(AcctlPjLink, TellsAcceptedAndNotYetSoBusyAndUnconfirmedApart) {
  constexpr const char* kTimeOut = "3";
  const AnyProfile any;
  const QStringList set{"--json", "set", "Any", "other.mute", "on"};
  const auto outcome = [&](ScriptedPjLink::Script script, int exitCode, const char* error) {
    ScriptedPjLink projector(std::move(script));
    const Outcome run = any.Run(projector, set, kTimeOut);
    EXPECT_THAT(run, Ends(exitCode, HasSubstr(error)));
    const QJsonValue change = Entry(run)["changes"][0];
    EXPECT_THAT(
        std::string("acctl: Any: other.mute: ") + change["reason"].toString().toStdString() + '\n',
        run.errors);
    return change["outcome"].toString().toStdString();
  };
  EXPECT_EQ(outcome(Projector("1"), 0, "accepted, but not so yet, it is Off\n"), "pending");
  EXPECT_EQ(outcome(ProjectorBut("AVMT 21", "ERR3"), 1, "refused, the projector is busy\n"),
            "busy");
  EXPECT_EQ(outcome(ProjectorBut("AVMT 21", "ERR2"), 1, "refused, it is Off\n"), "refused");
  bool isGone = false;
  const auto dies = [others = Projector("1"), &isGone](const std::string& request) {
    isGone = isGone || request == "AVMT 21";
    return isGone ? "hang up" : others(request);
  };
  EXPECT_EQ(outcome(dies, 3, ", it may have been changed\n"), "unconfirmed");
  const auto fallsSilent = [](const std::string& request) {
    return request == "AVMT ?" ? "hang up" : "OK";
  };
  EXPECT_EQ(outcome(fallsSilent, 3, "accepted, but no answer (connection lost)\n"), "unconfirmed");
  bool wasLost = false;
  const auto loses = [others = Projector("1"), &wasLost](const std::string& request) {
    if (request == "AVMT ?" && wasLost) return std::string("31");
    const bool isFirst = request == "AVMT 21" && !std::exchange(wasLost, true);
    return isFirst ? "hang up" : others(request);
  };
  ScriptedPjLink losing(loses);
  EXPECT_THAT(any.Run(losing, set, kTimeOut), Ends(0, ""));
  EXPECT_EQ(losing.Count("AVMT 21"), 2);

  ScriptedPjLink stepped(ProjectorBut("AVMT 21", "ERR2"));
  EXPECT_EQ(any.Run(stepped, {"set", "Any", "other.mute", "+1"}).exitCode, 1);
  EXPECT_EQ(stepped.Count("AVMT ?"), 2);  // where it begins, and what came of it

  const QTemporaryDir folder;
  const QString file = folder.filePath("mute.json");
  Write(file, R"({"format": "advanced-control-settings", "version": 1,
      "model": {"name": "M", "dialogType": 5, "modelCode": 30},
      "settings": [{"key": "other.mute", "value": 1}]})");
  ScriptedPjLink late(Projector("1"));
  const Outcome pending = any.Run(late, {"--json", "apply", file, "Any"}, kTimeOut);
  EXPECT_THAT(pending, Ends(0, HasSubstr("accepted, but not so yet: other.mute\n")));
  EXPECT_EQ(Entry(pending)["pending"][0]["key"], "other.mute");
  ScriptedPjLink busy(ProjectorBut("AVMT 21", "ERR3"));
  EXPECT_EQ(Entry(any.Run(busy, {"--json", "apply", file, "Any"}, kTimeOut))["busy"][0]["key"],
            "other.mute");
}

TEST(AcctlPjLink, TellsInputsThatWereNotToldAsNotReadWithExitCode3) {
  const AnyProfile any;
  const QTemporaryDir folder;
  const QString file = folder.filePath("good.json");
  ScriptedPjLink whole(Projector("1"));
  ASSERT_THAT(any.Run(whole, {"save", "Any", file}), Ends(0, ""));
  ScriptedPjLink projector(ProjectorBut("INST ?", "ERR4"));
  const auto isNotRead = Ends(3, HasSubstr("other.input-source: not read, "));
  EXPECT_THAT(any.Run(projector, {"save", "Any", folder.filePath("new.json")}), isNotRead);
  const Outcome diff = any.Run(projector, {"--json", "diff", "Any", file});
  EXPECT_THAT(diff, isNotRead);
  EXPECT_EQ(Entry(diff)["notDone"][0]["key"], "other.input-source");
  EXPECT_THAT(any.Run(projector, {"apply", file, "Any"}), isNotRead);
  EXPECT_THAT(any.Run(projector, {"set", "Any", "other.input-source", "31"}), isNotRead);
  EXPECT_EQ(projector.Count("INPT 31"), 0);
  // The class is remembered, so that it is the first thing that is asked.
  ScriptedPjLink silent(ProjectorBut("INST ?", ""));
  ASSERT_THAT(any.Run(silent, {"get", "Any", "status.input-source"}), Ends(0, ""));
  EXPECT_THAT(any.Run(silent, {"set", "Any", "other.input-source", "31"}, "3"), isNotRead);
}

}  // namespace
