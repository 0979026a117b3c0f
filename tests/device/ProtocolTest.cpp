// The parts of the protocols alone: parameters, the projector's answers, and events at the wrong
// time.

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkLine.h"
#include "device/protocol/WireSession.h"
#include "simulator/PjLinkResponder.h"
#include "simulator/WireResponder.h"
#include "tests/device/BadProjector.h"
#include "tests/device/Replies.h"

namespace {

using namespace std::chrono_literals;

TEST(PjLinkLine, ParametersAreValuesOrNothing) {
  const std::pair<std::optional<int> (*)(std::string_view), const char*> cases[] = {
      {PjLink::Hours, "999999999=65535 1234567890= = 1/= 1:="},
      {PjLink::Blank, "11=1 21=0 30=0 10="},
      {PjLink::Mute, "31=1 11=0 ="},
      {PjLink::Switch, "0=0 1=1 2="},
      {PjLink::PowerStatus, "3=1 2=2 4= /= 11="},
      {PjLink::ErrorStatus, "010200=1 000010=8 000000=0 000003= 00000="},
      {PjLink::InputNumber, "6Z=635 19=19 10= 1a= 1:= 1[= 71= 0A= 311="}};
  for (const auto& [read, list] : cases) {
    for (const QString& one : QString(list).split(' ')) {
      const auto value = read(one.section('=', 0, 0).toStdString());
      EXPECT_EQ(value ? QString::number(*value) : "", one.section('=', 1)) << qPrintable(one);
    }
  }
  for (const int number : {-1, 0, 9, 10, 30, 71, 100, 309, 336, 710, 100'000}) {
    EXPECT_FALSE(PjLink::InputCode(number)) << number;
  }
  using Lamps = std::vector<PjLink::Lamp>;
  EXPECT_EQ(PjLink::Lamps("70000 1 2 0 3"), (Lamps{{65535, true}, {2, false}, {3, {}}}));
  EXPECT_EQ(PjLink::Lamps("1 1 x 0"), Lamps());
  EXPECT_EQ(PjLink::Lamps("1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1").size(), 8);
  for (const char* none :
       {"", "%1POWR", "#1POWR=1", "%xPOWR=1", "%/POWR=1", "%1P[WR=1", "%1POW/=1", "%1POWR:1"}) {
    EXPECT_FALSE(PjLink::Parse(none)) << none;
  }
  for (const char* none : {"", " 2", " 1 0123abc", " 1 0123abcg", " 1 0123abc@", " 1 0123abc/"}) {
    EXPECT_FALSE(PjLink::ParseGreeting(std::string("PJLINK") + none)) << none;
  }
  const std::vector<PjLinkInput> many(SourceList::kCapacity + 1, {310, "HDMI"});
  EXPECT_EQ(SourcesOf(many, InputCodes::AllNames).count, SourceList::kCapacity);
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
      {kTwo, "%1POWR 0", "ERR3"},     {kTwo, "%0POWR ?", "ERR1"},     {kOn, "%1AVMT 01", "ERR2"},
      {kTwo, "%2INNM 5A", "ERR2"},    {kTwo, "%2INNM ?5A", "AB"},     {kTwo, "%1INNM ?5A", "ERR1"}};
  for (const auto& [reply, request, answer] : cases) {
    PjLinkResponder responder(std::make_shared<Parrot>(reply), {.inputs = {{"5A", 7, "A\r\nB"}}});
    EXPECT_EQ(responder.Answer(request).value_or("").substr(7), answer) << request;
    EXPECT_FALSE(responder.Answer("%1POWR=1"));
  }
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
    connection.Received("%1POWR=0\r", stepped.now);
    EXPECT_EQ(stepped.Do(Get(CommandCode::RunningState)).value, 1);
    EXPECT_EQ(stepped.projector.connections, connections);
    connection.Closed(stepped.now);
    stepped.projector.Close(stepped.now);
  }
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

}  // namespace
