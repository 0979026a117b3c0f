// Faults of real PJLink projectors, in simulated time: nothing here waits.

#include <functional>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/protocol/PjLinkInputs.h"
#include "tests/device/BadProjector.h"
#include "tests/device/Replies.h"

namespace {

using namespace std::chrono_literals;
using Op = PjtOperation;
namespace Code = CommandCode;

const PjtCommand kGetInput = Get(Code::InputSource);
const PjtCommand kSetInput = Set(Code::InputSource, 32);
const PjtCommand kOn = Do(Op::SetPowerOn);

/// A reply as one word.
std::string Word(const PjtCommand& command, const PjtReply& reply) {
  if (!reply.answered) return reply.unsent ? "unsent" : "unanswered";
  if (reply.busy) return "busy";
  if (!reply.offered) return "not offered";
  if (!IsSuccess(command.operation, reply.result)) return "refused";
  if (reply.pending) return "pending";
  return IsRead(command.operation) ? std::to_string(static_cast<std::uint16_t>(reply.value))
                                   : "done";
}

constexpr const char* kGarbled = "answers are not understood";

using Misbehaviour = std::function<void(BadProjector&)>;

Misbehaviour Loses(const char* command, int replies) {
  return [=](BadProjector& it) { it.loses[command] = replies; };
}
Misbehaviour Refuses(const char* command, int times) {
  return [=](BadProjector& it) { it.refuses[command] = times; };
}
Misbehaviour Says(const char* command, const char* state) {
  return [=](BadProjector& it) { it.states[command] = state; };
}
Misbehaviour Follows(std::chrono::milliseconds time) {
  return [=](BadProjector& it) { it.follows = time; };
}
Misbehaviour Both(const Misbehaviour& one, const Misbehaviour& other) {
  return [=](BadProjector& it) { one(it), other(it); };
}

struct Case {
  const char* name;
  Misbehaviour misbehaves;
  PjtCommand command;
  const char* comesTo;
  const char* requests;
};

struct KnownSession : SteppedSession {
  KnownSession() { session.RememberClass('2'); }
};

void Expect(const Case& one, SteppedSession& stepped) {
  SCOPED_TRACE(one.name);
  one.misbehaves(stepped.projector);
  const std::string word = Word(one.command, stepped.Do(one.command));
  EXPECT_EQ(word == "unanswered" ? ConnectionStateText(stepped.session.State()) : word,
            one.comesTo);
  EXPECT_EQ(stepped.projector.TakeRequests(), one.requests);
}

/// Each as often with one session, which forgets all of it before the next time.
template <int times = 1>
void ExpectEach(const std::vector<Case>& cases) {
  for (const Case& one : cases) {
    KnownSession stepped;
    for (int i = 0; i < times; ++i, stepped.now += 1h) Expect(one, stepped);
  }
}

TEST(PjLinkSession, UnderstandsEveryFormOfALine) {
  using namespace std::string_literals;
  const auto wraps = [](const std::string& before, const std::string& after) {
    return [=](BadProjector& it) {
      it.before = before;
      it.after = after;
      it.greeting = before + "PJLINK 0" + after;
    };
  };
  ExpectEach<2>({
      {"zero bytes around", wraps("\0"s, "\r\0"s), kGetInput, "31", "INPT"},
      {"a lone CR before", wraps("\r", "\r"), kGetInput, "31", "INPT"},
      {"CR LF", wraps("", "\r\n"), kGetInput, "31", "INPT"},
      {"LF alone", wraps("", "\n"), kGetInput, "31", "INPT"},
      {"class 1 in each reply", [](auto& it) { it.replyClass = '1'; }, kGetInput, "31", "INPT"},
      {"a long lamp time", [](auto& it) { it.facts["LAMP"] = "70000 0"; }, Get(Code::LampTime),
       "65535", "LAMP"},
      {"hours alone", [](auto& it) { it.facts["LAMP"] = "123456789"; }, Get(Code::LampTime),
       "65535", "LAMP"},
      {"warming up", Says("POWR", "3"), Get(Code::RunningState), "1", "POWR"},
      {"no value", Says("INPT", "x"), kGetInput, "refused", "INPT, INPT"},
  });
  for (const auto& [told, known] :
       {std::pair("1", '1'), {"2", '2'}, {"9", '2'}, {"Class 1", '1'}, {"ERR1", '1'}, {"A", '1'}}) {
    SteppedSession stepped;
    stepped.projector.facts["CLSS"] = told;
    EXPECT_EQ(stepped.Ask(*PjLinkInputs::NameOf(31)).kind,
              known == '1' ? PjLinkResult::Kind::None : PjLinkResult::Kind::Text);
    EXPECT_EQ(stepped.session.ProtocolClass(), known) << told;
    stepped.projector.TakeRequests();
    stepped.Do(kGetInput);
    EXPECT_EQ(stepped.projector.TakeRequests(), "INPT") << "known once and for all";
  }
  SteppedSession stepped;
  stepped.projector.facts["INNM31"] = std::string(1500, 'x');
  EXPECT_EQ(stepped.Ask(*PjLinkInputs::NameOf(31)).text.size(), 1500);
}

TEST(PjLinkSession, RepeatsALostRequestOnlyIfThatIsSafe) {
  const auto breaks = [](const char* command, int times) {
    return Both(Loses(command, times), [](BadProjector& it) { it.dropsUnanswered = true; });
  };
  const auto distorts = [](const char* command, int times) {
    return [=](BadProjector& it) { it.distorts[command] = times; };
  };
  ExpectEach({
      {"no reply", Loses("INPT", 1), kGetInput, "no answer", "INPT"},
      {"the connection breaks", breaks("INPT", 1), kGetInput, "31", "INPT, INPT"},
      {"it breaks twice", breaks("INPT", 2), kGetInput, "connection lost", "INPT, INPT"},
      {"it breaks with a change", breaks("INPT", 1), kSetInput, "connection lost", "INPT 32"},
      {"it breaks with a step", breaks("SVOL", 1), Inc(Code::Volume), "connection lost", "SVOL 1"},
      {"a garbled reply", distorts("INPT", 1), kGetInput, "31", "INPT, INPT"},
      {"a garbled reply to a change", distorts("INPT", 1), kSetInput, kGarbled, "INPT 32"},
  });
  SteppedSession stepped;
  Expect({"the class once", Loses("CLSS", 1), kGetInput, "31", "CLSS, CLSS, INPT"}, stepped);
  KnownSession garbled;
  Expect({"two garbled replies", distorts("INPT", 2), kGetInput, kGarbled, "INPT, INPT"}, garbled);
  EXPECT_EQ(garbled.now - SteppedSession().now, 20ms) << "no third is waited for";
  Expect({"maybe another projector", Loses("INPT", 1), kGetInput, "no answer", "CLSS, INPT"},
         garbled);
  Expect({"the class is kept", Loses("INPT", 0), kGetInput, "31", "INPT"}, garbled);
  SteppedSession lost;
  Expect({"the class twice", Loses("CLSS", 2), kSetInput, "unsent", "CLSS, CLSS"}, lost);
  Expect({"and once", Loses("CLSS", 1), kGetInput, "31", "CLSS, CLSS, INPT"}, lost);

  lost.projector.loses["INST"] = 1;
  PjLinkInputs inputs;
  EXPECT_TRUE(inputs.Take(lost.Ask(*inputs.Next())));
  lost.projector.loses["INNM"] = 2;
  EXPECT_FALSE(inputs.Take(lost.Ask(*inputs.Next())));
  while (const auto question = inputs.Next()) EXPECT_TRUE(inputs.Take(lost.Ask(*question)));
  const std::vector<PjLinkInput> known{{31, "HDMI"}, {32, "HDMI"}, {510, "Office"}};
  EXPECT_EQ(inputs.Known(), known);
  const SourceList shared = SourcesOf(known, InputCodes::SharedNames);
  EXPECT_EQ(NameText(shared.names[1]), "HDMI (32)");
  EXPECT_EQ(NameText(shared.names[2]), "Office");
  EXPECT_EQ(std::pair(shared.firstValues[2], shared.secondValues[2]), std::pair(510, 510));
  EXPECT_EQ(NameText(SourcesOf({{31, std::string(99, 'x')}}, InputCodes::AllNames).names[0]),
            std::string(59, 'x') + " (31)");
}

TEST(PjLinkSession, WaitsUntilAChangeTakesEffect) {
  ExpectEach({
      {"at once", Follows(0ms), kSetInput, "done", "INPT 32, INPT"},
      {"soon", Follows(300ms), kSetInput, "done", "INPT 32, INPT, INPT, INPT"},
      {"too late", Follows(3s), kSetInput, "pending",
       "INPT 32, INPT, INPT, INPT, INPT, INPT, INPT"},
      {"mute", Follows(100ms), Do(Op::SetMute, 1), "done", "AVMT 21, AVMT, AVMT"},
      {"freeze", Follows(250ms), Do(Op::SetFreeze, 1), "done", "FREZ 1, FREZ, FREZ, FREZ"},
      {"warming up is on", Both(Says("POWR", "3"), Follows(1h)), kOn, "done", "POWR 1, POWR"},
      {"a garbled state", Both(Says("POWR", "x"), Follows(50ms)), Do(Op::SetPowerOff), "done",
       "POWR 0, POWR, POWR"},
      {"a state that nobody tells", Both(Says("FREZ", "ERR1"), Follows(1h)), Do(Op::SetFreeze, 1),
       "done", "FREZ 1, FREZ"},
      {"a step has no state", Follows(3s), Inc(Code::Volume), "done", "SVOL 1"},
  });
  KnownSession stepped;
  Expect({"a change", Follows(0ms), kSetInput, "done", "INPT 32, INPT"}, stepped);
  Expect({"it was just read", Follows(0ms), kGetInput, "32", ""}, stepped);
  Expect({"but only once", Follows(0ms), kGetInput, "32", "INPT"}, stepped);
  stepped.Do(kSetInput);
  stepped.now += 2s;
  Expect({"long ago", Says("INPT", "5A"), kGetInput, "510", "INPT 32, INPT, INPT"}, stepped);

  KnownSession quick;
  quick.projector.follows = 50ms;
  EXPECT_EQ(Word(kSetInput, quick.Do(kSetInput)), "done");
  EXPECT_EQ(quick.now - SteppedSession().now, 130ms) << "three replies and a pause";
  for (const auto& command : {kOn, kSetInput}) quick.Do(command);
  EXPECT_EQ(quick.session.Power(), PowerState::On);

  SteppedSession patient(60s);
  Follows(20s)(patient.projector);
  EXPECT_EQ(Word(kSetInput, patient.Do(kSetInput)), "done");
  EXPECT_EQ(patient.now - SteppedSession().now, 20s + 860ms) << "it is seen soon after it is so";
}

TEST(PjLinkSession, AsksABusyProjectorAgainUntilTheTimeOut) {
  const auto refuses = [](int times, const char* power) {
    return Both(Refuses("INPT", times), Says("POWR", power));
  };
  ExpectEach<2>({
      {"it switches", refuses(2, "1"), kGetInput, "31", "INPT, POWR, INPT, INPT"},
      {"a change while it warms up", refuses(2, "3"), kSetInput, "done",
       "INPT 32, POWR, INPT 32, INPT 32, INPT"},
      {"it is busy for long", refuses(99, "1"), kGetInput, "busy",
       "INPT, POWR, INPT, INPT, INPT, INPT, INPT"},
      {"a read in standby", refuses(99, "0"), kGetInput, "busy", "INPT, POWR"},
      {"a change in standby", refuses(99, "0"), kSetInput, "busy", "INPT 32, POWR"},
      {"a read while it warms up", refuses(99, "3"), kGetInput, "busy", "INPT, POWR"},
      {"on while it cools down", Both(Says("POWR", "2"), Refuses("POWR", 1)), kOn, "done",
       "POWR 1, POWR, POWR 1, POWR"},
      {"on in standby", Both(Says("POWR", "0"), Refuses("POWR", 1)), kOn, "done",
       "POWR 1, POWR, POWR 1, POWR"},
      {"a garbled power state", refuses(1, "x"), kGetInput, "31", "INPT, POWR, INPT"},
      {"no power state", Both(Refuses("INPT", 1), Loses("POWR", 1)), kGetInput, "busy",
       "INPT, POWR"},
  });
  for (const auto& [pause, requests] :
       {std::pair(989ms, "POWR, INPT, INPT, INPT"), {990ms, "POWR, INPT, POWR, INPT, INPT"}}) {
    KnownSession stepped;
    stepped.Do(Get(Code::RunningState));
    stepped.now += pause;
    refuses(2, "1")(stepped.projector);
    EXPECT_EQ(Word(kGetInput, stepped.Do(kGetInput)), "31");
    EXPECT_EQ(stepped.projector.TakeRequests(), requests);
  }
  KnownSession changed;
  changed.projector.refuses["INPT"] = 1;
  for (const auto& command : {Get(Code::RunningState), Get(Code::BlankState), Inc(Code::Volume),
                              Get(Code::Mute), kGetInput}) {
    changed.Do(command);
  }
  EXPECT_EQ(changed.projector.TakeRequests(), "POWR, AVMT, SVOL 1, AVMT, INPT, POWR, INPT")
      << "a change may have changed all that was told";
  for (const auto& [told, power] : {std::pair("0", PowerState::Standby),
                                    {"2", PowerState::CoolingDown},
                                    {"3", PowerState::WarmingUp}}) {
    KnownSession stepped;
    refuses(99, told)(stepped.projector);
    stepped.Do(kGetInput);
    EXPECT_EQ(stepped.session.Power(), power);
  }
}

TEST(PjLinkSession, HasTheWholeTimeForEachAnswerAndReconnectsAfterGrowingPauses) {
  const auto closesLate = [](auto& it) { it.closesAfterReply = 5ms; };
  ExpectEach({
      {"slow", [](auto& it) { it.answers = 1990ms; }, kSetInput, "done", "INPT 32, INPT"},
      {"too slow", [](auto& it) { it.answers = 2010ms; }, kSetInput, "no answer", "INPT 32"},
      {"closes after each reply, and needs a pause", [](auto& it) { it.CloseEachTime(200ms); },
       kSetInput, "done", "INPT 32, INPT"},
      {"closes a moment after each reply", closesLate, kSetInput, "done", "INPT 32, INPT"},
      {"lets nobody in", [](auto& it) { it.greeting = ""; }, kSetInput, "unsent", ""},
      {"wants a password", [](auto& it) { it.greeting = "PJLINK ERRA\r"; }, kSetInput, "unsent",
       ""},
      {"asks for none", [](auto& it) { it.facts = it.states = {}; }, kGetInput, "not offered",
       "INPT, CLSS, INPT"},
      {"has no mute", [](auto& it) { it.states.erase("AVMT"); }, Get(Code::Mute), "not offered",
       "AVMT"},
  });
  SteppedSession ending;
  Expect({"closes behind the class", closesLate, Inc(Code::Volume), "done", "CLSS, SVOL 1"},
         ending);
  Expect({"closes behind a step", closesLate, Inc(Code::Volume), "done", "SVOL 1"}, ending);

  SteppedSession stepped;
  const auto begin = stepped.now;
  for (const auto& command : {kGetInput, Inc(Code::Volume), kGetInput, Inc(Code::Volume)}) {
    stepped.Do(command);
  }
  EXPECT_EQ(stepped.projector.connections, 1);
  EXPECT_LT(stepped.now - begin, 200ms) << "it is waited for once";

  SteppedSession away;
  away.projector.gap = 1h;
  away.projector.Connect(away.now);
  away.projector.Close(away.now);
  const auto start = away.now;
  EXPECT_EQ(Word(kSetInput, away.Do(kSetInput)), "unsent");
  EXPECT_EQ(away.session.State(), ConnectionState::NotReachable);
  EXPECT_LE(away.now - start, SteppedSession::kLimits.connect);
  EXPECT_EQ(away.projector.attempts, 1 + 6) << "at 0, 50, 150, 350, 750 and 1550 ms";
}

TEST(PjLinkSession, OneSettingNeedsThreeExchangesAtFirstAndTwoLater) {
  const std::pair<PjtCommand, const char*> kCases[] = {
      {Get(Code::RunningState), "POWR"},   {kGetInput, "CLSS, INPT"},
      {Get(Code::Mute), "AVMT"},           {Get(Code::Freeze), "CLSS, FREZ"},
      {kSetInput, "CLSS, INPT 32, INPT"},  {Do(Op::SetMute, 0), "AVMT 20, AVMT"},
      {Inc(Code::Volume), "CLSS, SVOL 1"}, {Get(Code::Brightness), ""}};
  for (const auto& [command, requests] : kCases) {
    SteppedSession cold;
    cold.Do(command);
    EXPECT_EQ(cold.projector.TakeRequests(), requests);
    KnownSession warm;
    warm.Do(command);
    EXPECT_LE(warm.projector.requests.size(), 2);
  }
  for (const auto& [power, inputs] : {std::pair("1", "CLSS, INPT"), {"0", "CLSS, INPT, POWR"}}) {
    SteppedSession all;
    all.projector.states["POWR"] = power;
    if (*power == '0') all.projector.refuses = {{"INPT", 99}, {"AVMT", 99}, {"FREZ", 99}};
    all.session.KeepNext();
    for (const auto& command : {kGetInput, kGetInput}) all.Do(command);
    EXPECT_EQ(all.projector.TakeRequests(), inputs);
    all.Do(Get(Code::RunningState));
    for (int i = 0; i < 2; ++i) {
      for (const auto code : {Code::BlankState, Code::Mute, Code::Freeze}) all.Do(Get(code));
    }
    EXPECT_EQ(all.projector.TakeRequests(),
              std::string(*power == '0' ? "" : "POWR, ") + "AVMT, FREZ, AVMT, FREZ");
  }
  KnownSession other;
  other.projector.facts["CLSS"] = "1";
  other.projector.states.erase("FREZ");
  EXPECT_FALSE(other.Do(Get(Code::Freeze)).offered);
  EXPECT_EQ(other.projector.TakeRequests(), "FREZ, CLSS") << "what is remembered may be wrong";
}

}  // namespace
