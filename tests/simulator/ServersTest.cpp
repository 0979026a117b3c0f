#include <memory>
#include <string>

#include <QHostAddress>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "device/protocol/WireFrame.h"
#include "simulator/PjLinkServer.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireServer.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;

/// A client of a server in the same thread, which says something often and reads nothing.
struct Client : QTcpSocket {
  Client(int port, const std::string& says, int times = 1) {
    connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    EXPECT_TRUE(waitForConnected());
    write(QByteArray::fromStdString(says).repeated(times));
  }
  bool IsOpen() const { return state() == ConnectedState; }
  bool EndsSoon() const {
    return Soon([this] { return !IsOpen(); });
  }
};

TEST(Servers, EndConnectionsOfWhoSaysNothingOrDoesNotRead) {
  const auto projector = std::make_shared<SimulatedProjector>();
  const LineFault neverSends{.kind = LineFault::Kind::Late, .amount = 3'600'000};
  std::string hello;
  Wire::Append(hello, {1, Wire::Hello{}});
  WireServer impatient(projector, 1s);
  const int port = impatient.Listen(QHostAddress::LocalHost, 0);
  const Client polite(port, hello), silent(port, "");
  EXPECT_TRUE(silent.EndsSoon());
  EXPECT_TRUE(polite.IsOpen());

  WireServer wire(projector);
  wire.SetFault(neverSends);
  EXPECT_TRUE(Client(wire.Listen(QHostAddress::LocalHost, 0), hello, 40'000).EndsSoon());
  PjLinkServer pjLink(projector, {});
  pjLink.SetFault(neverSends);
  EXPECT_TRUE(pjLink.Listen("127.0.0.1", 0));
  EXPECT_TRUE(Client(pjLink.Port(), "%1NAME ?\r", 2'500).EndsSoon());
}

TEST(Servers, SayThatTheyCannotListen) {
  const auto projector = std::make_shared<SimulatedProjector>();
  WireServer first(projector), second(projector);
  const std::uint16_t taken = first.Listen(QHostAddress::LocalHost, 0);
  EXPECT_EQ(second.Listen(QHostAddress::LocalHost, taken), 0);
  EXPECT_NE(second.ErrorText(), "");
  PjLinkServer pjLink(projector, {});
  EXPECT_FALSE(pjLink.Listen("127.0.0.1", taken) || pjLink.Listen("127.0.0.1", 65536) ||
               pjLink.Listen("127.0.0.1", -1) || pjLink.Listen("localhost", 0));
}

}  // namespace
