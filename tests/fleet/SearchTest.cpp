// Finding projectors on the network, and entering them in a profile file.

#include <algorithm>
#include <chrono>
#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <QNetworkDatagram>
#include <QUdpSocket>

#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "fleet/SearchDriver.h"
#include "fleet/SearchProfiles.h"
#include "fleet/SearchRange.h"
#include "simulator/PjLinkProjectorSession.h"
#include "simulator/SimulatedProjector.h"
#include "tests/fleet/SilentServer.h"
#include "tests/support/Programs.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

TEST(SearchRange, IsReadAsPeopleWriteIt) {
  // The number, the first and the last address, or what is wrong.
  const std::pair<const char*, const char*> cases[] = {
      {"192.0.2.7", "1 192.0.2.7 192.0.2.7"},
      {"192.0.2.77/24", "254 192.0.2.1 192.0.2.254"},
      {"192.0.2.8/30", "2 192.0.2.9 192.0.2.10"},
      {"192.0.2.8/31", "2 192.0.2.8 192.0.2.9"},
      {"192.0.2.8/32", "1 192.0.2.8 192.0.2.8"},
      {"10.0.0.0/16", "65534 10.0.0.1 10.0.255.254"},
      {"192.0.2.10 - 192.0.3.9", "256 192.0.2.10 192.0.3.9"},
      {"192.0.2.10-12, 192.0.2.11;192.0.2.1\n", "4 192.0.2.1 192.0.2.12"},
      {"0.0.0.0-255.255.255.255", "more than 65536 addresses"},
      {"10.0.0.0/15", "more than 65536 addresses"},
      {"2001:db8::7", "1 2001:db8::7 2001:db8::7"},
      {"2001:db8::7/126, 192.0.2.7", "4 192.0.2.7 2001:db8::7"},
      {"fe80::1%7/127", "2 fe80::%7 fe80::1%7"},
      {"2001:db8::fffe-2001:db8::1:1", "4 2001:db8::fffe 2001:db8::1:1"},
      {"2001:db8::10-1f", "16 2001:db8::10 2001:db8::1f"},
      {"::ffff:ffff:ffff:ffff/112", "65535 ::ffff:ffff:ffff:1 ::ffff:ffff:ffff:ffff"},
      {"2001:db8::/111", "more than 65536 addresses"},
  };
  for (const auto& [text, expected] : cases) {
    const SearchRange range = ParseSearchRange(text);
    std::string told = range.error.toStdString();
    if (told.empty()) {
      told = std::to_string(range.addresses.size());
      for (const QHostAddress& end : {range.addresses.front(), range.addresses.back()}) {
        told += ' ' + end.toString().toStdString();
      }
    }
    EXPECT_THAT(told, HasSubstr(expected)) << text;
  }
  const QString wrong =
      "::1-2001:db8::1 2001:db8::2-1 ::1-192.0.2.1 2001:db8::/129 2001:db8::1:: "
      "0.0.0.0/0 192.0.2.12-10 192.0.2.256 192.0.2 192.0.2.1/33 projector.example "
      "192.0.2.0001 192.0.2.1/ 192.0.2.1/2: 192.0.2.1a x/24 x-7 192.0.2.9-192.0.2.7 "
      "192.0.2.9-x 2001:db8::1-00001 2001:db8::1-2001:db9::1";
  for (const QString& one : wrong.split(' ')) {
    EXPECT_EQ(ParseSearchRange(one).error,
              '"' + one + "\" is neither an IP address nor a range of them");
  }
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

TEST(SearchAnswer, IsAMacNumber) {
  EXPECT_EQ(ParseSearchAnswer("%2ACKN=0A:F0:5E:00:53:01\r"), "0a:f0:5e:00:53:01");
  EXPECT_EQ(ParseSearchAnswer("%2ackn=00-00-5e-00-53-01\r\n"), "00:00:5e:00:53:01");
  EXPECT_EQ(ParseSearchAnswer({"%2ACKN=00:af:5e:00:53:09 \0", 26}), "00:af:5e:00:53:09");
  for (const char* other :
       {"", "%2ACKN=00:00:5e:00:53:0:\r", "%2ACKN=\r", "%2ACKN=00:00:5e:00:53\r",
        "%2ACKN=00:00:5e:00:53:0g\r", "%2ACKN=00:00:5e:00:53:0/\r", "%2ACKN=00:00:5e:00:53:0G\r",
        "%2ACKN=00:00:5e.00:53:01\r", "%2ACKN 00:00:5e:00:53:01\r", "%2ACKN=00:00:5e:00:53:0`\r",
        "%2LKUP=00:00:5e:00:53:01\r"}) {
    EXPECT_EQ(ParseSearchAnswer(other), std::nullopt) << other;
  }
}

// The whole of a conversation in memory.
FoundProjector Inquire(const ServedProjector& served, const std::string& wanted,
                       const std::string& given, int answers = 100) {
  SimulatedProjector projector;
  PjLinkResponder responder(std::shared_ptr<ProjectorChannel>(&projector, [](auto*) {}), served);
  std::optional<PjLinkProjectorSession> end;
  SearchInquiry inquiry({.address = "192.0.2.1", .port = 4352}, given, {});
  const PjLinkTime now{};
  using enum PjLinkStep::Kind;
  for (int steps = 0; steps < 200; ++steps) {
    const PjLinkStep step = inquiry.Next(now);
    auto& connection = inquiry.Connection();
    if (step.kind == Connect) {
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

  served.protocolClass = 1;
  served.inputs.clear();
  found = Inquire(served, "", "");
  EXPECT_EQ(found.name + '/' + found.serial, "Hall/");
  found = Inquire(served, "", "", 2);
  EXPECT_EQ(found.name + '/' + found.maker + '/' + found.model, "Hall/Advanced Control/")
      << "it has left then";
  EXPECT_THAT(found.inputs, SizeIs(0));
}

constexpr char kFile[] = R"({
  "families": {"hall": {"model": "M 30", "dialogType": 5, "modelCode": 30}},
  "projectors": [
    {"name": "By serial", "like": "hall", "identity": "serial:Maker/1", "x-mine": true,
     "connection": {"network": {"address": "192.0.2.1", "port": 4352, "secret": "open"}}},
    {"name": "By MAC", "like": "hall", "identity": "mac:00:00:5e:00:53:02",
     "connection": {"network": {"address": "192.0.2.2", "port": 4352}}},
    {"name": "By address", "like": "hall",
     "connection": {"network": {"address": "2001:db8:0::3", "port": 4352}}},
    {"name": "Hall", "like": "hall", "identity": "serial:Maker/8",
     "connection": {"serial": {"port": 1}}}
  ]
})";

FoundProjector At(const char* address, const char* name, const char* serial, const char* mac = "") {
  return {.address = address,
          .port = 4352,
          .mac = mac,
          .name = name,
          .maker = "Maker",
          .model = "M 30",
          .serial = serial};
}

TEST(SearchProfiles, KnowProjectorsAgainByTheirIdentity) {
  const TakenProjectors taken = TakeFound(
      kFile,
      {At("192.0.2.2", "A", "1"),                             // moved to where another one was
       At("192.0.2.9", "B", "7", "00:00:5e:00:53:02"),        // moved, known by its second identity
       At("2001:db8::3", "C", "3"),                           // gets its identity
       At("192.0.2.4", "Hall", "4"),                          // new, with a name that is taken
       At("192.0.2.5", "", "0000"),                           // new, without a name
       At("192.0.2.6", "Hall", "same", "00:00:5e:00:53:06"),  // of a maker that numbers nothing
       At("192.0.2.7", "Hall", "same", "00:00:5e:00:53:07")},
      "secret");
  EXPECT_THAT(taken.moved, ElementsAre("By serial", "By MAC"));
  EXPECT_EQ(taken.known, 1U);
  EXPECT_THAT(taken.added, ElementsAre("Hall (2)", "M 30 192.0.2.5", "Hall (3)", "Hall (4)"));
  const ProfileList list = ParseProfileList(taken.text, "p.json");
  ASSERT_EQ(list.error, "");
  ASSERT_THAT(list.profiles, SizeIs(8));
  EXPECT_EQ(list.profiles[0].connection.address, "192.0.2.2");
  EXPECT_EQ(list.profiles[0].connection.secret, "open");
  EXPECT_EQ(list.profiles[1].connection.address, "192.0.2.9");
  EXPECT_EQ(list.profiles[2].identity, "serial:Maker/3");
  const FleetProfile& added = list.profiles[4];
  EXPECT_EQ(AddressOf(added), ProjectorAddress(PjLinkAddress{"192.0.2.4", 4352, "secret"}));
  EXPECT_EQ(added.identity, "serial:Maker/4");
  EXPECT_EQ(added.model->info.ModelCode, 30);
  EXPECT_THAT(list.profiles[5].identity, testing::StartsWith("id:"));
  EXPECT_EQ(list.profiles[7].identity, "mac:00:00:5e:00:53:07");
  EXPECT_TRUE(taken.text.contains("\"x-mine\": true"));

  EXPECT_EQ(TakeFound(kFile, {At("192.0.2.1", "A", "1")}, "").text, kFile) << "nothing new";
  EXPECT_NE(TakeFound(kFile, {At("192.0.2.2", "A", "1")}, "").text, kFile) << "moved";
  FoundProjector unknown = At("192.0.2.1", "Z", "9"), locked{.address = "192.0.2.20", .port = 4352};
  unknown.model = "Other";
  locked.needsPassword = true;
  const TakenProjectors others =
      TakeFound(kFile, {unknown, unknown, locked, At("192.0.2.2", "Y", "")}, "secret");
  EXPECT_EQ(others.known, 2U);
  EXPECT_THAT(others.added, ElementsAre("Z", "192.0.2.20")) << "another one at the same address";
  const auto profiles = ParseProfileList(others.text, "p.json").profiles;
  ASSERT_THAT(profiles, SizeIs(6));
  EXPECT_EQ(profiles[4].model->info.ModelName + '/' + profiles[5].model->info.ModelName,
            "Other/PJLink");
  EXPECT_EQ(profiles[4].connection.secret + '/' + profiles[5].connection.secret, "secret/");
  EXPECT_EQ(TakeFound(kFile, {At("192.0.2.9", "", "8")}, "").known, 1U) << "at a serial port";
  // At an address whose identity was made up, and at one with another kind of identity.
  const TakenProjectors again = TakeFound(
      taken.text, {At("192.0.2.5", "", "5"), At("192.0.2.2", "A", "", "00:00:5e:00:53:01")}, "");
  EXPECT_EQ(again.known, 2U);
  EXPECT_EQ(again.text, taken.text);
}

/// A search, with what it has found by address.
struct Searching {
  explicit Searching(const SearchOptions& options)
      : driver(
            options, [this](const FoundProjector& one) { found[one.address] = one; },
            [this] { isOver = true; }) {
    driver.Start();
  }
  std::map<std::string, FoundProjector> found;
  bool isOver = false;
  SearchDriver driver;
};

struct SearchDriverTest : testing::Test {
  int count = 0;
  QCoreApplication application{count, nullptr};
};

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
  EXPECT_TRUE(Soon([&] { return search->isOver; })) << "says nothing";
  options.limits = {.connect = 1h, .pause = 1ms};
  search.emplace(options);
  const std::size_t before = silent->Accept();
  EXPECT_TRUE(Soon([&] { return silent->Accept() == before + 1; }));
  silent->connections.back()->close();
  EXPECT_TRUE(Soon([&] { return silent->Accept() == before + 2; })) << "was not ready";
  silent->connections.back()->write("PJLINK ERRA\r");
  EXPECT_TRUE(Soon([&] { return search->isOver; }));
  EXPECT_THAT(search->found, SizeIs(1));
  silent.reset();
  options.limits.pause = 1h;
  options.addresses.push_back(QHostAddress("255.255.255.255"));  // fails at once
  search.emplace(options);
  EXPECT_TRUE(Soon([&] { return search->isOver; })) << "is not there";
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
  EXPECT_TRUE(Soon([&] { return byRange.isOver; }));
  EXPECT_GE(std::chrono::steady_clock::now() - start, 700ms);
  ASSERT_THAT(byRange.found, SizeIs(kCount));
  const auto isSecond = [](const auto& found) { return found.second.protocolClass == '2'; };
  const auto ofSecondClass = std::ranges::count_if(byRange.found, isSecond);
  options.addresses.clear();
  options.broadcasts = {QHostAddress("127.255.255.255")};
  const Searching byBroadcast(options);
  EXPECT_TRUE(Soon([&] { return std::ssize(byBroadcast.found) == ofSecondClass; }));
  for (const auto& [address, found] : byRange.found) {
    const auto same = byBroadcast.found.find(address);
    EXPECT_EQ(same != byBroadcast.found.end(), found.protocolClass == '2') << address;
    if (same == byBroadcast.found.end()) continue;
    EXPECT_EQ(same->second.serial, found.serial);
    EXPECT_EQ(same->second.inputs, found.inputs);
    EXPECT_THAT(same->second.mac, HasSubstr("02:00:00:00:00:"));
  }
}

}  // namespace
