// Commands through Debian's message broker, and the bridge's answers.

#include <csignal>

#include "tests/bridge/BridgeProgram.h"
#include "tests/bridge/Subscriber.h"

namespace {

TEST_F(BridgeProgram, CarriesOutWhatIsAllowedAndAnswers) {
  StartProjectors(40, {"--link", "network"});
  MosquittoBroker broker(folder_.path());
  auto bridge =
      Bridge(At(broker) + QStringList{"--allow-commands", "power,picture.*,setup.auto-keystone"});
  Subscriber subscriber(broker.port);
  QByteArray id;
  ASSERT_TRUE(Soon([&] {
    id = subscriber.Find("on", {"picture.brightness", "setup.auto-keystone"});
    return !id.isEmpty();
  })) << bridge->Said().data();
  const QByteArray answer = "projectors/" + id + "/answer";
  std::string last;
  const auto outcomeOf = [&](const QString& topic, const QStringList& what,
                             const QByteArray& input = {}) {
    const int before = subscriber.Count(answer);
    Publish(broker, QStringList{"-t", "projectors/" + QString(id) + topic} + what, input);
    EXPECT_TRUE(Soon([&] { return subscriber.Count(answer) > before; })) << topic.toStdString();
    last = subscriber.Last().at(answer).left(300).toStdString();
    return subscriber.Json(answer)["outcome"].toString().toStdString();
  };
  const std::string changes = Changes();
  EXPECT_EQ(outcomeOf("/set", {"-m", "{\"key\":"}), "error");
  EXPECT_EQ(outcomeOf("/set/no.such-key", {"-m", "1"}), "error");
  EXPECT_EQ(outcomeOf("/set/setup.whisper", {"-m", "1"}), "error") << "not allowed";
  EXPECT_EQ(outcomeOf("/set/picture.brightness", {"-m", "99999"}), "error");
  EXPECT_EQ(outcomeOf("/set/picture.brightness", {"-s"}, QByteArray(1 << 20, '1')), "error");
  EXPECT_EQ(Changes(), changes) << "nothing of it reached a projector";

  EXPECT_EQ(outcomeOf("/set", {"-m", R"({"key":"picture.brightness","value":-3,"id":"mine"})"}),
            "accepted");
  EXPECT_EQ(subscriber.Json(answer)["id"], "mine");
  EXPECT_EQ(outcomeOf("/set/setup.auto-keystone", {"-m", "run"}), "accepted") << last;
  EXPECT_NE(Changes(), changes);
  EXPECT_EQ(outcomeOf("/set/power", {"-m", "off"}), "accepted");
  const auto power = [&]() -> QJsonValue {
    return subscriber.Json("projectors/" + id + "/state")["power"];
  };
  EXPECT_TRUE(Soon([&] { return power() == "standby"; })) << "what a command tells is published";

  // Both kill switches.
  const std::string now = Changes();
  Publish(broker, {"-t", "projectors/bridge/commands", "-r", "-m", "off"});
  EXPECT_TRUE(bridge->Says("commands are switched off"));
  EXPECT_EQ(outcomeOf("/set/power", {"-m", "on"}), "error");
  Publish(broker, {"-t", "projectors/bridge/commands", "-r", "-m", "on"});
  EXPECT_TRUE(bridge->Says("takes commands"));
  kill(static_cast<pid_t>(bridge->Id()), SIGUSR1);
  EXPECT_TRUE(bridge->Says("a signal switched commands off"));
  EXPECT_EQ(outcomeOf("/set/power", {"-m", "on"}), "error");
  EXPECT_EQ(Changes(), now);
  kill(static_cast<pid_t>(bridge->Id()), SIGUSR2);
  EXPECT_TRUE(bridge->Says("a signal switched commands on"));
  EXPECT_EQ(outcomeOf("/set/power", {"-m", "on"}), "accepted");

  // The projector refuses, and falls silent.
  EXPECT_TRUE(Soon([&] { return power() == "on"; }));
  EXPECT_EQ(Control("* refuse"), "ok");
  EXPECT_EQ(outcomeOf("/set/power", {"-m", "off"}), "refused");
  EXPECT_EQ(Control("* silent"), "ok");
  EXPECT_EQ(outcomeOf("/set/power", {"-m", "off"}), "no-answer");

  // A command that was retained before the bridge started is out of date.
  bridge.reset();
  Publish(broker, {"-t", "projectors/" + QString(id) + "/set/power", "-r", "-m", "off"});
  const int before = subscriber.Count(answer);
  bridge = Bridge(At(broker) + QStringList{"--allow-commands", "power"});
  EXPECT_TRUE(Soon([&] { return subscriber.Count(answer) > before; }));
  EXPECT_EQ(subscriber.Json(answer)["outcome"], "error");
}

TEST_F(BridgeProgram, TellsThatAProjectorIsInStandby) {
  StartProjectors(40);  // over PJLink, which refuses then
  MosquittoBroker broker(folder_.path());
  const auto bridge = Bridge(At(broker) + QStringList{"--allow-commands", "other.*"});
  Subscriber subscriber(broker.port);
  QByteArray id;
  ASSERT_TRUE(Soon([&] {
    id = subscriber.Find("standby", {"other.mute"});
    return !id.isEmpty();
  })) << bridge->Said().data();
  Publish(broker, {"-t", "projectors/" + QString(id) + "/set/other.mute", "-m", "1"});
  const QByteArray answer = "projectors/" + id + "/answer";
  EXPECT_TRUE(Soon([&] { return subscriber.Count(answer) > 0; }));
  EXPECT_EQ(subscriber.Json(answer)["outcome"], "standby") << subscriber.Last().at(answer).data();
}

}  // namespace
