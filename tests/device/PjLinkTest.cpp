#include <future>
#include <tuple>
#include <utility>

#include <QEventLoop>
#include <QNetworkProxy>
#include <QTcpSocket>

#include "device/CommandCode.h"
#include "device/Connect.h"
#include "device/channels/ConnectSocket.h"
#include "device/channels/PjLinkChannel.h"
#include "device/protocol/PjLinkLine.h"
#include "simulator/PjLinkServer.h"
#include "simulator/SimulatedProjector.h"
#include "tests/device/Peer.h"
#include "tests/device/Replies.h"
#include "tests/support/Record.h"
#include "tests/support/Soon.h"
#include "tests/support/SystemLookUp.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kLookUp = 250ms;
std::atomic<int> lookUps = 0;

}  // namespace

/// Replaces the system's function, for the library too, to make a name look-up slow.
extern "C" [[gnu::visibility("default")]] int getaddrinfo(const char* name, const char* service,
                                                          const addrinfo* hints, addrinfo** found) {
  ++lookUps;
  EXPECT_TRUE(hints->ai_socktype == SOCK_STREAM && hints->ai_flags == AI_ADDRCONFIG);
  std::this_thread::sleep_for(kLookUp);
  if (std::string_view(name) == "no-such-host") return EAI_NONAME;
  return systemLookUp(name, service, hints, found);
}

namespace {

using State = ConnectionState;
using Op = PjtOperation;

constexpr PjLinkChannel::Limits kLimits{.connect = 1s, .answer = 1s};
const PjtCommand kGetPower = Get(CommandCode::RunningState);

const std::string kHost = "127.0.0.1";

/// A simulated projector on a port, served by its own thread.
class Served {
 public:
  explicit Served(PjLinkServer::Options options) {
    options.served.inputs = {{"31", 3, "HDMI"}, {"5A", 7, "Büro"}};
    thread_ = std::jthread([this, options](const std::stop_token& ended) {
      QEventLoop loop;
      PjLinkServer server(projector, options);
      EXPECT_TRUE(server.Listen(kHost, 0));
      listening_.set_value(server.Port());
      for (; !ended.stop_requested(); std::this_thread::sleep_for(1ms)) loop.processEvents();
    });
    port_ = listening_.get_future().get();
  }

  PjLinkChannel Channel(const std::string& password = {}) const {
    return {kHost, port_, password, kLimits};
  }

  int Port() const { return port_; }

  const std::shared_ptr<SimulatedProjector> projector = std::make_shared<SimulatedProjector>();

 private:
  std::promise<int> listening_;
  int port_ = 0;
  std::jthread thread_;
};

const std::string kGreeting = "PJLINK 0\r";
const std::string kOn = "%1POWR=1\r";
const Peer::Behaviour kGood = Peer::Says({kGreeting, kOn});

TEST(PjLinkTest, EveryOperationReachesTheProjector) {
  const Served served({});
  PjLinkChannel channel = served.Channel();
  namespace Code = CommandCode;
  const std::tuple<std::uint16_t, int, int> reads[] = {
      {Code::ErrorStatus, 0, 0},  {Code::ErrorStatus, 1, 1},  {Code::ErrorStatus, 2, 2},
      {Code::ErrorStatus, 8, 8},  {Code::ErrorStatus, 6, 9},  {Code::LampTime, 65535, -1},
      {Code::FilterTime, 0, 0},   {Code::BlankState, 1, 1},   {Code::Mute, 1, 1},
      {Code::Freeze, 1, 1},       {Code::InputSource, 3, 31}, {Code::InputSource, 7, 510},
      {Code::RunningState, 2, 2}, {Code::RunningState, 0, 0}};
  for (const auto& [code, held, read] : reads) {
    served.projector->SetCodeValue(code, held);
    PjLinkChannel fresh = served.Channel();  // blank and mute are in one reply
    EXPECT_EQ(Replies(fresh, {Get(code)}), std::to_string(read)) << std::hex << code;
  }
  EXPECT_EQ(
      Replies(channel,
              {Do(Op::SetPowerOn), Get(Code::RunningState), Set(Code::InputSource, 31),
               Set(Code::InputSource, 32), Do(Op::GetInputSource), Do(Op::SetBlank),
               Get(Code::BlankState), Set(Code::BlankState, 1), Do(Op::SetMute), Get(Code::Mute),
               Set(Code::Mute, 1), Get(Code::Mute), Get(Code::BlankState), Do(Op::SetFreeze),
               Get(Code::Freeze), Set(Code::Freeze, 1), Get(Code::Freeze), Inc(Code::Volume)}),
      "0 1 0 - 31 0 0 0 0 0 0 1 1 0 0 0 1 0");
  EXPECT_EQ(served.projector->CodeValue(Code::Volume), 17);
  const PjtCommand lower{Op::Dec, Code::Volume};
  EXPECT_EQ(Replies(channel, {lower, Do(Op::SetPowerOff), Get(Code::RunningState), lower}),
            "0 0 0 -")
      << "nothing is changed in standby";
  EXPECT_EQ(served.projector->CodeValue(Code::Volume), 16);
  EXPECT_EQ(Replies(channel, {Do(Op::SetFreeze, 2), Do(Op::SetMute, 2)}), "- -");
  EXPECT_TRUE(channel.Connection() == State::Connected && channel.Power() == PowerState::Standby);
}

TEST(PjLinkTest, AsksOnlyForWhatTheProjectorMayHave) {
  PjLinkChannel nowhere("127.0.0.1", 1, "", kLimits);
  EXPECT_EQ(
      Replies(nowhere, {Do(Op::GetMirror), Get(CommandCode::Brightness), Get(CommandCode::Volume),
                        Do(Op::ExecLampTimeReset), Set(CommandCode::InputSource, 305)}),
      "! ! ! ! -");
  EXPECT_EQ(nowhere.Connection(), State::Unused);

  const Served first({.served = {.protocolClass = 1}});
  PjLinkChannel channel = first.Channel();
  const PjLinkFacts facts{.protocolClass = '2', .inputs = {{31, "HDMI"}}};
  channel.Remember(facts);
  EXPECT_EQ(channel.Facts(), facts);
  EXPECT_TRUE(PjLinkChannel::Has(kGetPower) && !PjLinkChannel::Has(Do(Op::GetMirror)));
  EXPECT_EQ(Replies(channel, {Get(CommandCode::Freeze), Inc(CommandCode::Volume)}), "! !");
  EXPECT_TRUE(channel.Facts().inputs.empty()) << "another projector had them";
}

TEST(PjLinkTest, PasswordsAndInputs) {
  EXPECT_EQ(PjLink::Digest("0123abcd", "secret"), "c511f6b40a18fbb0f98750deedab010e");
  const Served served({.password = "secret"});
  for (const auto* const wrong : {"", "Secret"}) {
    PjLinkChannel channel = served.Channel(wrong);
    EXPECT_TRUE(channel.Execute(kGetPower).unsent);
    EXPECT_EQ(channel.Connection(), State::PasswordRequired);
  }
  PjLinkChannel channel = served.Channel("secret");
  const auto [inputs, areAllTold] = channel.AskForInputs();
  EXPECT_TRUE(areAllTold && channel.Facts().inputs == inputs);
  EXPECT_EQ(inputs, (std::vector<PjLinkInput>{{31, "HDMI"}, {510, "Büro"}}));
  EXPECT_EQ(Replies(channel, {kGetPower, kGetPower}), "1 1");
  EXPECT_TRUE(channel.TendConnection(0ms) && !channel.TendConnection(1h));
  EXPECT_EQ(channel.Connection(), State::Unused);
}

TEST(PjLinkTest, ACommandIsGivenUpEarlierWhenAskedAndAQuestionIsNot) {
  const auto tells = Peer::Says({kGreeting, "%1CLSS=1\r", "%1INST=31\r"});
  const Peer peer(Transport::Tcp, {Peer::Says({kGreeting}), tells});
  PjLinkChannel channel(kHost, peer.port, "", {.connect = 1h, .answer = 1h});
  channel.GiveUpAfter(0ms);
  EXPECT_EQ(Replies(channel, {kGetPower}), "?");
  EXPECT_EQ(channel.AskForInputs().first.at(0).name, "Digital 1");
  auto problem = State::None;
  const auto socket = ConnectSocket(kHost, peer.port, 512, QDeadlineTimer(1h), problem);
  EXPECT_EQ(socket->proxy().type(), QNetworkProxy::NoProxy) << "whatever is set for the web";
}

TEST(PjLinkTest, ThePresentInputHasItsNameIfThatIsKnown) {
  using Answer = std::pair<std::optional<PjLinkInput>, bool>;
  const PjLinkInput known{31, "PC"}, unknown{31, "Digital 1"};
  const std::tuple<const char*, PjLinkFacts, Answer> cases[] = {
      {"%2INPT=31\r", {'2', {known}}, {known, true}},
      {"%2INPT=31\r", {'2'}, {unknown, false}},
      {"%2INPT=ERR4\r", {'2'}, {std::nullopt, true}}};
  for (const auto& [text, facts, answer] : cases) {
    const Peer peer(Transport::Tcp, {Peer::Says({kGreeting, text}, false)});
    PjLinkChannel channel(kHost, peer.port, "", kLimits);
    channel.Remember(facts);
    EXPECT_EQ(channel.AskForPresentInput(), answer) << text;
  }
}

TEST(PjLinkTest, EveryFaultOfThePeerGivesAStateAndOldRepliesAreDropped) {
  struct Case {
    Peer::Behaviour first;
    const char* answer;
    State state;
    bool isClosed = false;  ///< Whether the connection is closed before the next commands.
    std::vector<PjtCommand> next{kGetPower};
    const char* answers = "1";
    Peer::Behaviour second = kGood;
  };
  const auto replies = [](const std::string& text) { return Peer::Says({kGreeting, text}); };
  const auto breaks = Peer::Says({kGreeting, kOn, ""}, false);
  const auto floods = [](Peer::End& end) {
    end.Send(kGreeting);
    while (end.Send("%1INPT=31\r%1AVMT=30\r")) continue;
  };
  const auto standby = replies("%1POWR=0\r");
  const std::string often = QByteArray(kOn.c_str()).repeated(400).toStdString();
  const auto twice = Peer::Says({kGreeting, "%1INPT=31\r" + often, "%1POWR=0\r"});
  const auto does = Peer::Says({kGreeting, "%1POWR=OK\r", kOn});
  const std::string warm = "%1powr=3\r";
  const auto busy = Peer::Says({kGreeting, "%1POWR=ERR3\r", "%1powr=2\r", warm});
  const auto goodTwice = Peer::Says({kGreeting, kOn, kOn});
  std::vector<Case> cases = {
      {Peer::Says({}), "?", State::NoAnswer},
      {Peer::Says({"HTTP/1.1 400 Bad Request\r"}), "?", State::NotUnderstood},
      {Peer::Says({"PJLINK 1 0123abcx\r"}), "?", State::NotUnderstood},
      {Peer::Says({"PJLINK 1 0123abcd\r", "PJLINK ERRA\r"}, false), "?", State::PasswordRequired},
      {Peer::Says({kGreeting, std::string(8'000'000, 'x')}), "?", State::NotUnderstood},
      {replies("%1POWR="), "?", State::NoAnswer},
      {replies("\r"), "?", State::NoAnswer},
      {replies("%1POWR ?\r"), "?", State::NotUnderstood},
      {replies("%1INPT=31\r"), "?", State::NoAnswer},
      {floods, "?", State::NoAnswer},
      {replies("%1POWR=" + std::string(5000, '1') + '\r'), "?", State::NotUnderstood},
      {replies(kOn), "1", State::Connected, true, {kGetPower}, "0", standby},
      {replies(kOn), "1", State::Connected, true, {Do(Op::SetPowerOn)}, "0", does},
      {replies(kOn + "%1POWR"), "1", State::Connected, false, {kGetPower}, "0", standby},
      {twice, "1", State::Connected, false, {kGetPower}, "0"},
      {Peer::Says({"PJLINK ERRA\r"}), "?", State::PasswordRequired},
      {Peer::Says({kGreeting + '\n', kOn + '\n', kOn}), "1", State::Connected},
      {breaks, "1", State::Connected, false, {kGetPower}, "0", standby},
      {breaks, "1", State::Connected, false, {Do(Op::SetPowerOn), kGetPower}, "? 1"},
      {Peer::Says({kGreeting, "%1POWR=7\r", "%1POWR=7\r", warm}), "-", State::Connected},
      {busy, "-", State::Connected, false, {kGetPower, kGetPower}, "2 1"},
      {Peer::Says({kGreeting, "%1POWR=ERR4\r", warm}), "-", State::Connected},
      {Peer::Says({kGreeting, "%1POWR=\r", "%1POWR=\r", warm}), "-", State::Connected}};
  for (std::size_t length = 0; length < kOn.size(); ++length) {
    const std::string begin = kOn.substr(0, length);
    const auto ends = Peer::Says({kGreeting, begin}, false);
    cases.push_back({ends, "1", State::Connected, false, {kGetPower}, "1", goodTwice});
  }
  std::vector<std::jthread> tried;  // at once, since some wait for the time-out
  tried.reserve(cases.size());
  for (const Case& one : cases) {
    tried.emplace_back([&one, number = &one - cases.data()] {
      SCOPED_TRACE(number);
      Peer peer(Transport::Tcp, {one.first, one.second});
      const auto channel = MakeUnboundedChannel(PjLinkAddress{kHost, peer.port, ""}, 3s);
      const QDeadlineTimer timeOut(3s);
      EXPECT_EQ(Replies(*channel, {kGetPower}), one.answer);
      EXPECT_TRUE(one.state != State::NoAnswer || timeOut.hasExpired());
      EXPECT_EQ(channel->Connection(), one.state);
      if (one.isClosed) peer.Finish(1);
      EXPECT_EQ(Replies(*channel, one.next), one.answers);
      EXPECT_EQ(channel->Connection(), State::Connected);
    });
  }
}

TEST(PjLinkTest, AsksForInputsWhenIdleAndAgainAfterAPause) {
  // Closes after each reply, as some projectors do.
  const auto says = [](const std::string& text) { return Peer::Says({kGreeting, text}, false); };
  Peer peer(Transport::Tcp,
            {says("%1CLSS=2\r"), says("%2INPT=6Z\r"), says(""), says(""), says(""), says(""),
             says("%1POWR=OK\r"), says(kOn), says("%2INST=31 71  3a 5A\r"),
             says("%2INNM=Bü\x1Bro\r"), says("%2INNM=ERR1\r"), says("%2INNM=Own\r")});
  PjLinkChannel channel(kHost, peer.port, "", {.firstPause = 400ms});
  EXPECT_FALSE(channel.Inputs() || channel.UseIdleTime()) << "no command was answered";
  EXPECT_EQ(Replies(channel, {Do(Op::GetInputSource)}), "635");
  EXPECT_FALSE(channel.UseIdleTime() || channel.UseIdleTime());
  EXPECT_EQ(channel.Connection(), State::Connected) << "no command has failed";
  EXPECT_EQ(Replies(channel, {Do(Op::SetPowerOn)}, 400ms), "0");
  while (channel.UseIdleTime()) continue;
  EXPECT_EQ(channel.Inputs(),
            SourcesOf({{31, "Büro"}, {510, "Network A"}, {635, "Own"}}, InputCodes::SharedNames));
}

TEST(PjLinkTest, SaysWhyItCannotConnect) {
  const auto expect = [](PjLinkChannel&& channel, State state) {
    EXPECT_EQ(Replies(channel, {kGetPower}), "?");
    EXPECT_FALSE(channel.AskForInputs().second || channel.TendConnection(0ms));
    EXPECT_EQ(channel.Connection(), state);
    EXPECT_EQ(Replies(channel, {Do(Op::GetMirror)}), "!");
  };
  const int before = lookUps;
  expect({std::string(64, 'a'), 1, "", kLimits}, State::NameUnknown);
  expect({"localhost", 1, "", {.connect = 50ms}}, State::NameUnknown);
  EXPECT_LE(lookUps, before + 2) << "once for the command, once for the inputs, for no long name";
  expect({"localhost", 65535, "", kLimits}, State::NotReachable);
  expect({"no-such-host", 1, "", kLimits}, State::NameUnknown);
  expect({"", 4352, "", kLimits}, State::WrongParameters);
  expect({kHost, 0, "", kLimits}, State::WrongParameters);
  expect({kHost, 65536 + 4352, "", kLimits}, State::WrongParameters);
  const Peer silent(Transport::Tcp, {Peer::Says({})});
  PjLinkChannel waiting(kHost, silent.port, "", kLimits);
  const std::jthread waits([&] { Replies(waiting, {kGetPower}); });
  EXPECT_TRUE(Soon([&] { return waiting.Connection() == State::Connecting; }));
}

TEST(PjLinkTest, TheServerFollowsTheStandard) {
  const Served served({});
  QTcpSocket socket;
  socket.connectToHost(QString::fromStdString(kHost), static_cast<quint16>(served.Port()));
  const auto line = [&] {
    while (!socket.peek(200).contains('\r') && socket.waitForReadyRead()) continue;
    std::string text;
    for (char c = 0; socket.getChar(&c) && c != '\r';) text += c;
    return text;
  };
  EXPECT_EQ(line(), "PJLINK 0");
  ExpectAnswers(TEST_SOURCE_DIR "/device/PjLinkAnswers.txt",
                [&, asked = 0](const auto& request) mutable {
                  constexpr const char* kEnds[] = {"\r\n", "\r\r", "\r"};
                  socket.write((request + kEnds[asked++ % 3]).c_str());
                  return line();
                });
}

}  // namespace
