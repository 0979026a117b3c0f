#include <algorithm>
#include <deque>
#include <memory>
#include <string>
#include <sys/socket.h>
#include <utility>
#include <vector>

#include <QBuffer>
#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "simulator/PjLinkServer.h"
#include "simulator/ServedConnection.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/TcpListener.h"
#include "simulator/WireServer.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;

const std::string kHello = QByteArray::fromHex("a55a010200010101b7a1").toStdString();

/// A client of a server in the same thread, which says something often and reads nothing.
struct Client : QTcpSocket {
  Client(int port, const std::string& says, int times = 1) {
    connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    EXPECT_TRUE(waitForConnected());
    Say(says, times);
  }
  void Say(const std::string& text, int times = 1) {
    write(QByteArray::fromStdString(text).repeated(times));
    flush();
  }
  bool IsOpen() const { return state() == ConnectedState; }
  bool EndsSoon() const {
    return Soon([this] { return !IsOpen(); });
  }
  bool HasHeard(qsizetype size) const {
    return Soon([=, this] { return bytesAvailable() >= size; });
  }
};

/// The other end of a client's connection, once the client has said something.
std::unique_ptr<QTcpSocket> Accept(QTcpServer& port) {
  EXPECT_TRUE(port.waitForNewConnection(-1));
  std::unique_ptr<QTcpSocket> end(port.nextPendingConnection());
  EXPECT_TRUE(end->waitForReadyRead(-1));
  return end;
}

TEST(Servers, EndAConnectionBehindTheLastReplyWhateverTheFault) {
  const auto projector = std::make_shared<SimulatedProjector>();
  QTcpServer port;
  ASSERT_TRUE(port.listen(QHostAddress::LocalHost));
  using enum LineFault::Kind;
  for (const auto& [fault, heard] : {std::pair(LineFault{}, "PJLINK 0\r%1POWR=1\r"),
                                     {{Late, 1}, "PJLINK 0\r%1POWR=1\r"},
                                     {{Trickle}, "PJLINK 0\r%1POWR=1\r"},
                                     {{Garbage}, "??????????????????"},
                                     {{Cut, 3}, "PJLINK 0\r%1P"},
                                     {{Silent}, ""}}) {
    PjLinkServer server(projector, {});
    server.SetFault(fault);
    Client client(port.serverPort(), "%1POWR ?\rno request\r%1POWR ?\r");
    server.Serve(Accept(port));
    EXPECT_TRUE(client.EndsSoon());
    EXPECT_EQ(client.readAll().toStdString(), heard);
  }
  WireServer wire(projector);
  wire.SetFault({.kind = Cut, .amount = 7});
  Client slow(port.serverPort(), kHello.substr(0, 4));
  wire.Serve(Accept(port));
  slow.Say(kHello.substr(4));
  slow.Say(kHello, 1000);
  EXPECT_TRUE(slow.EndsSoon());
  EXPECT_EQ(slow.readAll().size(), 7) << "of one reply, and of no part of a request";

  WireServer onLine(projector);
  onLine.SetFault({.kind = Trickle});
  auto line = std::make_unique<QBuffer>();
  line->setData(kHello.data(), int(kHello.size()));
  line->open(QIODevice::ReadWrite);
  const QPointer served(line.get());
  onLine.Serve(std::move(line));
  EXPECT_TRUE(Soon([&] { return served->size() == 10 + 9; }));
  served->close();
  EXPECT_TRUE(Soon([&] { return !served; }));
}

TEST(Servers, WhoHasBeenSilentLongestMakesRoom) {
  const auto projector = std::make_shared<SimulatedProjector>();
  const auto check = [](int port, const std::string& says, qsizetype hears, qsizetype more) {
    std::deque<Client> clients;
    const auto states = [&] {
      std::string open;
      for (const Client& one : clients) open += one.IsOpen() ? '+' : '-';
      return open;
    };
    const auto connectOne = [&] {
      EXPECT_TRUE(clients.emplace_back(port, says).HasHeard(hears)) << clients.size();
    };
    while (clients.size() < 8) connectOne();
    shutdown(int(clients.back().socketDescriptor()), SHUT_WR);
    EXPECT_TRUE(clients.back().EndsSoon());
    connectOne();
    EXPECT_EQ(states(), "+++++++-+") << "a place was free";
    clients[0].Say(says);
    EXPECT_TRUE(clients[0].HasHeard(hears + more));
    connectOne();
    EXPECT_TRUE(clients[1].EndsSoon());
    EXPECT_EQ(states(), "+-+++++-++");
  };
  WireServer wire(projector);
  check(wire.Listen(QHostAddress::LocalHost, 0), kHello, 9, 9);
  PjLinkServer pjLink(projector, {});
  EXPECT_TRUE(pjLink.Listen("127.0.0.1", 0));
  check(pjLink.Port(), "%1CLSS ?\r", 18, 9);
}

/// A connection that owes something, and is not idle until it does not.
struct Guest final : ServedConnection {
  explicit Guest(QTcpSocket* socket) { socket->setParent(this); }
  std::size_t Backlog() const override { return owes; }
  std::size_t owes = 1;
};

TEST(Servers, AListenerServesOnlySoManyAndOthersWait) {
  std::vector<QPointer<Guest>> guests;
  TcpListener listener({.connections = 2, .readBuffer = 512}, [&](auto socket) {
    EXPECT_EQ(socket->state(), QAbstractSocket::ConnectedState);
    EXPECT_EQ(socket->readBufferSize(), 512);
    EXPECT_LT(std::ssize(guests) - std::ranges::count(guests, nullptr), 2);
    return guests.emplace_back(new Guest(socket.release())).data();
  });
  ASSERT_TRUE(listener.listen(QHostAddress::LocalHost));
  listener.pauseAccepting();  // as Qt does when there are no descriptors
  Q_EMIT listener.acceptError(QAbstractSocket::SocketResourceError);
  int came = 0;
  listener.connect(&listener, &QTcpServer::newConnection, [&came] { ++came; });
  const auto hasServed = [&](std::size_t count) {
    return Soon([&] { return guests.size() == count; });
  };
  const Client first(listener.serverPort(), ""), second(listener.serverPort(), "");
  EXPECT_TRUE(hasServed(2));
  { const Client leaves(listener.serverPort(), ""); }
  EXPECT_TRUE(Soon([&] { return came == 3 && !listener.findChild<QTcpSocket*>(); }));
  const Client third(listener.serverPort(), "");
  guests[1]->owes = 0;
  EXPECT_TRUE(hasServed(3));
  EXPECT_TRUE(second.EndsSoon() && first.IsOpen() && third.IsOpen());
  const Client fourth(listener.serverPort(), "");
  EXPECT_TRUE(Soon([&] { return listener.findChild<QTcpSocket*>(); }));
  delete guests[0];
  EXPECT_TRUE(hasServed(4));
  EXPECT_TRUE(first.EndsSoon() && third.IsOpen() && fourth.IsOpen());
}

TEST(Servers, EndConnectionsOfWhoSaysNothingOrDoesNotRead) {
  const auto projector = std::make_shared<SimulatedProjector>();
  const LineFault neverSends{.kind = LineFault::Kind::Late, .amount = 3'600'000};
  WireServer impatient(projector, 1s);
  const int port = impatient.Listen(QHostAddress::LocalHost, 0);
  const Client polite(port, kHello), silent(port, "");
  EXPECT_TRUE(silent.EndsSoon());
  EXPECT_TRUE(polite.IsOpen());

  WireServer wire(projector);
  wire.SetFault(neverSends);
  EXPECT_TRUE(Client(wire.Listen(QHostAddress::LocalHost, 0), kHello, 40'000).EndsSoon());
  PjLinkServer pjLink(projector, {});
  pjLink.SetFault(neverSends);
  EXPECT_TRUE(pjLink.Listen("127.0.0.1", 0));
  EXPECT_TRUE(Client(pjLink.Port(), "%1NAME ?\r", 2'500).EndsSoon());
  EXPECT_TRUE(Client(pjLink.Port(), "%", 4608).EndsSoon()) << "a line without end";
  PjLinkServer quick(projector, {.idle = 200ms});
  EXPECT_TRUE(quick.Listen("127.0.0.1", 0));
  EXPECT_TRUE(Client(quick.Port(), "").EndsSoon());
}

TEST(Servers, SayThatTheyCannotListen) {
  const auto projector = std::make_shared<SimulatedProjector>();
  WireServer first(projector), second(projector);
  const std::uint16_t taken = first.Listen(QHostAddress::LocalHost, 0);
  EXPECT_EQ(second.Listen(QHostAddress::LocalHost, taken), 0);
  EXPECT_NE(second.ErrorText(), "");
  PjLinkServer pjLink(projector, {});
  EXPECT_TRUE(PjLinkServer(projector, {}).Listen("127.77.0.1", 65535));
  EXPECT_FALSE(pjLink.Listen("127.0.0.1", taken) || pjLink.Listen("127.0.0.1", 65536) ||
               pjLink.Listen("127.0.0.1", -1) || pjLink.Listen("localhost", 0));
}

}  // namespace
