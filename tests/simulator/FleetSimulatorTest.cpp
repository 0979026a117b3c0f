// The simulator as a process that serves many projectors.

#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <set>
#include <tuple>

#include <QTemporaryDir>
#include <QUdpSocket>

#include "tests/support/Programs.h"
#include "tests/support/Soon.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr int kTimeOut = 20'000;
constexpr std::size_t kCount = 40;

class FleetSimulator : public testing::Test {
 protected:
  void Start(const QStringList& more) {
    simulator_.reset();
    simulator_.emplace(QStringList{"--fleet", QString::number(kCount), "--control", "0"} + more);
    port_ = simulator_->Address("pjlink").section(':', -1).toUShort();
  }

  std::string Control(const QByteArray& line) const { return simulator_->Control(line); }

  static QHostAddress AddressOf(std::size_t projector) {
    return QHostAddress(0x7F400001U + static_cast<quint32>(projector));
  }

  /// What follows the greeting, "-" where the connection ends or nothing comes.
  std::string Ask(const QHostAddress& address, const QByteArray& request) {
    QTcpSocket socket;
    socket.connectToHost(address, port_);
    const auto line = [&] {
      while (!socket.canReadLine() && !socket.peek(200).contains('\r')) {
        if (!socket.waitForReadyRead(kTimeOut)) return std::string("-");
      }
      std::string text;
      for (char c = 0; socket.getChar(&c) && c != '\r';) text += c;
      return text;
    };
    if (line() != "PJLINK 0") return "-";
    socket.write(request + '\r');
    return line();
  }

  /// Adds the datagrams that come, by sender, until it is enough or nothing comes any more.
  static void Gather(QUdpSocket& from, std::map<quint32, std::string>& told, const auto& isEnough) {
    while (!isEnough() && from.waitForReadyRead(kTimeOut)) {
      while (from.hasPendingDatagrams()) {
        QByteArray text(200, '\0');
        QHostAddress sender;
        text.truncate(from.readDatagram(text.data(), text.size(), &sender));
        told[sender.toIPv4Address()] += text.toStdString();
      }
    }
  }

  std::optional<SimulatorProcess> simulator_;
  std::uint16_t port_ = 0;
};

TEST_F(FleetSimulator, ProjectorsDifferAndAreTheSameForTheSameSeed) {
  const auto everything = [this] {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < kCount; ++i) {
      for (const char* question : {"NAME", "CLSS", "POWR", "ERST", "LAMP"}) {
        all.push_back(Ask(AddressOf(i), QByteArray("%1") + question + " ?"));
      }
    }
    return all;
  };
  Start({});
  const auto first = everything();
  EXPECT_EQ(first[0], "%1NAME=Projector 00001");
  for (const char* some : {"%1CLSS=1", "%1CLSS=2", "%1POWR=0", "%1POWR=1", "%1ERST=000000"}) {
    EXPECT_THAT(first, testing::Contains(some));
  }
  EXPECT_GT(std::set(first.begin(), first.end()).size(), 60U) << "lamps differ";
  // The end of the last connection may arrive after the command.
  std::string counts;
  EXPECT_TRUE(Soon([&] {
    return (counts = Control("* count")).find(" open 0 ") != std::string::npos;
  })) << counts;
  EXPECT_EQ(counts, "connections 200 open 0 at-once 1 requests 200 changes 0 polls 40 pause -");
  Start({});
  EXPECT_EQ(everything(), first);
  Start({"--seed", "2"});
  EXPECT_NE(everything(), first);
}

TEST_F(FleetSimulator, SomeHaveEachKindOfError) {
  Start({"--fleet", "400"});
  std::map<std::size_t, int> kinds;
  for (std::size_t i = 0; i < 400; ++i)
    ++kinds[Ask(AddressOf(i), "%1ERST ?").find_first_of("12", 7)];
  EXPECT_EQ(kinds.size(), 1 + 6U) << "none; fan, lamp, temperature, cover, filter, other";
  EXPECT_NEAR(kinds[std::string::npos], 365, 15);
}

TEST_F(FleetSimulator, AnswersOnTheWireToo) {
  Start({});
  QTcpSocket wire;
  wire.connectToHost(AddressOf(6), simulator_->Address("tcp").section(':', -1).toUShort());
  const auto exchange = [&wire](const char* sent, qsizetype size) {
    wire.write(QByteArray::fromHex(sent));
    while (wire.bytesAvailable() < size && wire.waitForReadyRead(kTimeOut)) continue;
    return wire.read(size).toHex().toStdString();
  };
  EXPECT_EQ(exchange("a55a010200010101b7a1", 9), "a55a0201000101cd15");
  const char* const question = "a55a0308000200d32003000000000470";  // Brightness
  EXPECT_EQ(exchange(question, 15), "a55a040700020000000001008040cf");
  EXPECT_EQ(Control("7 refuse"), "ok");
  EXPECT_THAT(exchange(question, 15), testing::StartsWith("a55a0407000200000000000000"));
  EXPECT_EQ(Control("7 count"),
            "connections 1 open 1 at-once 1 requests 2 changes 0 polls 0 pause -");
}

TEST_F(FleetSimulator, AShareHasAFault) {
  Start({"--fault", "refuse 5%", "--fault", "cut 9 10%"});
  std::map<std::string, int> answers;
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::string answer = Ask(AddressOf(i), "%1LAMP ?");
    ++answers[answer == "%1LAMP=ERR1" || answer == "-" ? answer : "hours"];
  }
  EXPECT_EQ(answers, (std::map<std::string, int>{{"-", 4}, {"%1LAMP=ERR1", 2}, {"hours", 34}}));
  EXPECT_EQ(Control("3 silent 5%"), Control("3 silence")) << "a share of one";
  EXPECT_EQ(Control("* none"), "ok");
  EXPECT_EQ(Control("4 refuse"), "ok");
  EXPECT_EQ(Ask(AddressOf(3), "%1POWR ?"), "%1POWR=ERR1");
  EXPECT_EQ(Ask(AddressOf(4), "%1INF1 ?"), "%1INF1=Advanced Control");
}

TEST_F(FleetSimulator, ADelayedRefusalClosesTheConnection) {
  for (const char* fault : {"late 20", "trickle"}) {
    Start({"--password", "secret", "--fault", fault});
    QTcpSocket socket;
    socket.connectToHost(AddressOf(0), port_);
    socket.write(QByteArray(32, '0') + "%1POWR ?\r");  // a wrong proof
    std::string text;
    while (socket.waitForReadyRead(kTimeOut)) text += socket.readAll().toStdString();
    EXPECT_THAT(text, EndsWith("PJLINK ERRA\r")) << fault;
    EXPECT_EQ(socket.state(), QAbstractSocket::UnconnectedState) << fault;
  }
}

TEST_F(FleetSimulator, SwitchingTakesTimeAndNoticesTellOfIt) {
  QUdpSocket listener;
  ASSERT_TRUE(listener.bind(QHostAddress::LocalHost, 0));
  Start({"--warm-up", "0.3", "--notices", QString("127.0.0.1:%1").arg(listener.localPort())});
  std::map<quint32, std::string> told;
  const auto wait = [&](quint32 from, const char* notice) {
    Gather(listener, told, [&] { return told[from].find(notice) != std::string::npos; });
    return told[from];
  };
  std::size_t second = 0;  // of class 2 and in standby
  while (Ask(AddressOf(second), "%1CLSS ?") != "%1CLSS=2" ||
         Ask(AddressOf(second), "%1POWR ?") != "%1POWR=0") {
    ASSERT_LT(++second, kCount);
  }
  const quint32 from = AddressOf(second).toIPv4Address();
  EXPECT_THAT(wait(from, "%2POWR=0\r"), HasSubstr("%2LKUP=02:00:00:00:00:"));
  EXPECT_EQ(Ask(AddressOf(second), "%1POWR 1"), "%1POWR=OK");
  EXPECT_THAT(wait(from, "%2POWR=1\r"), HasSubstr("%2POWR=3\r"));
  EXPECT_EQ(Ask(AddressOf(second), "%1POWR ?"), "%1POWR=1");
  EXPECT_EQ(Control(QByteArray::number(qulonglong(second + 1)) + " errors 020100"), "ok");
  EXPECT_THAT(wait(from, "%2ERST=020100\r"), EndsWith("%2ERST=020100\r"));
}

TEST_F(FleetSimulator, AnswersASearchWhereItHasMoved) {
  Start({});
  QUdpSocket asker;
  ASSERT_TRUE(asker.bind(QHostAddress::LocalHost, 0));
  const auto answer = [&](const QHostAddress& to) {
    asker.writeDatagram("%2SRCH\r", to, port_);
    std::map<quint32, std::string> answers;
    Gather(asker, answers, [&] { return !answers.empty(); });
    return answers[to.toIPv4Address()];
  };
  std::size_t one = 1;
  while (Ask(AddressOf(one), "%1CLSS ?") != "%1CLSS=2") ASSERT_LT(++one, kCount);
  const std::string itself = answer(AddressOf(one));
  EXPECT_THAT(itself, MatchesRegex("%2ACKN=02:00:00:00:00:..\r"));
  const QByteArray number = QByteArray::number(qulonglong{one} + 1);
  EXPECT_EQ(Control(number + " address 127.64.9.9"), "ok");
  EXPECT_EQ(Ask(AddressOf(one), "%1CLSS ?"), "-");
  EXPECT_EQ(answer(QHostAddress("127.64.9.9")), itself);
  EXPECT_EQ(Control(number + " address 127.64.0.1"), "error: another projector has 127.64.0.1");
}

TEST(WrittenProfiles, ReplaceNothingElse) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("real.json");
  const QString link = folder.filePath("link");
  const QStringList arguments{"--projector", "Projector 5-30", "--write-profiles", file};
  Write(file, "");
  const QStringList ways[] = {{"--serial"}, {"--address", "0.0.0.0"}, {"--fleet", "2"}, {}};
  for (const QStringList& more : ways) const SimulatorProcess replaces(arguments + more);
  const QByteArray written = Contents(file);
  ASSERT_TRUE(QFile::link(file, link));
  using Case = std::tuple<const char*, const char*, QStringList, const char*>;
  for (const auto& [from, to, more, told] :
       {Case{"-simulator\"", "\"", {}, "this program has not written it"},
        Case{"\"projectors\": [", "\"projectors\": [{}, ", {}, "this program has not written it"},
        Case{"\"projectors\"", "\"x-\"", {}, "this program has not written it"},
        Case{"0.0.1", "0.0.2", {"--address", "192.0.2.7"}, "port 0"},
        Case{"{", "[", {}, "this program has not written it"},
        Case{"{", "{", {"--profiles", link}, "the projectors are read from"}}) {
    const QByteArray text = QByteArray(written).replace(from, to);
    Write(file, text);
    const Outcome refused = ::Run(SIMULATOR_PROGRAM, arguments + more);
    EXPECT_EQ(refused.exitCode, 2) << to;
    EXPECT_THAT(refused.errors, HasSubstr(told));
    EXPECT_EQ(Contents(file), text);
  }
}

}  // namespace
