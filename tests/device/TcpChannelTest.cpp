#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

#include <QDir>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "device/BoundedChannel.h"
#include "device/TcpChannel.h"
#include "simulator/WireResponder.h"

namespace {

using namespace std::chrono_literals;
using enum ConnectionState;

constexpr WireChannel::Limits kLimits{.connect = 400ms, .answer = 400ms};

PjtCommand Get(int code) { return {PjtOperation::Get, static_cast<std::uint16_t>(code)}; }
PjtCommand Set(int value) { return {PjtOperation::Set, 1, static_cast<std::int16_t>(value)}; }

/// Answers reads with their code plus a state that changes raise.
class Device final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override {
    if (!IsRead(command.operation)) ++state;
    return {.result = 1, .value = static_cast<std::int16_t>(command.code + 1000 * state)};
  }
  int state = 0;
};

/// The other end of a connection, on a thread of its own: does with each connection what it is
/// told.
class Peer {
 public:
  using Behaviour = std::function<void(QTcpSocket&, WireResponder&)>;

  explicit Peer(Behaviour behaviour) : behaviour_(std::move(behaviour)) {
    thread_ = std::thread([this] { Run(); });
    while (port_ == 0) std::this_thread::yield();
  }
  ~Peer() {
    ended_ = true;
    thread_.join();
  }

  std::uint16_t Port() const { return static_cast<std::uint16_t>(port_); }
  void Behave(Behaviour behaviour) {
    const std::lock_guard lock(mutex_);
    behaviour_ = std::move(behaviour);
  }

 private:
  void Run() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    port_ = server.serverPort();
    Device device;
    while (!ended_) {
      if (!server.waitForNewConnection(10)) continue;
      const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
      WireResponder responder(device);
      Behaviour behaviour;
      {
        const std::lock_guard lock(mutex_);
        behaviour = behaviour_;
      }
      while (!ended_ && socket->state() == QTcpSocket::ConnectedState) {
        behaviour(*socket, responder);
        if (socket->bytesToWrite() > 0) socket->waitForBytesWritten(100);
      }
    }
  }

  std::mutex mutex_;
  Behaviour behaviour_;
  std::atomic<int> port_ = 0;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

std::string ReplyTo(QTcpSocket& socket, WireResponder& responder) {
  if (!socket.waitForReadyRead(10)) return {};
  return responder.Receive(socket.readAll().toStdString());
}

void Send(QTcpSocket& socket, const std::string& bytes) {
  socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
  socket.flush();
}

constexpr std::size_t kPiece = 64 * 1024;

// Ten megabytes, as far as the other end takes them.
void Flood(QTcpSocket& socket, const std::string& piece) {
  for (int i = 0; i < 160 && socket.state() == QTcpSocket::ConnectedState; ++i) {
    Send(socket, piece);
    if (socket.bytesToWrite() > 0) socket.waitForBytesWritten(100);
  }
}

void Serve(QTcpSocket& socket, WireResponder& responder) {
  Send(socket, ReplyTo(socket, responder));
}

// Until the welcome, which has 9 bytes, all is well; then `behaviour` gets each reply.
Peer::Behaviour AfterWelcome(std::function<void(QTcpSocket&, const std::string&)> behaviour) {
  return [=](QTcpSocket& socket, WireResponder& responder) {
    const std::string reply = ReplyTo(socket, responder);
    if (reply.size() <= 9) return Send(socket, reply);
    behaviour(socket, reply);
  };
}

Peer::Behaviour Says(const std::string& bytes) {
  return [=](QTcpSocket& socket, WireResponder& responder) {
    if (!ReplyTo(socket, responder).empty()) Send(socket, bytes);
  };
}

std::string FrameBytes(const Wire::Frame& frame, std::size_t times = 1) {
  std::string bytes;
  for (std::size_t i = 0; i < times; ++i) Wire::Append(bytes, frame);
  return bytes;
}

TEST(TcpChannelTest, WhateverThePeerDoesTheStateIsClearAndTheNextCommandWorks) {
  struct Case {
    const char* name;
    Peer::Behaviour behaviour;
    ConnectionState state;
  };
  const std::string garbage(kPiece, 'A');
  const std::string foreign =
      FrameBytes({0x7FFF, Wire::Reply{Wire::Status::Answered, 1, 6}}, kPiece / 15);
  std::vector<Case> cases{
      {"never answers", [](auto& s, auto&) { s.waitForReadyRead(10); }, NoAnswer},
      {"answers garbage", Says("HTTP/1.1 400 Bad Request\r\n\r\n"), NotUnderstood},
      {"half a frame", Says("\xA5\x5A\x02"), NoAnswer},
      {"lies about length", Says("\xA5\x5A\x02\xFF"), NotUnderstood},
      {"ten megabytes",
       [&](auto& socket, auto& responder) {
         if (!ReplyTo(socket, responder).empty()) Flood(socket, garbage);
       },
       NotUnderstood},
      {"welcomes somebody else", Says(FrameBytes({1, Wire::Welcome{}})), NoAnswer},
      {"has another version",
       [](auto& socket, auto& responder) {
         Wire::Decoder decoder;
         decoder.Add(ReplyTo(socket, responder));
         if (auto frame = decoder.Next()) {
           frame->message = Wire::Welcome{0};
           Send(socket, FrameBytes(*frame));
         }
       },
       OtherVersion},
      {"replies to others, a flood of them",
       AfterWelcome([&](auto& socket, auto&) { Flood(socket, foreign); }), NoAnswer},
      {"damages the reply", AfterWelcome([](auto& socket, std::string reply) {
         reply[10] ^= 1;
         Send(socket, reply);
       }),
       NotUnderstood},
      {"falls silent after the welcome", AfterWelcome([](auto&, auto&) {}), NoAnswer},
  };
  for (std::size_t cut = 0; cut < 15; ++cut) {
    cases.push_back({"closes in mid-reply", AfterWelcome([=](auto& socket, const auto& reply) {
                       Send(socket, reply.substr(0, cut));
                       socket.disconnectFromHost();
                     }),
                     Lost});
  }
  Peer peer(Serve);
  for (const Case& hostile : cases) {
    SCOPED_TRACE(hostile.name);
    peer.Behave(hostile.behaviour);
    TcpChannel channel("127.0.0.1", peer.Port(), kLimits);
    EXPECT_EQ(channel.Connection(), Unused);
    EXPECT_FALSE(channel.Execute(Get(5)).answered);
    EXPECT_EQ(ConnectionStateText(channel.Connection()), ConnectionStateText(hostile.state));
    peer.Behave(Serve);
    const PjtReply reply = channel.Execute(Get(5));
    EXPECT_TRUE(reply.answered);
    EXPECT_EQ(reply.value, 5);
    EXPECT_EQ(channel.Connection(), Connected);
  }
}

TEST(TcpChannelTest, SaysWhyItCannotConnect) {
  QTcpServer neverAccepts;
  ASSERT_TRUE(neverAccepts.listen(QHostAddress::LocalHost));
  const std::uint16_t taken = neverAccepts.serverPort();
  TcpChannel silent("localhost", taken, kLimits);
  EXPECT_FALSE(silent.Execute(Get(1)).answered);
  EXPECT_EQ(silent.Connection(), NoAnswer);

  // Nobody waits for the thread of one that is given up, and it goes.
  const auto threads = [] {
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
  };
  const auto before = threads();
  {
    BoundedChannel givenUp(std::make_shared<TcpChannel>("127.0.0.1", taken, kLimits),
                           {.timeOut = 10ms});
    EXPECT_FALSE(givenUp.Execute(Get(1)).answered);
  }
  EXPECT_GT(threads(), before);
  for (int i = 0; i < 200 && threads() > before; ++i) std::this_thread::sleep_for(10ms);
  EXPECT_EQ(threads(), before);

  neverAccepts.close();
  TcpChannel nobody("127.0.0.1", taken, kLimits);
  EXPECT_FALSE(nobody.Execute(Get(1)).answered);
  EXPECT_EQ(nobody.Connection(), NotReachable);
  TcpChannel unknown("no-such-name.invalid", taken, kLimits);
  EXPECT_FALSE(unknown.Execute(Get(1)).answered);
  EXPECT_EQ(unknown.Connection(), NameUnknown);
}

TEST(TcpChannelTest, AConnectionLostWhileIdleIsMadeAgainWithoutLosingACommand) {
  Peer peer([](QTcpSocket& socket, WireResponder& responder) {
    Serve(socket, responder);
    if (socket.property("welcomed").toBool() && socket.bytesAvailable() == 0) {
      socket.waitForBytesWritten(100);
      if (socket.property("asked").toBool()) socket.disconnectFromHost();
      socket.setProperty("asked", true);
    }
    socket.setProperty("welcomed", true);
  });
  TcpChannel channel("127.0.0.1", peer.Port(), kLimits);
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(channel.Execute(Get(i)).answered) << i;
    std::this_thread::sleep_for(60ms);
  }
}

/// Collects what arrives for a moment before it answers, backwards and twice.
class Bursts {
 public:
  Peer::Behaviour Behaviour() {
    return [this](QTcpSocket& socket, WireResponder& responder) {
      std::string replies;
      while (socket.waitForReadyRead(20)) {
        replies += responder.Receive(socket.readAll().toStdString());
      }
      if (replies.empty()) return;
      if (replies.size() == 9) return Send(socket, replies);
      sizes.push_back(replies.size() / 15);
      std::string backwards;
      for (std::size_t at = replies.size(); at > 0; at -= 15) {
        for (int i = 0; i < 2; ++i) backwards += replies.substr(at - 15, 15);
      }
      Send(socket, backwards);
    };
  }
  std::vector<std::size_t> sizes;
};

TEST(TcpChannelTest, AnnouncedReadsGoOutTogetherAndAreAnsweredInOrder) {
  std::vector<PjtCommand> reads;
  for (int i = 0; i < 80; ++i) reads.push_back(Get(i));
  struct Step {
    PjtCommand command;
    int value;
  };
  struct Case {
    const char* name;
    std::vector<Step> steps;
    std::vector<std::size_t> bursts;
  };
  const Case cases[] = {
      {"in order",
       {{Get(0), 0}, {Get(1), 1}, {Get(63), 63}, {Get(64), 64}, {Get(79), 79}},
       {64, 16}},
      {"not announced in between", {{Get(20), 20}, {Get(500), 500}, {Get(21), 21}}, {60, 1}},
      {"passed over, asked for later", {{Get(20), 20}, {Get(22), 22}, {Get(21), 21}}, {60, 1}},
      {"a change in between", {{Get(20), 20}, {Set(7), 1001}, {Get(21), 1021}}, {60, 1, 1}},
      {"asked twice", {{Get(20), 20}, {Get(20), 20}}, {60, 1}},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    Bursts bursts;
    {
      Peer peer(bursts.Behaviour());
      BoundedChannel channel(std::make_shared<TcpChannel>("127.0.0.1", peer.Port()));
      channel.Announce(reads);
      for (const auto& [command, value] : test.steps) {
        EXPECT_EQ(channel.Execute(command).value, value);
      }
    }
    EXPECT_EQ(bursts.sizes, test.bursts);
  }
}

TEST(TcpChannelTest, ABurstIsAnsweredInTurnHoweverLongItTakesAsAWhole) {
  Peer peer([](QTcpSocket& socket, WireResponder& responder) {
    if (!socket.waitForReadyRead(10)) return;
    for (const char byte : socket.readAll().toStdString()) {
      const std::string reply = responder.Receive({&byte, 1});
      if (reply.empty()) continue;
      std::this_thread::sleep_for(100ms);
      Send(socket, reply);
    }
  });
  TcpChannel channel("127.0.0.1", peer.Port(), kLimits);
  std::vector<PjtCommand> reads;
  for (int i = 0; i < 8; ++i) reads.push_back(Get(i));
  channel.Announce(reads);
  for (int i = 0; i < 8; ++i) {
    const PjtReply reply = channel.Execute(reads[static_cast<std::size_t>(i)]);
    EXPECT_TRUE(reply.answered) << i;
    EXPECT_EQ(reply.value, i);
  }
}

TEST(TcpChannelTest, AReplyOlderThanTheTimeForAnsweringIsAskedForAgain) {
  Bursts bursts;
  {
    Peer peer(bursts.Behaviour());
    TcpChannel channel("127.0.0.1", peer.Port(), kLimits);
    const PjtCommand reads[] = {Get(1), Get(2)};
    channel.Announce(reads);
    EXPECT_EQ(channel.Execute(reads[0]).value, 1);
    std::this_thread::sleep_for(kLimits.answer + 20ms);
    EXPECT_EQ(channel.Execute(reads[1]).value, 2);
  }
  EXPECT_EQ(bursts.sizes, (std::vector<std::size_t>{2, 1}));
}

}  // namespace
