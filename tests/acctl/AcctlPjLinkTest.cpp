// What the program says of projectors behind PJLink that rest, take their time or refuse, and of
// what the protocol lacks.

#include <tuple>
#include <utility>

#include <QJsonArray>

#include "tests/acctl/ScriptedPjLink.h"

namespace {

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

/// A file with the profile "Any".
struct AnyProfile {
  AnyProfile() { Write(Path(), kAnyProfile); }
  QString Path() const { return folder.filePath("any.json"); }
  /// With a time that is never over, unless the test waits for its end.
  Outcome Run(const ScriptedPjLink& projector, const QStringList& arguments,
              const char* timeOut = "60") const {
    return Acctl(QStringList{"--profiles", Path(), "--timeout", timeOut} + projector.At(arguments));
  }

  const QTemporaryDir folder{};
};

TEST(AcctlPjLink, TellsStandbyAsAStateAndNotAsFailures) {
  const AnyProfile any;
  const QString kept = any.folder.filePath("kept.json");
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
    EXPECT_THAT(any.Run(projector, {"save", "--force", "Any", kept}),
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
  // Class 1 reports no names; only one input is called "Digital 2".
  EXPECT_THAT(any.Run(projector, {"settings", "Any"}).output, HasSubstr("Digital 1 (31), Dig"));
  EXPECT_THAT(any.Run(projector, {"get", "Any", "status.input-source"}).output,
              HasSubstr("  Digital 1 (31)\n"));
  EXPECT_EQ(any.Run(projector, {"set", "Any", "other.input-source", "digital 2"}, "3").exitCode, 0);
  EXPECT_EQ(projector.Count("INPT 32"), 1);

  const QString named = any.folder.filePath("named.json");
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

  ScriptedPjLink alike([others = Projector("1")](const std::string& request) {
    if (request == "CLSS ?") return std::string("2");
    return request.starts_with("INNM") ? "HDMI" : others(request);
  });
  const std::tuple<const char*, const char*, const char*> kConditions[] = {
      {"input=hdmi", "On\n", ""},
      {"input!=HDMI", "", ""},
      {"input!=hdmi-32", "On\n", ""},
      {"input!=hdmy", "On\n", "acctl: --where input: 'hdmy' is not one of: HDMI (11) (hdmi-11), "}};
  for (const auto& [condition, output, error] : kConditions) {
    const Outcome chosen =
        any.Run(alike, {"get", "Any", "power", "-o", "value", "--where", condition});
    EXPECT_THAT(chosen, Ends(0, StartsWith(error))) << condition;
    EXPECT_EQ(chosen.output, output) << condition;
  }
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
  EXPECT_THAT(set("5"), Ends(2, HasSubstr("setup.volume: '5' is not a step such as +1 or -1")));
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

TEST(AcctlPjLink, TellsPendingBusyAndUnconfirmedApart) {
  constexpr const char* kTimeOut = "3";
  const AnyProfile any;
  const QStringList set{"--json", "set", "Any", "other.mute", "on"};
  bool isGone = false;
  const auto dies = [others = Projector("1"), &isGone](const std::string& request) {
    isGone = isGone || request == "AVMT 21";
    return isGone ? "hang up" : others(request);
  };
  bool wasSent = false;
  const auto fallsSilent = [others = Projector("1"), &wasSent](const std::string& request) {
    wasSent = wasSent || request == "AVMT 21";
    if (request == "AVMT 21") return std::string("OK");
    return request == "AVMT ?" && wasSent ? "hang up" : others(request);
  };
  bool wasLost = false;
  const auto loses = [others = Projector("1"), &wasLost](const std::string& request) {
    if (request == "AVMT ?" && wasLost) return std::string("31");
    const bool isFirst = request == "AVMT 21" && !std::exchange(wasLost, true);
    return isFirst ? "hang up" : others(request);
  };
  const QString file = any.folder.filePath("mute.json");
  Write(file, R"({"format": "advanced-control-settings", "version": 1,
      "model": {"name": "M", "dialogType": 5, "modelCode": 30},
      "settings": [{"key": "other.mute", "value": 1}]})");
  const QStringList apply{"--json", "apply", file, "Any"};

  std::vector<std::jthread> runs;  // most of them wait for the time-out
  const auto expect = [&](const ScriptedPjLink::Script& script, int exitCode, const char* error,
                          const char* outcome) {
    runs.emplace_back([=, &any] {
      ScriptedPjLink projector(script);
      const Outcome run = any.Run(projector, set, kTimeOut);
      EXPECT_THAT(run, Ends(exitCode, HasSubstr(error)));
      const QJsonValue change = Entry(run)["changes"][0];
      EXPECT_EQ(change["outcome"], outcome);
      EXPECT_EQ("acctl: Any: other.mute: " + change["reason"].toString().toStdString() + '\n',
                run.errors);
    });
  };
  expect(Projector("1"), 0, "accepted, but not so yet, it is Off\n", "pending");
  expect(ProjectorBut("AVMT 21", "ERR3"), 1, "refused, the projector is busy\n", "busy");
  expect(ProjectorBut("AVMT 21", "ERR2"), 1, "refused, it is Off\n", "refused");
  expect(dies, 3, ", it may have been changed\n", "unconfirmed");
  expect(fallsSilent, 3, "accepted, but not confirmed: no answer (connection lost)\n",
         "unconfirmed");
  runs.emplace_back([&] {
    ScriptedPjLink losing(loses);
    EXPECT_THAT(any.Run(losing, set, kTimeOut), Ends(0, ""));
    EXPECT_EQ(losing.Count("AVMT 21"), 2);
  });
  runs.emplace_back([&] {
    ScriptedPjLink stepped(ProjectorBut("AVMT 21", "ERR2"));
    EXPECT_EQ(any.Run(stepped, {"set", "Any", "other.mute", "+1"}).exitCode, 1);
    EXPECT_EQ(stepped.Count("AVMT ?"), 2);  // where it begins, and what came of it
  });
  runs.emplace_back([&] {
    ScriptedPjLink late(Projector("1"));
    const Outcome pending = any.Run(late, apply, kTimeOut);
    EXPECT_THAT(pending, Ends(0, HasSubstr("accepted, but not so yet: other.mute\n")));
    EXPECT_EQ(Entry(pending)["pending"][0]["key"], "other.mute");
  });
  runs.emplace_back([&] {
    ScriptedPjLink busy(ProjectorBut("AVMT 21", "ERR3"));
    EXPECT_EQ(Entry(any.Run(busy, apply, kTimeOut))["busy"][0]["key"], "other.mute");
  });
}

TEST(AcctlPjLink, TellsInputsThatWereNotToldAsNotReadWithExitCode3) {
  const AnyProfile any;
  const QString file = any.folder.filePath("good.json");
  ScriptedPjLink whole(Projector("1"));
  ASSERT_THAT(any.Run(whole, {"save", "Any", file}), Ends(0, ""));
  ScriptedPjLink projector(ProjectorBut("INST ?", "ERR4"));
  const auto isNotRead = Ends(3, HasSubstr("other.input-source: not read, "));
  EXPECT_THAT(any.Run(projector, {"save", "Any", any.folder.filePath("new.json")}), isNotRead);
  const Outcome diff = any.Run(projector, {"--json", "diff", "Any", file});
  EXPECT_THAT(diff, isNotRead);
  EXPECT_EQ(Entry(diff)["notDone"][0]["key"], "other.input-source");
  EXPECT_THAT(any.Run(projector, {"apply", file, "Any"}), isNotRead);
  EXPECT_THAT(any.Run(projector, {"set", "Any", "other.input-source", "31"}), isNotRead);
  EXPECT_THAT(any.Run(projector, {"get", "Any", "power", "--where", "input!=hdmi"}),
              Ends(3, HasSubstr("input: not read, ")));
  EXPECT_EQ(projector.Count("INPT 31"), 0);
  // The class is remembered, so that it is the first thing that is asked.
  ScriptedPjLink silent(ProjectorBut("INST ?", ""));
  ASSERT_THAT(any.Run(silent, {"get", "Any", "status.input-source"}), Ends(0, ""));
  EXPECT_THAT(any.Run(silent, {"set", "Any", "other.input-source", "31"}, "3"), isNotRead);
}

}  // namespace
