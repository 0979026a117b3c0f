#include <memory>
#include <string>
#include <utility>

#include <QHostAddress>
#include <QPointer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "device/protocol/WireFrame.h"
#include "simulator/PjLinkServer.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireServer.h"
#include "tests/device/Replies.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;

const LineFault kNeverSends{.kind = LineFault::Kind::Late, .amount = 3'600'000};

/// A client of a server in the same thread.
struct Client : QTcpSocket {
  Client(int port, const std::string& says) {
    connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    EXPECT_TRUE(waitForConnected());
    write(says.data(), static_cast<qint64>(says.size()));
  }
  bool IsOpen() const { return state() == ConnectedState; }
  bool EndsSoon() const {
    return Soon([this] { return !IsOpen(); });
  }
};

/// A line on which everything has been said.
class SpokenLine final : public QIODevice {
 public:
  explicit SpokenLine(std::string bytes) : bytes_(std::move(bytes)) {
    open(ReadWrite | Unbuffered);
  }
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char* into, qint64 most) override {
    const std::size_t size = bytes_.copy(into, static_cast<std::size_t>(most), at_);
    at_ += size;
    return static_cast<qint64>(size);
  }
  qint64 writeData(const char*, qint64 size) override { return size; }

 private:
  const std::string bytes_;
  std::size_t at_ = 0;
};

std::string Times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST(Servers, EndConnectionsOfWhoSaysNothingOrDoesNotRead) {
  const auto projector = std::make_shared<SimulatedProjector>();
  std::string hello, request;
  Wire::Append(hello, {1, Wire::Hello{}});
  Wire::Append(request, {2, Wire::MakeRequest(Get(0x2003))});

  WireServer impatient(projector, 100ms);
  const int port = impatient.Listen(QHostAddress::LocalHost, 0);
  const Client polite(port, hello), silent(port, "");
  EXPECT_TRUE(silent.EndsSoon());
  EXPECT_TRUE(polite.IsOpen());

  WireServer wire(projector);
  wire.SetFault(kNeverSends);
  const auto serves = [&](int count) {
    auto line = std::make_unique<SpokenLine>(hello + Times(count, request));
    const QPointer<QIODevice> served = line.get();
    wire.Serve(std::move(line));
    return served;
  };
  const auto modest = serves(17'475), greedy = serves(17'476);
  EXPECT_TRUE(Soon([&] { return greedy.isNull(); }));
  EXPECT_FALSE(modest.isNull()) << "a quarter of a megabyte may wait";

  PjLinkServer pjLink(projector, {});
  pjLink.SetFault(kNeverSends);
  EXPECT_TRUE(pjLink.Listen("127.0.0.1", 0));
  EXPECT_TRUE(Client(pjLink.Port(), Times(2'500, "%1NAME ?\r")).EndsSoon());
}

TEST(Servers, SayThatTheyCannotListen) {
  const auto projector = std::make_shared<SimulatedProjector>();
  WireServer first(projector), second(projector);
  const std::uint16_t taken = first.Listen(QHostAddress::LocalHost, 0);
  EXPECT_EQ(second.Listen(QHostAddress::LocalHost, taken), 0);
  EXPECT_NE(second.ErrorText(), "");
  PjLinkServer pjLink(projector, {});
  for (const auto& [address, port] : {std::pair("127.0.0.1", int{taken}),
                                      {"", 0},
                                      {"localhost", 0},
                                      {"127.0.0.1", -1},
                                      {"127.0.0.1", 65536}}) {
    EXPECT_FALSE(pjLink.Listen(address, port)) << address << ' ' << port;
  }
  EXPECT_EQ(pjLink.Port(), 0);
}

}  // namespace
