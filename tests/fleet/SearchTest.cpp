// Finding projectors on the network, and entering them in a profile file.

#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include <QNetworkDatagram>
#include <QRegularExpression>
#include <QUdpSocket>

#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "fleet/SearchDriver.h"
#include "fleet/SearchProfiles.h"
#include "fleet/SearchRange.h"
#include "simulator/PjLinkProjectorSession.h"
#include "tests/fleet/Served.h"
#include "tests/fleet/SilentServer.h"
#include "tests/support/Programs.h"
#include "tests/support/Record.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// What a text means that a person or a projector wrote.
QString Meaning(const QString& kind, const QString& text) {
  if (kind == "answer") {
    return QString::fromStdString(ParseSearchAnswer(text.toStdString()).value_or("no answer"));
  }
  const auto [addresses, error] = ParseSearchRange(text);
  if (!error.isEmpty()) return error;
  return QString("%1: %2 to %3")
      .arg(addresses.size())
      .arg(addresses.front().toString(), addresses.back().toString());
}

// Each line of the record has a text, and what it means.
TEST(SearchTexts, MeanWhatIsRecorded) {
  const std::string file = TEST_SOURCE_DIR "/fleet/Searches.txt";
  QString now;
  for (const QString& line : QString(Contents(file.c_str())).split('\n', Qt::SkipEmptyParts)) {
    const QString asked = line.section(" =>", 0, 0);
    QString text = asked.section(' ', 1);
    text.replace("\\r", "\r").replace("\\n", "\n").replace("\\0", QChar(0));
    now += asked + " => " + Meaning(asked.section(' ', 0, 0), text) + '\n';
  }
  ExpectRecord(file, now.toStdString());
}

TEST(NetworkBroadcasts, AreThoseOfNetworksThatAreUp) {
  const auto at = [](const char* ip, int bits, const char* broadcast = "") {
    QNetworkAddressEntry entry;
    entry.setIp(QHostAddress(ip));
    entry.setPrefixLength(bits);
    if (*broadcast != 0) entry.setBroadcast(QHostAddress(broadcast));
    return entry;
  };
  using enum QNetworkInterface::InterfaceFlag;
  const std::vector<MachineNetwork> networks{
      {IsUp | IsLoopBack, {at("127.0.0.1", 8)}},
      {IsUp | CanBroadcast,
       {at("192.0.2.7", 24, "192.0.2.255"), at("198.51.100.9", 22, "198.51.103.255"),
        at("2001:db8::7", 64)}},
      {IsUp | CanBroadcast, {at("192.0.2.8", 24, "192.0.2.255")}},        // the same by radio
      {CanBroadcast, {at("203.0.113.1", 24, "203.0.113.255")}},           // not up
      {IsUp | IsPointToPoint, {at("203.0.113.2", 24, "203.0.113.255")}},  // a tunnel
      {IsUp | CanBroadcast, {at("203.0.113.3", 32)}}};
  EXPECT_THAT(BroadcastsOf(networks),
              ElementsAre(QHostAddress("192.0.2.255"), QHostAddress("198.51.103.255")));
  EXPECT_THAT(BroadcastsOf({}), SizeIs(0));
  for (const QHostAddress& own : NetworkBroadcasts()) EXPECT_FALSE(own.isNull());
}

int connections = 0;  // in the last conversation

// The whole of a conversation in memory.
FoundProjector Inquire(const ServedProjector& served, const std::string& wanted,
                       const std::string& given, int answers = 100) {
  SimulatedProjector projector;
  PjLinkResponder responder(std::shared_ptr<ProjectorChannel>(&projector, [](auto*) {}), served);
  std::optional<PjLinkProjectorSession> end;
  SearchInquiry inquiry({.address = "192.0.2.1", .port = 4352}, given, {});
  const PjLinkTime now{};
  connections = 0;
  using enum PjLinkStep::Kind;
  for (int steps = 0; steps < 200; ++steps) {
    const PjLinkStep step = inquiry.Next(now);
    auto& connection = inquiry.Connection();
    if (step.kind == Connect) {
      ++connections;
      end.emplace(responder, wanted);
      connection.Connected();
      connection.Received(end->Greeting(), now);
    } else if (step.kind == Send && --answers < 0) {
      connection.Closed(now);
    } else if (step.kind == Send) {
      end->Add(step.bytes);
      while (const auto exchange = end->Next()) connection.Received(exchange->reply, now);
    } else if (step.kind != Close) {
      EXPECT_TRUE(step.kind == Finished && inquiry.HasFound()) << "waits, or has found nothing";
      return inquiry.Found();
    }
  }
  ADD_FAILURE() << "goes on for ever";
  return inquiry.Found();
}

TEST(SearchInquiry, LearnsWhoAndWhatAProjectorIs) {
  ServedProjector served{.inputs = {{"31", 3, "HDMI"}, {"5A", 4, "LAN"}}};
  served.texts["NAME"] = "Hall";
  served.texts["SNUM"] = "X-17";
  FoundProjector found = Inquire(served, "open", "open");
  EXPECT_EQ(found.name + '/' + found.maker + '/' + found.model + '/' + found.serial,
            "Hall/Advanced Control/Simulation/X-17");
  EXPECT_EQ(found.protocolClass, '2');
  EXPECT_THAT(found.inputs, ElementsAre(PjLinkInput{31, "HDMI"}, PjLinkInput{510, "LAN"}));

  found = Inquire(served, "open", "");
  EXPECT_TRUE(found.needsPassword);
  EXPECT_EQ(found.name, "");
  EXPECT_EQ(connections, 1) << "asked no more";

  served.protocolClass = 1;
  served.inputs.clear();
  found = Inquire(served, "", "");
  EXPECT_EQ(found.name + '/' + found.serial, "Hall/");
  found = Inquire(served, "", "", 2);
  EXPECT_EQ(found.name + '/' + found.maker + '/' + found.model, "Hall/Advanced Control/")
      << "it has left then";
  EXPECT_THAT(found.inputs, SizeIs(0));
  EXPECT_EQ(connections, 8);
}

const QByteArray kFile = Contents(TEST_SOURCE_DIR "/fleet/Searched.json");

// Takes what the record has found into the file, and tells the lines that are new.
TEST(SearchProfiles, TakeWhatIsFoundAsRecorded) {
  const std::string file = TEST_SOURCE_DIR "/fleet/Taken.txt";
  std::string now;
  std::vector<FoundProjector> found;
  QByteArray before = kFile;
  for (const QByteArray& line : Contents(file.c_str()).split('\n')) {
    if (line.isEmpty() || line.startsWith(' ')) continue;
    now += line.toStdString() + '\n';
    if (!line.startsWith("taken")) {
      const QList<QByteArray> cells = line.split('|');
      const QByteArray flag = cells.value(5);
      found.push_back({.address = cells[0].toStdString(),
                       .port = 4352,
                       .mac = cells.value(3).toStdString(),
                       .name = cells.value(1).toStdString(),
                       .maker = "Maker",
                       .model = cells.value(4, "M 30").toStdString(),
                       .serial = cells.value(2).toStdString()});
      if (flag == "moved port") found.back().port = 4400;
      if (flag == "inputs") found.back().inputs = {{31, "HDMI"}, {32, "HDMI"}};
      if (flag.startsWith("maker ")) found.back().maker = flag.mid(6).toStdString();
      if (flag.startsWith("host ")) found.back().hostNames = {flag.mid(5).toStdString()};
      found.back().needsPassword = flag == "locked";
      continue;
    }
    const QByteArray password = line.mid(6).replace("\\n", "\n");
    const TakenProjectors taken =
        TakeFound(before, std::exchange(found, {}), password.toStdString());
    EXPECT_EQ(ParseProfileList(taken.text, "p.json").error.toStdString(), "");
    QString text = QString("  moved: %1; known: %2; added: %3\n")
                       .arg(taken.moved.join(", "))
                       .arg(taken.known)
                       .arg(taken.added.join(", "));
    for (const QByteArray& one : taken.text.split('\n')) {
      if (!before.split('\n').contains(one)) text += "  " + one.trimmed() + '\n';
    }
    now += text.replace(QRegularExpression("\"id:[-0-9a-f]+"), "\"id:…").toStdString();
    before = line.startsWith("taken first") ? taken.text : kFile;
  }
  ExpectRecord(file, now);
}

/// A search, with what it has found by address.
struct Searching {
  explicit Searching(const SearchOptions& options)
      : driver(
            options, [this](const FoundProjector& one) { found[one.address] = one; },
            [this] { ++ends; }) {
    driver.Start();
  }
  std::map<std::string, FoundProjector> found;
  int ends = 0;
  SearchDriver driver;
};

using SearchDriverTest = ServingTest;

TEST_F(SearchDriverTest, WaitsForNobodyForEver) {
  std::optional<SilentServer> silent(std::in_place);
  SearchOptions options{.addresses = {QHostAddress(QHostAddress::LocalHost)},
                        .port = silent->server.serverPort(),
                        .answers = 1ms,
                        .limits = {.connect = 1h}};
  std::optional<Searching> search(options);
  EXPECT_TRUE(Soon([&] { return silent->Open() == 1; }));
  search.reset();
  EXPECT_TRUE(Soon([&] { return silent->Open() == 0; })) << "abandoned";
  options.broadcasts = options.addresses;
  options.limits.connect = 50ms;
  search.emplace(options);
  EXPECT_TRUE(Soon([&] { return search->ends == 1; })) << "says nothing";
  options.limits = {.connect = 1h, .pause = 1ms};
  search.emplace(options);
  const std::size_t before = silent->Accept();
  EXPECT_TRUE(Soon([&] { return silent->Accept() == before + 1; }));
  silent->connections.back()->close();
  EXPECT_TRUE(Soon([&] { return silent->Accept() == before + 2; })) << "was not ready";
  silent->connections.back()->write("PJLINK ERRA\r");
  EXPECT_TRUE(Soon([&] { return search->ends == 1; }));
  EXPECT_THAT(search->found, SizeIs(1));
  silent.reset();
  options.limits.pause = 1h;
  options.addresses.push_back(QHostAddress("255.255.255.255"));  // fails at once
  search.emplace(options);
  EXPECT_TRUE(Soon([&] { return search->ends == 1; })) << "is not there";
  EXPECT_THAT(search->found, SizeIs(0));
  EXPECT_EQ(search->driver.Done(), 2U);
}

TEST_F(SearchDriverTest, LearnsMacNumbersFromAnswers) {
  SilentServer silent(QHostAddress::AnyIPv4);
  const std::uint16_t port = silent.server.serverPort();
  const QHostAddress first("127.0.0.1"), second("127.0.0.2");
  QUdpSocket projector, other;
  ASSERT_TRUE(projector.bind(first, port) && other.bind(second));
  Searching search({.addresses = {first, second},
                    .broadcasts = {first},
                    .port = port,
                    .answerPort = port,
                    .atOnce = 1,
                    .answers = 1h,
                    .limits = {.connect = 1h}});
  ASSERT_TRUE(Soon([&] { return silent.Accept() == 1 && projector.hasPendingDatagrams(); }));
  const QNetworkDatagram question = projector.receiveDatagram();
  EXPECT_EQ(question.data(), QByteArray("%2SRCH\r"));
  for (QUdpSocket* const one : {&projector, &other}) {
    for (const char* const text :
         {"", "what?", "%2ACKN=00:00:5e:00:53:02\r", "%2ACKN=00:00:5e:00:53:03\r"}) {
      one->writeDatagram(text, first, static_cast<quint16>(question.senderPort()));
    }
  }
  EXPECT_TRUE(Soon([&] { return projector.hasPendingDatagrams(); })) << "asks again";
  for (std::size_t i = 0; i < 2; ++i) {
    ASSERT_TRUE(Soon([&] { return silent.Accept() == i + 1; }));
    silent.connections.back()->write("PJLINK ERRA\r");
  }
  EXPECT_TRUE(Soon([&] { return search.driver.Done() == 2; }));
  EXPECT_EQ(search.found["127.0.0.1"].mac, "");
  EXPECT_EQ(search.found["127.0.0.2"].mac, "00:00:5e:00:53:02");
  EXPECT_EQ(search.driver.Count(), 2U);
  EXPECT_EQ(search.driver.Problem(), "") << "another port does too";
}

// The simulator program answers, at loopback addresses alone.
TEST_F(SearchDriverTest, FindsAFleetByRangeAndByBroadcast) {
  constexpr std::size_t kCount = 20;
  const SimulatorProcess simulator({"--fleet", QString::number(kCount), "--control", "0"});
  SearchOptions options;
  options.port = simulator.Address("pjlink").section(':', -1).toUShort();
  options.answerPort = 0;
  options.answers = std::chrono::seconds(60);
  options.limits = {.connect = std::chrono::seconds(30), .answer = std::chrono::seconds(30)};
  options.addresses = ParseSearchRange("127.64.0.1-127.64.0.20").addresses;
  options.perSecond = 25;
  const auto start = std::chrono::steady_clock::now();
  const Searching byRange(options);
  EXPECT_TRUE(Soon([&] { return byRange.ends == 1; }));
  EXPECT_GE(std::chrono::steady_clock::now() - start, 700ms);
  ASSERT_THAT(byRange.found, SizeIs(kCount));
  const auto isSecond = [](const auto& found) { return found.second.protocolClass == '2'; };
  const auto ofSecondClass = std::ranges::count_if(byRange.found, isSecond);
  EXPECT_GT(ofSecondClass, 0);
  options.addresses.clear();
  options.broadcasts = {QHostAddress("127.255.255.255")};
  const Searching byBroadcast(options);
  EXPECT_TRUE(Soon([&] { return std::ssize(byBroadcast.found) == ofSecondClass; }));
  EXPECT_EQ(byRange.ends, 1);
  for (const auto& [address, found] : byRange.found) {
    const auto same = byBroadcast.found.find(address);
    EXPECT_EQ(same != byBroadcast.found.end(), found.protocolClass == '2') << address;
    if (same == byBroadcast.found.end()) continue;
    EXPECT_NE(found.serial, "") << "and all before it";
    EXPECT_EQ(same->second.serial, found.serial);
    EXPECT_EQ(same->second.inputs, found.inputs);
    EXPECT_THAT(same->second.mac, HasSubstr("02:00:00:00:00:"));
  }
}

}  // namespace
