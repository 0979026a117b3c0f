// The parts of the protocols alone: parameters, the projector's answers, and events at the wrong
// time.

#include "device/CommandCode.h"
#include "device/channels/PjLinkInputInquiry.h"
#include "device/protocol/PjLinkAttempts.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkLine.h"
#include "device/protocol/WireSession.h"
#include "simulator/FaultChannel.h"
#include "simulator/PjLinkProjectorSession.h"
#include "simulator/PjLinkResponder.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireResponder.h"
#include "tests/device/BadProjector.h"
#include "tests/device/Replies.h"

namespace {

using namespace std::chrono_literals;

TEST(PjLinkLine, ListsHaveSoMany) {
  using Lamps = std::vector<PjLink::Lamp>;
  EXPECT_EQ(PjLink::Lamps("70000 1 2 0 3"), (Lamps{{65535, true}, {2, false}, {3, {}}}));
  EXPECT_EQ(PjLink::Lamps("1 1 x 0"), Lamps());
  EXPECT_EQ(PjLink::Lamps("1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1").size(), 8);
  const std::vector<PjLinkInput> many(SourceList::kCapacity + 1, {310, "HDMI"});
  EXPECT_EQ(SourcesOf(many, InputCodes::AllNames).count, SourceList::kCapacity);
}

TEST(PjLinkInputs, AreAskedForOneByOne) {
  using Kind = PjLinkResult::Kind;
  PjLinkInputs inputs;
  inputs.SetPresent(31);
  inputs.SkipName();
  EXPECT_EQ(inputs.Next()->command, "INST") << "no name was asked for";
  const auto ask = [&](std::vector<PjLinkResult> results) {
    std::ranges::reverse(results);
    const auto asked = inputs.AskForAll([&](const PjLinkQuestion&) {
      PjLinkResult result = results.back();
      results.pop_back();
      return result;
    });
    EXPECT_TRUE(results.empty());
    return std::pair(asked.isComplete, asked.isLost);
  };
  EXPECT_EQ(ask({{Kind::NotNow}}), std::pair(false, false));
  EXPECT_EQ(ask({{Kind::Text, "31 32 33 34"}, {}, {Kind::NotNow}, {Kind::None}, {Kind::Text, "D"}}),
            std::pair(false, true));
  const std::vector<PjLinkInput> known{
      {31, "Digital 1"}, {32, "Digital 2"}, {33, "Digital 3"}, {34, "D"}};
  inputs.SkipName();
  EXPECT_TRUE(inputs.Take({Kind::Text, "nobody asked"}));
  EXPECT_EQ(inputs.Known(), known);
  EXPECT_TRUE(!PjLinkInputs::NameOf(7) && PjLinkInputs::Named(7, "").name.empty()) << "no input";
  EXPECT_EQ(PjLinkInputs::Named(31, std::string(200, 'x')).name.size(), 128);

  // The present input takes the last place if there is none left.
  inputs.Forget();
  inputs.SetPresent(49);
  std::vector<PjLinkResult> many(18, {Kind::None});
  many[0] = {Kind::Text, "11 12 13 14 15 16 17 18 19 21 22 23 24 25 26 27 28 49"};
  many[SourceList::kCapacity].kind = Kind::NotNow;
  EXPECT_EQ(ask(many), std::pair(false, false));
  EXPECT_TRUE(inputs.Known().size() == SourceList::kCapacity && !inputs.IsAnySkipped());
  EXPECT_EQ(inputs.Known().back(), (PjLinkInput{49, "Storage 9"}));
  EXPECT_EQ(inputs.Known()[14], (PjLinkInput{26, "Video 6"}));

  inputs.Remember({{7, "no PJLink"}, {31, "HDMI"}});
  EXPECT_EQ(inputs.Next().value().parameter, "?49") << "only the present one is missing";
}

TEST(PjLinkInputInquiry, ForgetsWhatAnotherProjectorHad) {
  PjLinkInputInquiry inquiry(1s, 3s);
  inquiry.Remember({}, '2');
  EXPECT_FALSE(inquiry.Report()) << "nothing is known";
  inquiry.Remember({{31, "HDMI"}}, '2');
  EXPECT_TRUE(inquiry.Report());
  inquiry.CheckClass({});
  EXPECT_EQ(inquiry.AllInputs().size(), 1U) << "its class is not known";
  inquiry.Inputs().SetPresent(32);
  const SessionTime now{1h};
  inquiry.Take({.wasAsked = true}, now);
  inquiry.CheckClass('1');
  EXPECT_TRUE(inquiry.AllInputs().empty());
  inquiry.Take({}, now);
  for (const char* told : {"32", "TV"}) inquiry.Take({PjLinkResult::Kind::Text, told}, now);
  inquiry.CheckClass('1');
  EXPECT_EQ(inquiry.AllInputs(), std::vector(1, PjLinkInput{32, "TV"}));
  inquiry.Inputs().SetPresent(33);
  inquiry.Take({}, now);
  EXPECT_TRUE(inquiry.NextQuestion(now + 1s)) << "a short pause again";
}

TEST(PjLinkAttempts, ALookUpThatRanOutOfTimeIsNotTheProblem) {
  PjLinkAttempts attempts;
  const SessionTime now{1h};
  attempts.Start(now + 1s, 50ms);
  EXPECT_EQ(attempts.Fail(ConnectionState::NotReachable, now), now + 50ms);
  EXPECT_FALSE(attempts.Fail(ConnectionState::NameUnknown, now + 50ms));
  EXPECT_EQ(attempts.Problem(), ConnectionState::NotReachable);
  attempts.Start(now + 1s, 50ms);
  attempts.Fail(ConnectionState::NameUnknown, now);
  EXPECT_EQ(attempts.Problem(), ConnectionState::NameUnknown) << "that was another request";
}

/// Gives the same reply to everything.
struct Parrot : ProjectorChannel {
  explicit Parrot(const PjtReply& said) : reply(said) {}
  PjtReply Execute(const PjtCommand&) override { return reply; }
  PjtReply reply;
};

TEST(Responders, SayWhatTheProjectorCannotDo) {
  constexpr PjtReply kSilence{.answered = false};
  constexpr PjtReply kOn{.result = 1, .value = 1};
  constexpr PjtReply kTwo{.result = 1, .value = 2};
  const std::tuple<PjtReply, const char*, const char*> cases[] = {
      {kSilence, "%1POWR ?", "ERR4"}, {kSilence, "%1POWR 1", "ERR4"}, {{}, "%1POWR ?", "ERR1"},
      {{}, "%1POWR 0", "ERR3"},       {kOn, "%2FREZ 2", "ERR2"},      {kOn, "%2SVOL 2", "ERR2"},
      {kTwo, "%1POWR 0", "ERR3"},     {kTwo, "%0POWR ?", "ERR1"},     {kOn, "%1AVMT 01", "ERR2"},
      {kTwo, "%2INNM 5A", "ERR2"},    {kTwo, "%2INNM ?5A", "AB"},     {kTwo, "%1INNM ?5A", "ERR1"}};
  for (const auto& [reply, request, answer] : cases) {
    PjLinkResponder responder(std::make_shared<Parrot>(reply), {.inputs = {{"5A", 7, "A\r\nB"}}});
    EXPECT_EQ(responder.Answer(request).value_or("").substr(7), answer) << request;
    EXPECT_FALSE(responder.Answer("%1POWR=1"));
  }
  const auto projector = std::make_shared<SimulatedProjector>();
  const auto refusing = std::make_shared<FaultChannel>(projector);
  refusing->SetFault(PjtOperation::SetBlank, {.kind = Fault::Kind::Refuse});
  EXPECT_EQ(PjLinkResponder(refusing, {}).Answer("%1AVMT 31"), "%1AVMT=ERR3");
  EXPECT_EQ(projector->CodeValue(CommandCode::Mute), 0) << "half of it is not done";

  projector->SetCodeValue(CommandCode::RunningState, 0);
  projector->SetPowerTimes(1h, 1h);
  PjLinkResponder warming(projector, {.inputs = std::vector(51, ServedInput{"31"})});
  EXPECT_EQ(warming.Answer("%1POWR 1"), "%1POWR=OK");
  EXPECT_EQ(warming.Answer("%1POWR ?"), "%1POWR=3");
  EXPECT_EQ(warming.Answer("%1INST ?")->size() + 1, PjLink::kLongestInputs);

  const std::string text(200, 'x');
  PjLinkResponder talkative(projector, {.texts = {{"NAME", text}, {"INF1", text}, {"SNUM", text}}});
  for (const auto& [question, longest] :
       {std::pair("%1NAME ?", 64), {"%1INF1 ?", 32}, {"%2SNUM ?", 128}}) {
    EXPECT_EQ(talkative.Answer(question)->size(), 7 + longest) << question;
  }

  SourceList sources{.count = 10};
  sources.firstValues = {20, 21, 22, 23, 24, 25, 26, 27, 28, 29};
  sources.names[9] = MakeNameSlot("Last");
  const std::vector<ServedInput> inputs = InputsOf(sources);
  EXPECT_EQ(inputs.at(8).code + inputs.at(9).code, "3951");
  EXPECT_EQ(inputs.back().source, 29);
  EXPECT_EQ(inputs.back().name, "Last");
  PjLinkProjectorSession session(talkative, "secret");
  session.Add("%1NAME ?\r%1NAME ?\r");
  EXPECT_EQ(session.Next().value().reply, "PJLINK ERRA\r");
  EXPECT_TRUE(session.IsOver() && !session.Next()) << "nobody may try a second password";

  using enum Wire::Status;
  Parrot silent(kSilence);
  WireResponder responder(silent);
  const std::pair<decltype(Wire::Frame::message), decltype(Wire::Frame::message)> frames[] = {
      {Wire::Request{}, Wire::Reply{NoHello}},
      {Wire::Hello{0, 0}, Wire::Welcome{0}},
      {Wire::Hello{2, 9}, Wire::Welcome{0}},
      {Wire::Hello{0, 9}, Wire::Welcome{1}},
      {Wire::Request{}, Wire::Reply{UnknownOperation}},
      {Wire::MakeRequest(Get(CommandCode::Mute)), Wire::Reply{Unanswered}}};
  for (const auto& [sent, answer] : frames) {
    std::string bytes;
    Wire::Append(bytes, {.sequence = 6, .message = Wire::Reply{}});  // is ignored
    Wire::Append(bytes, {.sequence = 7, .message = sent});
    Wire::Decoder decoder;
    decoder.Add(responder.Receive(bytes));
    EXPECT_EQ(decoder.Next(), (Wire::Frame{7, answer})) << sent.index();
  }
}

TEST(Sessions, EventsAtTheWrongTimeChangeNothing) {
  SteppedSession stepped;
  auto& connection = stepped.session.Connection();
  for (int connections = 1; connections <= 2; ++connections) {
    connection.Connected();
    connection.NotConnected(ConnectionState::NotReachable, stepped.now);
    if (connections == 1) connection.Received("%1POWR=0\r", stepped.now);
    EXPECT_EQ(stepped.Do(Get(CommandCode::RunningState)).value, 1);
    EXPECT_EQ(stepped.projector.connections, connections);
    connection.Closed(stepped.now);
    stepped.projector.Close(stepped.now);
  }
  EXPECT_EQ(stepped.Do(Get(CommandCode::RunningState)).value, 1);
  connection.Received(std::string(100'000, 'x'), stepped.now);
  EXPECT_EQ(stepped.session.State(), ConnectionState::Connected) << "nobody asked anything";
  EXPECT_EQ(stepped.Do(Get(CommandCode::RunningState)).value, 1);
  EXPECT_EQ(stepped.projector.connections, 4);
  for (const auto medium : {WireSession::Medium::Noisy, WireSession::Medium::Reliable}) {
    using Kind = SessionStep::Kind;
    const bool isNoisy = medium == WireSession::Medium::Noisy;
    WireSession wire(medium, {.connect = 1s, .answer = 1s}, 0);
    wire.Connected();
    wire.Received("noise");
    EXPECT_EQ(wire.Next({}).kind, Kind::Finished);
    wire.Begin(Get(CommandCode::Mute), {});
    EXPECT_EQ(wire.Next({}).kind, Kind::Connect);
    wire.Connected();
    wire.NotConnected(ConnectionState::NotReachable);
    wire.Received("noise");
    EXPECT_EQ(wire.Next({}).kind, isNoisy ? Kind::Send : Kind::Close);
  }
}

TEST(Sessions, AProjectorThatGreetsAndLeavesIsTriedAgainForAWhile) {
  for (const auto* const greeting : {"PJLINK 0\r", ""}) {
    PjLinkConnection connection("", {.connect = 2s});
    SessionTime now{1h};
    connection.Ask({'1', "POWR", "?"}, 2s, now);
    int attempts = 0;
    for (auto step = connection.Next(now);
         step.kind != SessionStep::Kind::Finished && attempts < 99; step = connection.Next(now)) {
      if (step.kind == SessionStep::Kind::Wait) now = step.until;
      if (step.kind != SessionStep::Kind::Connect) continue;
      ++attempts;
      connection.Received("on no connection", now);
      connection.Connected();
      connection.Received(greeting, now);
      connection.Closed(now);
    }
    EXPECT_EQ(attempts, 6) << "at 0, 50, 150, 350, 750 and 1550 ms";
    EXPECT_EQ(connection.State(), ConnectionState::Lost);
    EXPECT_FALSE(connection.Answer().sent);
  }
}

TEST(Sessions, AClassThatIsNotToldNowIsDoneWithout) {
  SteppedSession stepped;
  stepped.projector.facts["CLSS"] = "ERR3";
  EXPECT_EQ(stepped.Do(Get(CommandCode::InputSource)).value, 31);
  EXPECT_EQ(stepped.projector.TakeRequests(), "CLSS, INPT");
  EXPECT_FALSE(stepped.session.ProtocolClass());
  EXPECT_EQ(PjLinkKnownClass().ForRequest(PjLinkClass::Either), '1');
  EXPECT_EQ(PjLinkKnownClass().ForRequest(PjLinkClass::Second), '2');
}

TEST(Sessions, OnlyTheFirstWelcomeAndRepliesCount) {
  using Kind = SessionStep::Kind;
  WireSession wire(WireSession::Medium::Reliable, {.connect = 1s, .answer = 2s}, 7);
  const auto receive = [&](const std::vector<Wire::Frame>& frames) {
    std::string bytes;
    for (const Wire::Frame& frame : frames) Wire::Append(bytes, frame);
    wire.Received(bytes);
    return wire.Next({}).kind;
  };
  const std::vector<PjtCommand> reads(64, Get(CommandCode::Mute));
  const auto connect = [&] {
    wire.Begin(reads[0], {});
    EXPECT_EQ(wire.Next({}).kind, Kind::Connect);
    wire.Connected();
  };
  const Wire::Reply five{Wire::Status::Answered, 1, 5};
  wire.Announce(reads);
  connect();
  const SessionStep burst = wire.Next({});
  EXPECT_EQ(burst.until, SessionTime(2s));
  EXPECT_EQ(receive({{9, Wire::Request{}}, {9, five}}), Kind::Wait) << "for the welcome";
  EXPECT_EQ(
      receive(
          {{8, Wire::Welcome{}}, {8, Wire::Welcome{0}}, {9, Wire::Request{}}, {9, Wire::Reply{}}}),
      Kind::Finished);
  EXPECT_EQ(wire.Reply().value, 5);

  for (const auto& [sent, answered] : {std::pair(1U, 73), {64U, 74}}) {
    wire.Announce(reads);
    wire.Begin(reads[0], {});
    EXPECT_EQ(wire.Next({}).bytes.size(), sent * Wire::kMaximumFrame) << "up to 64 unanswered";
    EXPECT_EQ(receive({{75, five}, {static_cast<std::uint16_t>(answered), five}}), Kind::Finished);
  }
  wire.Closed();
  connect();
  wire.Closed();
  EXPECT_EQ(wire.Next({}).kind, Kind::Close);
  EXPECT_TRUE(wire.Reply().unsent);
  connect();
  EXPECT_EQ(wire.Next({}).bytes.size(), burst.bytes.size() - 63 * Wire::kMaximumFrame)
      << "what was sent on the last connection is sent again";
}

}  // namespace
