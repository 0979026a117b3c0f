// How a simulated projector's replies leave, and how its ports go on.

#include <QBuffer>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTest>
#include <gtest/gtest.h>

#include "simulator/FaultyLine.h"
#include "simulator/PjLinkServer.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Limited.h"
#include "tests/support/Soon.h"

namespace {

using Faulty = LineFault::Kind;

TEST(FaultyLine, ClosesWhenEverythingIsWritten) {
  for (const Faulty kind : {Faulty::None, Faulty::Late, Faulty::Trickle}) {
    QBuffer line;
    ASSERT_TRUE(line.open(QIODevice::WriteOnly));
    const LineFault fault{kind, 1};
    FaultyLine replies(line, fault);
    replies.Send("ab");
    replies.Send("cd");
    EXPECT_EQ(replies.Backlog(), kind == Faulty::None ? 0U : kind == Faulty::Late ? 4U : 3U);
    replies.Close();
    replies.Send("nothing more");
    EXPECT_TRUE(Soon([&] { return !line.isOpen(); }));
    EXPECT_EQ(line.data(), "abcd");
  }
  QBuffer line;
  ASSERT_TRUE(line.open(QIODevice::WriteOnly));
  LineFault fault{Faulty::Silent};
  FaultyLine replies(line, fault);
  replies.Send("lost");
  fault = {Faulty::Garbage};
  replies.Send("ab");
  fault = {Faulty::Cut, 1};
  replies.Send("cut");
  EXPECT_EQ(line.data(), "??c");
  EXPECT_TRUE(line.isOpen()) << "as a serial line stays";
  fault = {Faulty::Late, 1};
  replies.Send("late");
  line.close();
  EXPECT_TRUE(Soon([&] { return replies.Backlog() == 0; }));
  EXPECT_EQ(line.data(), "??c") << "the other end has left meanwhile";
}

TEST(TcpListener, GoesOnWhenFilesWereUsedUp) {
  PjLinkServer server(std::make_shared<SimulatedProjector>(), {});
  ASSERT_TRUE(server.Listen("127.0.0.1", 0));
  QTcpSocket first, second;
  // Connects while the server cannot accept.
  const auto connect = [&](QTcpSocket& client) {
    client.setProxy(QNetworkProxy::NoProxy);
    client.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(server.Port()));
    const NoFilesLeft files;
    EXPECT_TRUE(client.waitForConnected());
    QTest::qWait(20);
    EXPECT_EQ(client.bytesAvailable(), 0);
  };
  connect(first);
  EXPECT_TRUE(Soon([&] { return first.canReadLine() || first.bytesAvailable() > 0; }));
  connect(second);
  server.Close();
  QTest::qWait(150);  // it must not accept again
  EXPECT_TRUE(Soon([&] {
    return first.state() == QAbstractSocket::UnconnectedState &&
           second.state() == QAbstractSocket::UnconnectedState;
  }));
}

}  // namespace
