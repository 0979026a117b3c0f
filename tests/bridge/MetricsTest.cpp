// Metrics, how they are fetched, and the files that come with them.

#include <gmock/gmock.h>
#include <set>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "app/bridge/HttpRequest.h"
#include "app/bridge/Metrics.h"
#include "app/bridge/MetricsListener.h"
#include "tests/bridge/Daemons.h"
#include "tests/bridge/Profiles.h"
#include "tests/support/Record.h"

namespace {

const QString kShipped = QStringLiteral(TEST_SOURCE_DIR "/../packaging/bridge/");

LiveState FullState() {
  LiveState state;
  state.reachability = Reachability::Answers;
  state.answered = WallTime(std::chrono::milliseconds(1'700'000'000'250));
  state.power = PowerState::On;
  state.source = PlayingSource{31, "HDMI"};
  state.problems = PartProblems{};
  state.problems->at(2) = ProblemGrade::Error;
  state.lamps = {{100, true}, {50, false}};
  state.filterHours = 7;
  state.drift = 3;
  return state;
}

QByteArray Everything() {
  FleetProfile known = ProfileOf("Hall \"1\"\\\n");
  known.ratedLampHours = 3000;
  const FleetProfile unknown = ProfileOf("Hall 2");
  const LiveState silent{.reachability = Reachability::Silent};
  const std::vector<MeasuredProjector> projectors{
      {&known, FullState()}, {&unknown, LiveState()}, {&known, silent}};
  MetricsText text;
  AddProjectors(text, {projectors.data(), 2});
  BridgeCounts counts{.version = "1", .share = "1-of-1", .isConnected = true};
  counts.messages["state"] = 5;
  counts.commands["accepted"] = 1;
  counts.answers.Add(std::chrono::milliseconds(30));
  counts.answers.Add(std::chrono::seconds(9));
  MeasureProcess(counts);
  AddBridge(text, counts);
  return text.Text();
}

TEST(Metrics, FollowTheConvention) {
  const QByteArray text = Everything();
  // The process is another each time.
  ExpectRecord(TEST_SOURCE_DIR "/bridge/Metrics.txt",
               text.left(text.indexOf("# HELP process")).toStdString());
  const Outcome checked = ::Run("promtool", {"check", "metrics"}, text);
  EXPECT_EQ(checked.exitCode, 0);
  EXPECT_EQ(checked.errors, "");
}

TEST(Shipped, AlertsFireWhenTheyShould) {
  const Outcome checked = ::Run("promtool", {"check", "rules", kShipped + "projector-alerts.yml"});
  EXPECT_EQ(checked.exitCode, 0) << checked.errors << checked.output;
  const QString played = TEST_SOURCE_DIR "/bridge/alerts-";
  const Outcome tested =
      ::Run("promtool", {"test", "rules", played + "test.yml", played + "week-test.yml"});
  EXPECT_EQ(tested.exitCode, 0) << tested.errors << tested.output;
}

TEST(Shipped, RulesAndDashboardAskForMetricsThatAreThere) {
  const QByteArray exported = Everything();
  const QRegularExpression names("\\b(?:projector|process)_[a-z_]+\\b");
  std::set<std::string> asked;
  for (const char* file : {"projector-alerts.yml", "projectors-dashboard.json"}) {
    QByteArray text = Contents(kShipped + file);
    if (text.startsWith('{')) {
      const auto dashboard = QJsonDocument::fromJson(text).object();
      text.clear();
      for (const auto& panel : dashboard["panels"].toArray()) {
        for (const auto& target : panel.toObject()["targets"].toArray()) {
          text += target.toObject()["expr"].toString().toUtf8() + '\n';
        }
      }
    }
    for (auto match = names.globalMatch(text); match.hasNext();) {
      asked.insert(match.next().captured().toStdString());
    }
  }
  EXPECT_GT(asked.size(), 10U);
  for (const std::string& name : asked) EXPECT_TRUE(exported.contains(name.data())) << name;
}

TEST(Shipped, TheServiceMayDoLittle) {
  const Outcome outcome = ::Run(ProgramPath("systemd-analyze"),
                                {"security", "--offline=yes", "--no-pager", "--threshold=20",
                                 kShipped + "advanced-control-bridge.service"});
  EXPECT_EQ(outcome.exitCode, 0) << "an exposure above 2.0: " << outcome.output << outcome.errors;
}

TEST(Shipped, ThePackageEnablesItsServiceOnlyIfThereAreProjectors) {
  const Outcome outcome = ::Run(TEST_SOURCE_DIR "/bridge/package_service.sh", {kShipped});
  EXPECT_THAT(outcome.output, testing::EndsWith("all done\n")) << outcome.errors;
}

TEST(HttpRequest, UnderstandsGetAndRefusesTheRest) {
  const auto read = [](const QByteArray& text, qsizetype step) {
    HttpRequest request;
    for (qsizetype i = 0; i < text.size(); i += step) {
      const QByteArray part = text.mid(i, step);
      request.Take({part.data(), static_cast<std::size_t>(part.size())});
    }
    return request;
  };
  const QByteArray get =
      "GET /probe?x&target=Hall+%221%22%C3%A4&target=2 HTTP/1.1\r\nHost: x\r\n\r\nrest";
  for (const int step : {1, 7, 1000}) {
    const HttpRequest request = read(get, step);
    EXPECT_EQ(request.Status(), 200);
    EXPECT_EQ(request.Path(), "/probe");
    EXPECT_EQ(request.Parameter("target"), QByteArray("Hall \"1\"ä"));
    EXPECT_EQ(request.Parameter("x"), "");
    EXPECT_TRUE(request.Parameter("y").isNull());
  }
  EXPECT_TRUE(read("HEAD /x HTTP/1.0\r\n\r\n", 3).IsHead());
  EXPECT_EQ(read("HEAD /x HTTP/1.0\r\n\r\n", 3).Path(), "/x");
  EXPECT_FALSE(read("GET / HTTP/1.1\r\nHost: x\r\n", 3).IsComplete());
  const std::vector<std::pair<QByteArray, int>> wrong{
      {"POST / HTTP/1.1\r\n\r\n", 405},
      {"GET / HTTP/2\r\n\r\n", 505},
      {"GET /\r\n\r\n", 400},
      {"GET  / HTTP/1.1\r\n\r\n", 400},
      {"GET http://x/ HTTP/1.1\r\n\r\n", 400},
      {"\r\n\r\n", 400},
      {QByteArray(HttpRequest::kLongest + 1, 'x'), 431},
      {"GET / HTTP/1.1\n\n\r\n\r\n", 505}};
  for (const auto& [text, status] : wrong) {
    EXPECT_EQ(read(text, 100).Status(), status) << text.left(40).data();
  }
}

TEST(MetricsListener, ServesFewClientsAndSurvivesStrangeOnes) {
  const QByteArray large(8'000'000, 'x');
  MetricsListener listener([&](const HttpRequest&) { return MetricsListener::Answer{200, large}; });
  const quint16 port = listener.Listen(QHostAddress::LocalHost, 0).port;
  ASSERT_NE(port, 0);
  EXPECT_NE(MetricsListener({}).Listen(QHostAddress::LocalHost, port).error, "");

  const auto connected = [port](const QByteArray& text) {
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(QHostAddress::LocalHost, port);
    socket->write(text);
    return socket;
  };
  const auto isClosed = [](const auto& socket) {
    return Soon([&] { return socket->state() == QAbstractSocket::UnconnectedState; });
  };
  std::vector<std::unique_ptr<QTcpSocket>> idle(MetricsListener::kMostClients);
  for (auto& socket : idle) socket = connected("GET /");
  ASSERT_TRUE(Soon([&] { return idle.back()->bytesToWrite() == 0; }));
  const auto tooMany = connected("GET / HTTP/1.1\r\n\r\n");
  EXPECT_TRUE(isClosed(tooMany));
  EXPECT_EQ(tooMany->readAll(), "");
  idle.pop_back();
  QByteArray answer;
  EXPECT_TRUE(Soon([&] {
    const auto next = connected("GET / HTTP/1.1\r\n\r\n");
    answer.clear();
    isClosed(next);
    answer = next->readAll();
    return !answer.isEmpty();
  }));
  EXPECT_TRUE(answer.startsWith("HTTP/1.1 200 OK\r\n"));
  EXPECT_TRUE(answer.endsWith(large));

  MetricsListener impatient({}, std::chrono::milliseconds(50));
  QTcpSocket slow;
  slow.connectToHost(QHostAddress::LocalHost, impatient.Listen(QHostAddress::LocalHost, 0).port);
  EXPECT_TRUE(isClosed(&slow)) << "who asks nothing is sent away";
}

}  // namespace
