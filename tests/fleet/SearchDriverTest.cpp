// Searching the network for projectors.

#include <algorithm>
#include <chrono>
#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <string>

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "fleet/SearchDriver.h"
#include "fleet/SearchRange.h"
#include "tests/support/Limited.h"
#include "tests/support/Programs.h"

namespace {

using testing::HasSubstr;
using testing::SizeIs;

// Two that greet and leave.
TEST(SearchDriver, EndsWithWhatItHasLearnt) {
  int count = 0;
  QCoreApplication application(count, nullptr);
  const QHostAddress first("127.0.0.1"), second("127.0.0.2");
  QTcpServer greets, others;
  QUdpSocket responder, taken;
  for (QTcpServer* const server : {&greets, &others}) {
    server->setProxy(QNetworkProxy::NoProxy);
    QObject::connect(server, &QTcpServer::newConnection, [server] {
      QTcpSocket* const client = server->nextPendingConnection();
      client->write("PJLINK 0\r");
      client->disconnectFromHost();
    });
  }
  for (QUdpSocket* const socket : {&responder, &taken}) socket->setProxy(QNetworkProxy::NoProxy);
  // A port that is free at all three places.
  for (int i = 0; i < 100 && responder.state() != QAbstractSocket::BoundState; ++i) {
    greets.close();
    others.close();
    if (greets.listen(first) && others.listen(second, greets.serverPort())) {
      responder.bind(first, greets.serverPort());
    }
  }
  ASSERT_EQ(responder.localPort(), greets.serverPort());
  ASSERT_TRUE(taken.bind(first));
  QObject::connect(&responder, &QUdpSocket::readyRead, [&responder] {
    const auto asker = responder.receiveDatagram();
    for (const char* const answer :
         {"%2ACKN=?", "%2ACKN=02:00:00:00:00:01\r", "%2ACKN=02:00:00:00:00:02\r"}) {
      responder.writeDatagram(answer, asker.senderAddress(),
                              static_cast<quint16>(asker.senderPort()));
    }
  });
  using std::chrono::seconds;
  SearchOptions options{.addresses = {second, first},
                        .broadcasts = {first},
                        .port = greets.serverPort(),
                        .answerPort = taken.localPort(),
                        .atOnce = 1,
                        .perSecond = 50,
                        .answers = seconds(60),
                        .limits = {.connect = seconds(30), .answer = seconds(30)}};
  std::map<std::string, FoundProjector> found;
  const auto search = [&](bool hasFiles) {
    QEventLoop loop;
    SearchDriver driver(
        options,
        [&](const FoundProjector& one) {
          found[one.address] = one;
          if (hasFiles && found.size() == 2) loop.quit();
        },
        [&] { loop.quit(); });
    {
      std::optional<NoFilesLeft> files;
      if (!hasFiles) files.emplace();
      driver.Start();
    }
    EXPECT_EQ(driver.Problem().isEmpty(), hasFiles) << qPrintable(driver.Problem());
    loop.exec();
  };
  search(true);
  EXPECT_THAT(found, SizeIs(2));
  EXPECT_EQ(found["127.0.0.1"].mac, "02:00:00:00:00:01");
#ifndef SANITIZED  // which need files themselves
  options.answers = {};
  search(false);
#endif
}

// The simulator program answers, at loopback addresses alone.
TEST(SearchDriver, FindsAFleetByRangeAndByBroadcast) {
  constexpr std::size_t kCount = 20;
  int count = 0;
  QCoreApplication application(count, nullptr);
  const SimulatorProcess simulator({"--fleet", QString::number(kCount), "--control", "0"});
  SearchOptions options;
  options.port = simulator.Address("pjlink").section(':', -1).toUShort();
  options.answerPort = 0;
  options.answers = std::chrono::seconds(60);
  options.limits = {.connect = std::chrono::seconds(30), .answer = std::chrono::seconds(30)};
  // Ends with so many, or with the search.
  const auto search = [&](std::size_t wanted) {
    std::map<std::string, FoundProjector> found;
    QEventLoop loop;
    SearchDriver driver(
        options,
        [&](const FoundProjector& projector) {
          found[projector.address] = projector;
          if (found.size() == wanted) loop.quit();
        },
        [&] { loop.quit(); });
    driver.Start();
    loop.exec();
    EXPECT_EQ(driver.Problem(), "");
    return found;
  };
  options.addresses = ParseSearchRange("127.64.0.1-127.64.0.20").addresses;
  options.perSecond = 50;
  const auto start = std::chrono::steady_clock::now();
  const auto byRange = search(kCount + 1);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(350));
  ASSERT_THAT(byRange, SizeIs(kCount));
  const auto isSecond = [](const auto& found) { return found.second.protocolClass == '2'; };
  const auto ofSecondClass = std::ranges::count_if(byRange, isSecond);
  options.addresses.clear();
  options.broadcasts = {QHostAddress("127.255.255.255")};
  const auto byBroadcast = search(static_cast<std::size_t>(ofSecondClass));
  for (const auto& [address, found] : byRange) {
    const auto same = byBroadcast.find(address);
    EXPECT_EQ(same != byBroadcast.end(), found.protocolClass == '2') << address;
    if (same == byBroadcast.end()) continue;
    EXPECT_EQ(same->second.serial, found.serial);
    EXPECT_EQ(same->second.inputs, found.inputs);
    EXPECT_THAT(same->second.mac, HasSubstr("02:00:00:00:00:"));
  }
}

}  // namespace
