#include <tuple>

#include <QDir>
#include <QIODevice>
#include <gtest/gtest.h>

#include "device/channels/BoundedChannel.h"
#include "device/channels/SerialChannel.h"
#include "device/channels/TcpChannel.h"
#include "simulator/WireResponder.h"
#include "tests/device/Peer.h"
#include "tests/device/Replies.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;
using enum ConnectionState;
using End = Peer::End;

constexpr WireChannel::Limits kLimits{.connect = 20s, .answer = 20s};
constexpr WireChannel::Limits kHurry{.connect = 20s, .answer = 2s};
constexpr WireChannel::Limits kOnce{.connect = 1s};
constexpr std::size_t kWelcomeSize = 9;
constexpr std::size_t kReplySize = 15;
constexpr auto kTransports = {Transport::Tcp, Transport::Serial};

const PjtCommand kChange = Set(1, 7);

/// Answers reads with their code plus a counter of changes.
struct Device final : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    if (!IsRead(command.operation)) ++state;
    return {.result = 1, .value = static_cast<std::int16_t>(command.code + 1000 * state)};
  }
  int state = 0;
};

std::unique_ptr<WireChannel> ChannelTo(const Peer& peer,
                                       const WireChannel::Limits& limits = kLimits) {
  if (peer.port == 0) return std::make_unique<SerialChannel>(peer.Device(), 19200, limits);
  return std::make_unique<TcpChannel>("127.0.0.1", peer.port, limits);
}

/// Passes each reply of the projector to `say`, until the end of the connection.
Peer::Behaviour Answers(std::function<void(End&, const std::string&)> say, bool forgets = false) {
  return [say = std::move(say), forgets](End& end) {
    Device device;
    std::optional<WireResponder> responder(device);
    for (auto bytes = end.Receive(); !bytes.empty(); bytes = end.Receive()) {
      const std::string answer = responder->Receive(bytes);
      if (!answer.empty()) say(end, answer);
      if (forgets && answer.size() >= kReplySize) responder.emplace(device);
    }
  };
}

void SendOn(End& end, const std::string& answer) { end.Send(answer); }
const Peer::Behaviour kServes = Answers(SendOn);

/// Sends the welcome and one changed reply. Then sends nothing, or closes the connection.
Peer::Behaviour Distorts(std::function<std::string(std::string)> change, bool closes = false) {
  return [change = std::move(change), closes](End& end) {
    Device device;
    WireResponder responder(device);
    std::string said = responder.Receive(end.Receive());
    end.Send(said.substr(0, kWelcomeSize));
    if (said.size() <= kWelcomeSize) said += responder.Receive(end.Receive());
    if (said.size() > kWelcomeSize) end.Send(change(said.substr(kWelcomeSize)));
    if (!closes) end.Listen();
  };
}

std::string FrameBytes(const Wire::Frame& frame, std::size_t times = 1) {
  std::string bytes;
  for (std::size_t i = 0; i < times; ++i) Wire::Append(bytes, frame);
  return bytes;
}

TEST(WireChannelTest, EveryFaultOfThePeerGivesAStateAndTheNextCommandWorks) {
  struct Case {
    const char* name;
    Peer::Behaviour behaviour;
    ConnectionState onTcp;
    ConnectionState onSerial = NoAnswer;
  };
  constexpr std::size_t kFlood = 10'000'000;
  // A serial line takes seconds for more, on a busy machine.
  std::string foreign = FrameBytes({0x7FFF, Wire::Reply{Wire::Status::Answered, 1, 6}}, 50'000);
  std::vector<Case> cases{
      {"never answers", Peer::Says({}), NoAnswer},
      {"answers garbage", Peer::Says({"", "HTTP/1.1 400 Bad Request\r\n\r\n"}), NotUnderstood},
      {"half a frame", Peer::Says({"", "\xA5\x5A\x02"}), NoAnswer},
      {"lies about kind", Peer::Says({"", "\xA5\x5A\x09"}), NotUnderstood},
      {"lies about length", Peer::Says({"", "\xA5\x5A\x02\xFF"}), NotUnderstood},
      {"ten megabytes", Peer::Says({"", std::string(kFlood, 'A')}), NotUnderstood},
      {"welcomes somebody else", Peer::Says({"", FrameBytes({1, Wire::Welcome{}})}), NoAnswer},
      {"has another version",
       [](End& end) {
         Wire::Decoder decoder;
         decoder.Add(end.Receive());
         end.Send(FrameBytes({decoder.Next().value_or(Wire::Frame{}).sequence, Wire::Welcome{0}}));
         end.Listen();
       },
       OtherVersion, OtherVersion},
      {"replies to others, a flood of them", Distorts([&](auto) { return foreign; }), NoAnswer},
      {"damages the reply", Distorts([](auto reply) { return reply.replace(10, 1, "?"); }),
       NotUnderstood},
      {"falls silent after the welcome", Distorts([](auto) { return std::string(); }), NoAnswer},
  };
  for (std::size_t cut = 0; cut < kReplySize; ++cut) {
    const auto begin = [cut](const auto& reply) { return reply.substr(0, cut); };
    cases.push_back({"closes in mid-reply", Distorts(begin, true), Lost, Lost});
  }
  for (const Transport transport : kTransports) {
    for (const auto& [name, behaviour, onTcp, onSerial] : cases) {
      SCOPED_TRACE(testing::Message()
                   << name << (transport == Transport::Tcp ? "" : ", on a serial line"));
      Peer peer(transport, {behaviour, kServes});
      const auto channel = ChannelTo(peer);
      EXPECT_EQ(channel->Connection(), Unused);
      const ConnectionState state = transport == Transport::Tcp ? onTcp : onSerial;
      if (state == NoAnswer) channel->GiveUpAfter(50ms);
      EXPECT_EQ(Replies(*channel, {Get(5)}), "?");
      EXPECT_EQ(channel->Connection(), state);
      channel->GiveUpAfter(kLimits.answer);
      peer.Finish(1);
      EXPECT_EQ(Replies(*channel, {Get(5)}), "5");
      EXPECT_EQ(channel->Connection(), Connected);
    }
  }
}

TEST(WireChannelTest, TheStatusOfAReplySaysWhatBecameOfTheCommand) {
  const auto with = [](Wire::Status status) {
    return Distorts([status](const std::string& reply) {
      Wire::Decoder decoder;
      decoder.Add(reply);
      const auto frame = decoder.Next();
      return FrameBytes({frame ? frame->sequence : std::uint16_t{}, Wire::Reply{status}});
    });
  };
  using enum Wire::Status;
  for (const auto& [status, offered, answered, unsent, state] :
       {std::tuple(UnknownOperation, false, true, false, Connected),
        {Unanswered, true, false, false, Connected},
        {NoHello, true, false, true, NotUnderstood}}) {
    const Peer peer(Transport::Tcp, {with(status), with(status)});
    const auto channel = ChannelTo(peer);
    const PjtReply reply = channel->Execute(Get(5));
    EXPECT_EQ(std::tuple(reply.offered, reply.answered, reply.unsent),
              std::tuple(offered, answered, unsent));
    EXPECT_EQ(channel->Connection(), state);
  }
}

TEST(WireChannelTest, GivesUpEarlierWhenAsked) {
  const Peer peer(Transport::Tcp, {Peer::Says({})});
  const WireChannel::Limits limits{.connect = 1h, .answer = 1h};
  TcpChannel channel("127.0.0.1", peer.port, limits);
  channel.GiveUpAfter(50ms);
  EXPECT_EQ(Replies(channel, {Get(1)}), "?");
  BoundedChannel bounded(std::make_shared<TcpChannel>("127.0.0.1", peer.port, limits),
                         {.timeOut = 1h});
  bounded.GiveUpAfter(50ms);
  EXPECT_EQ(Replies(bounded, {Get(1)}), "?");
}

TEST(WireChannelTest, SaysWhyItCannotConnect) {
  QTcpServer neverAccepts;
  ASSERT_TRUE(neverAccepts.listen(QHostAddress::LocalHost));
  const std::uint16_t taken = neverAccepts.serverPort();
  const auto expect = [](WireChannel&& channel, ConnectionState state) {
    const PjtReply reply = channel.Execute(Get(1));
    EXPECT_FALSE(reply.answered);
    EXPECT_EQ(reply.unsent, state != NoAnswer);
    EXPECT_EQ(ConnectionStateText(channel.Connection()), ConnectionStateText(state));
  };
  expect(TcpChannel("localhost", taken, kOnce), NoAnswer);
  expect(SerialChannel("/dev/no-such-port", 19200, kLimits), NotReachable);
  expect(SerialChannel("/dev/null", 19200, kLimits), NotReachable);

  // The thread of an abandoned look-up ends by itself.
  const auto threads = [] {
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
  };
  const auto before = threads();
  {
    BoundedChannel givenUp(std::make_shared<TcpChannel>("127.0.0.1", taken, kOnce),
                           {.timeOut = 10ms});
    EXPECT_EQ(Replies(givenUp, {Get(1)}), "?");
  }
  EXPECT_TRUE(Soon([&] { return threads() <= before; }));

  neverAccepts.close();
  expect(TcpChannel("127.0.0.1", taken, kLimits), NotReachable);
}

TEST(WireChannelTest, NoiseOnAnIdleConnectionEndsIt) {
  const std::string late = FrameBytes({0x7FFF, Wire::Reply{Wire::Status::Answered, 1, 6}}, 100'000);
  for (const int times : {1, 1000}) {
    std::atomic<bool> isRead = false;
    const auto noise = Answers([&](End& end, const std::string& answer) {
      end.Send(answer);
      if (answer.size() < kReplySize) return;
      isRead.wait(false);
      for (int i = 0; i < times; ++i) end.Send(times == 1 ? "noise" : late);
    });
    Peer peer(Transport::Tcp, {noise, kServes});
    const auto channel = ChannelTo(peer);
    EXPECT_EQ(Replies(*channel, {Get(5)}), "5");
    EXPECT_TRUE(channel->TendConnection(0ms));
    isRead = true;
    isRead.notify_all();
    EXPECT_TRUE(Soon([&] { return !channel->TendConnection(0ms); }));
    EXPECT_EQ(channel->Connection(), Unused);
    peer.Finish(1);
    EXPECT_EQ(Replies(*channel, {Get(5)}), "5");
  }
}

enum class Takes { All, Late, Part, None };

/// A line that does not take all bytes at once, or gives none although some have come.
class FailingLine final : public QIODevice {
 public:
  explicit FailingLine(Takes takes) : takes_(takes) { open(ReadWrite | Unbuffered); }
  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override { return asked_++ % 2; }  // some come during a wait
  qint64 bytesToWrite() const override { return takes_ == Takes::Late || takes_ == Takes::Part; }

 protected:
  qint64 readData(char*, qint64) override { return takes_ == Takes::None ? 0 : -1; }
  qint64 writeData(const char*, qint64 size) override { return size - (takes_ == Takes::Part); }

 private:
  const Takes takes_;
  mutable qint64 asked_ = 0;
};

struct FailingChannel final : WireChannel {
  FailingChannel(Takes takes, bool alive)
      : WireChannel(Medium::Reliable, {}), does(takes), isAlive(alive) {}
  std::unique_ptr<QIODevice> Open(const QDeadlineTimer&, ConnectionState&) override {
    EXPECT_EQ(Connection(), Connecting);
    return std::make_unique<FailingLine>(does);
  }
  bool IsAlive(QIODevice&) const override { return isAlive; }

  const Takes does;
  const bool isAlive;
};

TEST(WireChannelTest, ALineThatFailsIsGivenUp) {
  for (const auto& [takes, isAlive, state] : {std::tuple(Takes::Late, true, NoAnswer),
                                              {Takes::Late, false, Lost},
                                              {Takes::Part, true, Lost},
                                              {Takes::All, true, Lost},
                                              {Takes::None, true, Lost}}) {
    FailingChannel channel(takes, isAlive);
    EXPECT_EQ(Replies(channel, {Get(1)}), "?");
    EXPECT_EQ(channel.Connection(), state);
  }
}

TEST(WireChannelTest, AConnectionThatEndsWhileIdleLosesNoCommand) {
  for (const Transport transport : kTransports) {
    for (const bool isClosed : {false, true}) {
      SCOPED_TRACE(isClosed);
      Peer peer(transport, {Answers(SendOn, !isClosed), kServes});
      const auto channel = ChannelTo(peer);
      EXPECT_EQ(channel->Execute(Get(1)).value, 1);
      if (isClosed) peer.Finish(1);
      EXPECT_EQ(channel->Execute(kChange).value, 1001) << "and was carried out once";
    }
  }
}

/// Counts the requests that arrive together, and sends each reply twice: slowly, or in reverse
/// order.
Peer::Behaviour AnswersTwice(std::vector<std::size_t>& bursts, std::chrono::milliseconds pause) {
  return Answers([&bursts, pause](End& end, const std::string& answer) {
    const std::size_t welcome = answer.size() % kReplySize;
    const std::size_t count = answer.size() / kReplySize;
    end.Send(answer.substr(0, welcome));
    for (std::size_t i = 0; i < count; ++i) {
      std::this_thread::sleep_for(pause);
      const std::size_t place = pause == 0ms ? count - 1 - i : i;
      const std::string reply = answer.substr(welcome + kReplySize * place, kReplySize);
      end.Send(reply + reply);
    }
    bursts.push_back(count);
  });
}

TEST(WireChannelTest, AnnouncedReadsGoOutTogetherAndAreAnsweredInOrder) {
  std::vector<PjtCommand> reads;
  reads.reserve(80);
  for (int i = 0; i < 80; ++i) reads.push_back(Get(i));
  struct Case {
    const char* name;
    std::vector<PjtCommand> commands;
    const char* replies;
    std::vector<std::size_t> bursts;       ///< The first burst includes the hello.
    std::chrono::milliseconds answers{0};  ///< Time for each reply.
    std::chrono::milliseconds asks{0};     ///< Pause of the program before each command.
  };
  const Case cases[] = {
      {"in order", {Get(0), Get(1), Get(63), Get(64), Get(79)}, "0 1 63 64 79", {64, 16}},
      {"not announced in between", {Get(20), Get(500), Get(21)}, "20 500 21", {60, 1}},
      {"passed over, asked for later", {Get(20), Get(22), Get(21)}, "20 22 21", {60, 1}},
      {"the rest passed over", {Get(0), Get(70)}, "0 70", {64, 10}},
      {"a change in between", {Get(20), kChange, Get(21)}, "20 1001 1021", {60, 1, 1}},
      {"asked twice", {Get(20), Get(20)}, "20 20", {60, 1}},
      {"late", {Get(20), Get(21)}, "20 21", {60, 1}, 0ms, kHurry.answer + 20ms},
      {"longer than one may take", {Get(75), Get(77), Get(79)}, "75 77 79", {5}, 450ms},
      {"serial", {Get(20), kChange, Get(0)}, "20 1001 1000", {0, 1, 1, 1}},
  };
  for (const auto& [name, commands, replies, expected, answers, asks] : cases) {
    SCOPED_TRACE(name);
    const auto transport = name == std::string("serial") ? Transport::Serial : Transport::Tcp;
    std::vector<std::size_t> bursts;
    {
      const Peer peer(transport, {AnswersTwice(bursts, answers)});
      BoundedChannel channel(ChannelTo(peer, answers + asks > 0ms ? kHurry : kLimits));
      channel.Announce(reads);
      EXPECT_EQ(Replies(channel, commands, asks), replies);
    }
    EXPECT_EQ(bursts, expected);
  }
}

}  // namespace
