// The system's sockets, names and serial ports.

#include <asm/termbits.h>
#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QDir>
#include <QUdpSocket>

#include "fleet/Fleet.h"
#include "fleet/SerialLine.h"
#include "fleet/SocketNetwork.h"
#include "tests/fleet/Served.h"
#include "tests/fleet/SilentServer.h"
#include "tests/support/SystemLookUp.h"

namespace {

std::atomic<int> lookUps = 0;

}  // namespace

/// Replaces the system's function, for the library too: a name has two addresses, "late.test" not
/// before it is looked up again.
extern "C" [[gnu::visibility("default")]] int getaddrinfo(const char* name, const char* service,
                                                          const addrinfo* hints, addrinfo** found) {
  EXPECT_EQ(hints->ai_socktype, SOCK_STREAM);
  if (hints->ai_flags == AI_NUMERICHOST || !std::string_view(name).ends_with(".test")) {
    return systemLookUp(name, service, hints, found);
  }
  EXPECT_EQ(hints->ai_flags, AI_ADDRCONFIG);
  if (++lookUps == 1 && std::string_view(name) == "late.test") return EAI_AGAIN;
  const int result = systemLookUp("127.0.0.2", service, hints, found);
  return result != 0 ? result : systemLookUp("127.0.0.1", service, hints, &(*found)->ai_next);
}

namespace {

using namespace std::chrono_literals;

auto OpenFiles() { return QDir("/proc/self/fd").count(); }

struct NetworkTest : ServingTest {
  void TearDown() override {
    EXPECT_TRUE(Soon([&] { return OpenFiles() <= before; })) << "all are closed";
  }
  const decltype(OpenFiles()) before = OpenFiles();
};

TEST_F(NetworkTest, TriesEachAddressOfAName) {
  const Served served;
  lookUps = 0;
  {
    Fleet once({.interval = 1h, .connect = 1h});
    once.Set({"second", TcpAddress{.host = "two.test", .port = served.wirePort}});
    once.Set({"neither", TcpAddress{.host = "two.test", .port = 1}});
    EXPECT_TRUE(Soon([&] { return once.Tally().answered + once.Tally().unanswered == 2; }));
    EXPECT_EQ(once.State("second")->reachability, Reachability::Answers);
    EXPECT_EQ(once.State("neither")->reachability, Reachability::Silent);
  }
  // The first one lets nobody in, and does not refuse either.
  QTcpServer full;
  full.setListenBacklogSize(1);
  ASSERT_TRUE(full.listen(QHostAddress("127.0.0.2"), served.wirePort));
  full.pauseAccepting();
  QTcpSocket taken[2];
  for (QTcpSocket& one : taken) {
    one.connectToHost("127.0.0.2", served.wirePort);
    ASSERT_TRUE(one.waitForConnected());
  }
  Fleet late({.interval = 50ms, .longestPause = 50ms, .connect = 1s});
  late.Set({"a", TcpAddress{.host = "two.test", .port = served.wirePort}});
  EXPECT_TRUE(Soon([&] { return late.Tally().answered > 2; }));
  EXPECT_LE(lookUps, 3) << "known for a while";
  lookUps = 0;
  late.Set({"a", TcpAddress{.host = "late.test", .port = served.wirePort}});
  EXPECT_TRUE(Soon([&] { return late.State("a")->connection == ConnectionState::NameUnknown; }));
  EXPECT_TRUE(Soon([&] { return late.State("a")->reachability == Reachability::Answers; }));
}

struct Told final : FleetNetwork::Listener {
  using Peer = FleetNetwork::Peer;
  void Add(Peer peer, std::string_view what) {
    text += std::to_string(peer).append(" ").append(what).append("; ");
  }
  void Connected(Peer peer) override { Add(peer, "connected"); }
  void NotConnected(Peer peer, ConnectionState) override { Add(peer, "not connected"); }
  void InUse(Peer peer) override { Add(peer, "in use"); }
  void Received(Peer peer, std::string_view bytes) override { Add(peer, bytes); }
  void Closed(Peer peer) override { Add(peer, "closed"); }
  void Noticed(const FleetNetwork::Notice&) override { ++notices; }
  std::string text;
  int notices = 0;
};

TEST_F(NetworkTest, TellsOnlyOfThePresentAttempt) {
  SilentServer silent;
  const std::uint16_t port = silent.Address().port;
  SocketNetwork network;
  Told told;
  const auto tells = [&](const std::string& text) {
    const bool isTold = Soon([&] {
      network.Wait({});
      network.Pass(told);
      return told.text.size() >= text.size();
    });
    EXPECT_EQ(std::exchange(told.text, {}), text);
    return isTold;
  };
  const auto begun = std::chrono::steady_clock::now();
  network.Connect(0, "255.255.255.255", 1);
  network.Wait(SessionTime::max());  // it has failed at once
  network.Connect(0, "127.0.0.1", port);
  EXPECT_TRUE(tells("0 connected; "));
  const auto end = std::chrono::steady_clock::now() + 50ms;
  network.Wait(end);
  EXPECT_GE(std::chrono::steady_clock::now(), end) << "nothing happens";
  network.Connect(1, "127.0.0.1", port);
  network.Wait(SessionTime::max());
  network.Connect(1, "127.0.0.1", 1);
  EXPECT_TRUE(tells("1 not connected; "));
  ASSERT_TRUE(Soon([&] { return silent.Accept() == 2; }));
  silent.connections.front()->write("what?");
  EXPECT_TRUE(tells("0 what?; "));
  silent.connections.front()->close();
  EXPECT_TRUE(tells("0 closed; "));
  network.Connect(2, "two.test", port);
  network.Wait(SessionTime::max());  // it is found
  EXPECT_LT(std::chrono::steady_clock::now() - begun, 50s) << "each wait was ended";
  network.Close(2);
  network.Connect(3, "two.test", port);
  EXPECT_TRUE(tells("3 connected; "));
  network.Send(3, std::string(1 << 26, 'x'));
  EXPECT_TRUE(tells("3 closed; ")) << "more than there is room for";

  const std::uint16_t noticed = network.ListenForNotices("127.0.0.1", 0);
  QUdpSocket projector;
  projector.setProxy(QNetworkProxy::NoProxy);  // looking for one takes a thread
  for (int i = 0; i < 65; ++i)
    projector.writeDatagram("%2POWR=1\r", silent.server.serverAddress(), noticed);
  for (const int count : {64, 65}) {
    network.Wait(SessionTime::max());
    network.Pass(told);
    EXPECT_EQ(told.notices, count) << "a flood leaves time for others";
  }
}

TEST_F(NetworkTest, SetsASerialPortUpWhateverItWas) {
  const int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_TRUE(grantpt(master) == 0 && unlockpt(master) == 0);
  const std::string path = ptsname(master);
  pollfd line{.fd = open(path.c_str(), O_RDWR | O_NOCTTY), .events = POLLIN, .revents = 0};
  termios2 now{};
  ASSERT_EQ(ioctl(line.fd, TCGETS2, &now), 0);
  now.c_cc[VMIN] = 0;
  now.c_cc[VTIME] = 9;
  now.c_cflag |= CSTOPB;
  ASSERT_EQ(ioctl(line.fd, TCSETS2, &now), 0);
  EXPECT_TRUE(write(master, "noise\n", 6) == 6 && poll(&line, 1, -1) == 1);
  auto problem = SerialLine::Problem::None;
  const int file = SerialLine::Open(path, 57'600, problem);
  EXPECT_EQ(SerialLine::Open(path, 57'600, problem), -1);
  EXPECT_EQ(problem, SerialLine::Problem::InUse);
  ASSERT_EQ(ioctl(file, TCGETS2, &now), 0);
  EXPECT_EQ(now.c_iflag | now.c_oflag | now.c_lflag, 0U);
  EXPECT_EQ(now.c_cflag & (CSIZE | CSTOPB | PARENB | CREAD | CLOCAL), CS8 | CREAD | CLOCAL);
  EXPECT_EQ(std::pair(now.c_ispeed, now.c_ospeed), std::pair(57'600U, 57'600U));
  EXPECT_TRUE(now.c_cc[VMIN] == 1 && now.c_cc[VTIME] == 0) << "a read that finds nothing is no end";
  int pending = -1;
  EXPECT_EQ(ioctl(file, FIONREAD, &pending), 0);
  EXPECT_EQ(pending, 0) << "of what came before";
  SerialLine::Close(file);
  close(line.fd);
  close(master);
}

}  // namespace
