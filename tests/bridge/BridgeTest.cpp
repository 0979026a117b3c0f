// The program between simulated projectors, Debian's message broker and clients that others wrote.

#include <csignal>
#include <gmock/gmock.h>
#include <utility>
#include <vector>

#include "tests/bridge/BridgeProgram.h"
#include "tests/bridge/Subscriber.h"
#include "tests/support/Record.h"

namespace {

using testing::HasSubstr;

constexpr int kCount = 500;
constexpr int kEach = 20;  // Each twentieth projector is silent.
constexpr const char* kUnanswered = "projector_bridge_visits_total{result=\"unanswered\"}";

TEST_F(BridgeProgram, ServesFiveHundredProjectorsThroughFailures) {
  StartProjectors(kCount, {"--link", "mixed"});
  std::set<QByteArray> silent;
  for (int number = kEach; number <= kCount; number += kEach) {
    ASSERT_EQ(Control(QByteArray::number(number) + " silent"), "ok");
    silent.insert(NameOf(number));
  }
  MosquittoBroker broker(folder_.path());
  const quint16 port = LastingPort();
  const auto first = Bridge(At(broker) + QStringList{"--share", "1/2"}, port);
  const quint16 secondPort = LastingPort();
  auto second = Bridge(At(broker) + QStringList{"--share", "2/2"}, secondPort);
  auto subscriber = std::make_unique<Subscriber>(broker.port);
  // On a slow machine, one that answers may be late and count as silent for a while.
  const auto isComplete = [&] {
    const auto answered = subscriber->NamesThatWere("answers");
    const auto fellSilent = subscriber->NamesThatWere("silent");
    return answered.size() == kCount - silent.size() && std::ranges::includes(fellSilent, silent) &&
           subscriber->With("/config", "\"components\"") == kCount &&
           subscriber->With("/availability", "online") == 2;
  };
  EXPECT_TRUE(Soon(isComplete)) << first->Said().data() << second->Said().data();

  // The metrics of one share agree.
  const double projectors = Metric(port, "projector_bridge_projectors");
  EXPECT_GT(projectors, kCount / 3.0);
  EXPECT_LT(projectors, kCount * 2 / 3.0);
  EXPECT_EQ(Get(port, "/metrics").count("\nprojector_up{"), projectors);
  EXPECT_EQ(Get(port, "/healthz"), "ok\n");
  EXPECT_THAT(Get(port, "/probe?target=Nobody").toStdString(), HasSubstr("no projector"));
  const int on = OneThatIsOn(port);
  const int another = OneThatIsOn(secondPort);
  const QByteArray up = "\nprojector_up{projector=\"" + NameOf(on) + "\"} 1\n";
  EXPECT_TRUE(Soon([&] { return Get(port, Probe(on)).count(up) == 1; }));

  // Nobody has allowed commands.
  Publish(broker,
          {"-t", "projectors/" + subscriber->Find("standby", {}) + "/set/power", "-m", "on"});

  // A third bridge, with the same share, stands back and visits no projector.
  const quint16 thirdPort = LastingPort();
  auto third = Bridge(At(broker) + QStringList{"--share", "2/2"}, thirdPort);
  EXPECT_TRUE(third->Says("stands back"));
  EXPECT_EQ(Get(thirdPort, Probe(another)), "The bridge does not have its share.\n");
  EXPECT_TRUE(second->Says("another bridge has the same share"));

  // A broker that remembers gets nothing twice, and what has changed meanwhile.
  const auto sent = [&](const char* kind) {
    return Metric(port, "projector_bridge_messages_total{kind=\"" + QByteArray(kind) + "\"}");
  };
  ASSERT_TRUE(Soon([&] { return sent("discovery") == projectors && sent("state") >= projectors; }));
  const double states = sent("state");
  const double unanswered = Metric(port, kUnanswered);
  broker.Stop();
  EXPECT_TRUE(Soon([&] { return Metric(port, "projector_bridge_broker_connected") == 0; }));
  EXPECT_EQ(Control(QByteArray::number(on) + " power 0"), "ok");
  EXPECT_TRUE(Soon([&] {
    return Metric(port,
                  "projector_power_state{projector=\"" + NameOf(on) + "\",state=\"standby\"}") == 1;
  }));
  broker.Start();
  EXPECT_TRUE(Soon([&] { return Metric(port, "projector_bridge_broker_connected") == 1; }));
  subscriber = std::make_unique<Subscriber>(broker.port);
  EXPECT_TRUE(Soon(isComplete));
  EXPECT_TRUE(Soon([&] { return subscriber->StateOf(NameOf(on))["power"] == "standby"; }));

  // The one that comes back long before the other has the share now.
  EXPECT_TRUE(Soon([&] { return HoldsShare(secondPort) != HoldsShare(thirdPort); }));
  const bool secondHolds = HoldsShare(secondPort);
  if (!secondHolds) std::swap(second, third);

  // A bridge dies. The broker says so, and the one that stood back takes over.
  const int before = subscriber->Count("projectors/bridge/2-of-2/availability");
  second->Kill();
  EXPECT_TRUE(third->Says("takes the share over"));
  EXPECT_TRUE(Soon([&] {
    return subscriber->Count("projectors/bridge/2-of-2/availability") >= before + 2 && isComplete();
  }));
  EXPECT_EQ(sent("discovery"), projectors) << "nothing twice";
  EXPECT_GT(sent("state"), states);
  const double changes = 2 * (Metric(port, kUnanswered) - unanswered);  // silent, and back again
  EXPECT_LT(sent("state"), states + projectors / 2 + changes) << "only what has changed";
  EXPECT_FALSE(subscriber->Saw("never-asked")) << "what the dead bridge knew holds until the visit";
  const QRegularExpression most("at-once (\\d+)");
  if (secondHolds) {
    EXPECT_LE(most.match(QString::fromStdString(Control("* count"))).captured(1).toInt(), 1)
        << "never two connections to a projector while the bridges hear of each other";
  }
  EXPECT_EQ(Changes(), "0") << "without --allow-commands";
}

TEST_F(BridgeProgram, YieldsAfterItHungLongerThanTheTakeover) {
  StartProjectors(20);
  MosquittoBroker broker(folder_.path());
  const quint16 ports[] = {LastingPort(), LastingPort()};
  const QStringList options =
      At(broker) +
      QStringList{"--takeover", "2", "--allow-commands", "power", "--interval", "3600"};
  const auto holds = [&](int which) { return HoldsShare(ports[which]); };
  std::unique_ptr<Daemon> bridges[] = {Bridge(options, ports[0]), nullptr};
  EXPECT_TRUE(Soon([&] { return holds(0); }));
  bridges[1] = Bridge(options, ports[1]);
  EXPECT_TRUE(bridges[1]->Says("stands back"));
  const auto seesAsleep = [&](int which, int number) {
    return Soon([&] { return Get(ports[which], Probe(number)).contains("\"standby\"} 1"); });
  };
  int asleep = 0;
  for (const bool isCutOff : {false, true, false}) {
    const bool otherEnds = !isCutOff && asleep != 0;
    Subscriber subscriber(broker.port);
    int holder = 0;
    ASSERT_TRUE(Soon([&] {
      holder = holds(0) ? 0 : 1;
      return holds(holder) && !holds(1 - holder) && subscriber.With("/state", "\"answers\"") == 20;
    }));
    int on = 1;
    while (on < 20 && subscriber.StateOf(NameOf(on))["power"] != "on") ++on;
    const char* const commands = "projector_bridge_commands_total{outcome=\"accepted\"}";
    const double taken = Metric(ports[holder], commands);
    const auto id = static_cast<pid_t>(bridges[holder]->Id());
    kill(id, SIGSTOP);
    Publish(broker, {"-t", "projectors/" + subscriber.Find("on", {}) + "/set/power", "-m", "off"});
    EXPECT_EQ(Control(QByteArray::number(on) + " power 0"), "ok");
    EXPECT_TRUE(Soon([&] { return holds(1 - holder); })) << bridges[1 - holder]->Said().data();
    EXPECT_TRUE(seesAsleep(1 - holder, on)) << "not what it knew before it stood back";
    const auto isTold = [&] {
      return isCutOff || subscriber.StateOf(NameOf(on))["power"] == "standby";
    };
    if (isCutOff) {
      broker.Stop();
      broker.Start();
    }
    EXPECT_TRUE(Soon(isTold));
    if (otherEnds) bridges[1 - holder]->Stop();
    kill(id, SIGCONT);
    EXPECT_TRUE(Soon([&] { return holds(0) != holds(1); })) << bridges[holder]->Said().data();
    // After a restart of the broker, whoever connects first may have the share.
    EXPECT_TRUE(isCutOff || (otherEnds ? seesAsleep(holder, on) : holds(1 - holder)));
    EXPECT_TRUE(isTold()) << "not what the one that hung knew";
    EXPECT_EQ(Metric(ports[holder], commands), taken) << "the command that came meanwhile is old";
    EXPECT_FALSE(subscriber.NamesThatWere("on").contains(NameOf(asleep))) << "the same";
    asleep = on;
  }
}

TEST_F(BridgeProgram, EndsWhileTheBrokersHostAnswersNothing) {
  StartProjectors(1);
  QTcpServer server;
  server.setListenBacklogSize(0);
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  server.pauseAccepting();
  const auto connecting = [end = QByteArray::number(server.serverPort(), 16).toUpper() + " 02 "] {
    return Contents("/proc/net/tcp").count(end);
  };
  std::vector<std::unique_ptr<QTcpSocket>> others;
  while (connecting() == 0) {
    others.push_back(std::make_unique<QTcpSocket>());
    others.back()->connectToHost(QHostAddress::LocalHost, server.serverPort());
    QCoreApplication::processEvents();
  }
  const auto before = connecting();
  Daemon bridge(BRIDGE_PROGRAM, {"--profiles", profiles_, "--listen", "none", "--broker",
                                 QString("127.0.0.1:%1").arg(server.serverPort())});
  EXPECT_TRUE(Soon([&] { return connecting() > before; }));
  bridge.Stop();  // the system would try for two minutes
}

TEST_F(BridgeProgram, TellsABrokerThatForgotEverythingAgain) {
  StartProjectors(20);
  MosquittoBroker broker(folder_.path(), false);
  const QStringList options{"--mqtt", "5", "--discovery", "none", "--takeover", "3"};
  const auto bridge = Bridge(At(broker) + options);
  for (int i = 0; i < 2; ++i) {
    Subscriber subscriber(broker.port);
    EXPECT_TRUE(Soon([&] { return subscriber.With("/state", "\"answers\"") == 20; })) << i;
    broker.Stop();
    broker.Start();
  }
  // A second bridge has a share of its projectors.
  const auto other = Bridge(At(broker) + options + QStringList{"--share", "1/2"});
  EXPECT_TRUE(bridge->Says("the bridge with the share 1-of-2 has "));
  EXPECT_TRUE(other->Says("the bridge with the share 1-of-1 has "));
}

TEST_F(BridgeProgram, ProvesWhoItIs) {
  StartProjectors(3);
  const QByteArray folder = folder_.path().toUtf8();
  const Outcome made = ::Run(TEST_SOURCE_DIR "/bridge/make_certificates.sh", {folder_.path()});
  ASSERT_EQ(made.exitCode, 0) << made.errors;
  MosquittoBroker broker(folder_.path(), true,
                         "allow_anonymous false\nrequire_certificate true\ncafile " + folder +
                             "/ca.crt\ncertfile " + folder + "/broker.crt\nkeyfile " + folder +
                             "/broker.key\npassword_file " + folder + "/passwords\n");
  const auto at = [&](const char* password, bool hasCertificate) {
    const auto file = [&](const char* name) { return folder_.filePath(name); };
    QStringList arguments{"--broker",        QString("localhost:%1").arg(broker.port),
                          "--ca-file",       file("ca.crt"),
                          "--user-file",     file("user"),
                          "--password-file", file(password)};
    if (hasCertificate) {
      arguments += {"--cert-file", file("bridge.crt"), "--key-file", file("bridge.key")};
    }
    return arguments;
  };
  EXPECT_TRUE(Bridge(at("wrong", true))->Says("not connected to the broker: Connection Refused"));
  EXPECT_TRUE(Bridge(at("password", false))->Says("not connected to the broker"));
  EXPECT_TRUE(Bridge(at("password", true))->Says(": connected to the broker"));
  EXPECT_TRUE(Bridge(at("password", true).replaceInStrings("localhost", "127.0.0.1"))
                  ->Says("not connected to the broker"))
      << "the broker's certificate has another name";
}

TEST_F(BridgeProgram, TriesAgainAfterGrowingPauses) {
  StartProjectors(1);
  for (const bool accepts : {false, true}) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    std::vector<std::chrono::steady_clock::time_point> tries;
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
      while (QTcpSocket* const client = server.nextPendingConnection()) {
        tries.push_back(std::chrono::steady_clock::now());
        if (!accepts) return client->abort();
        client->write(QByteArray::fromHex("20020000"));
        client->disconnectFromHost();
      }
    });
    const auto bridge = Bridge({"--broker", QString("127.0.0.1:%1").arg(server.serverPort())});
    ASSERT_TRUE(Soon([&] { return tries.size() >= 4; }));
    EXPECT_GT(tries[3] - tries[0], std::chrono::seconds(2)) << "half a second, one and two";
    EXPECT_EQ(bridge->Said().contains(": connected to the broker"), accepts);
  }
}

TEST_F(BridgeProgram, WritesATextFileAndNeedsNoBroker) {
  StartProjectors(5);
  const QString file = folder_.filePath("projectors.prom");
  const auto bridge = Bridge({"--text-file", file});
  EXPECT_TRUE(Soon([&] { return Contents(file).count("\nprojector_up{") == 5; }));
  // It is started again after this, unless the profiles are wrong by now.
  const QByteArray profiles = Contents(profiles_);
  Write(profiles_, "[");
  kill(static_cast<pid_t>(bridge->Id()), SIGHUP);
  ASSERT_TRUE(bridge->Says("goes on with the earlier projectors: "));
  Write(profiles_, profiles);
  kill(static_cast<pid_t>(bridge->Id()), SIGHUP);
  EXPECT_EQ(bridge->ExitCode(), 129);
  EXPECT_EQ(QDir(folder_.path()).entryList({"*.prom"}), QStringList()) << "served for ever";
}

TEST_F(BridgeProgram, AnswersWrongUseAsRecorded) {
  StartProjectors(1);
  Write(folder_.filePath("empty"), "\n");
  ExpectAnswers(TEST_SOURCE_DIR "/bridge/WrongUses.txt", [this](const std::string& words) {
    QString use = QString::fromStdString(words).replace("HERE", folder_.path());
    use.replace("BUILT", QFileInfo(BRIDGE_PROGRAM).path());
    const Outcome run = ::Run(BRIDGE_PROGRAM, QProcess::splitCommand(use));
    EXPECT_EQ(run.output, "") << words;
    EXPECT_EQ(run.exitCode, 2) << words;
    const QString said = QString::fromStdString(run.errors).replace(folder_.path(), "HERE");
    return said.trimmed().replace('\n', " | ").toStdString();
  });
}

}  // namespace
