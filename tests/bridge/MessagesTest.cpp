// What the bridge says and understands, without a network.

#include <chrono>
#include <gmock/gmock.h>
#include <set>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "app/bridge/CommandDesk.h"
#include "app/bridge/Discovery.h"
#include "app/bridge/StateMessage.h"
#include "settings/RowParts.h"
#include "tests/bridge/Profiles.h"
#include "tests/support/Models.h"
#include "tests/support/Record.h"
#include "tests/support/Texts.h"

namespace {

using namespace std::chrono_literals;

QJsonObject Json(const QByteArray& text) { return QJsonDocument::fromJson(text).object(); }

FleetProfile HallOf(const CModelInfo2& info) {
  return ProfileOf("Hall \"1\"", MakeModelData(info), "mac:00:00:5e:00:53:01");
}

TEST(Topics, LevelsAreDistinctAndFitEveryBroker) {
  EXPECT_EQ(TopicLevel("mac:00:00:5e:00:53:01"), "mac_00_00_5e_00_53_01");
  EXPECT_EQ(TopicLevel("serial:A B/1"), "serial_A_B_1-cd053955") << "for ever";
  std::vector<std::string> texts{std::string(100, 'x'), std::string(99, 'x') + 'y'};
  for (const char* text : {"a:b", "a_b", "a/b", "a+b", "a#b", "A:b", "Hörsaal", ""}) {
    texts.emplace_back(text);
  }
  std::set<QByteArray> levels;
  for (const std::string& text : texts) {
    const QByteArray level = TopicLevel(text);
    EXPECT_THAT(level.toStdString(), testing::MatchesRegex("[A-Za-z0-9_-]+"));
    EXPECT_LE(level.size(), 90);
    levels.insert(level);
  }
  EXPECT_EQ(levels.size(), texts.size());

  const Topics topics("site/hall", "1-of-1");
  const auto idAndKey = [&](const char* topic) {
    const auto [id, key] = topics.ParseSet(topic);
    return (id + '|' + key).toStdString();
  };
  EXPECT_EQ(idAndKey("site/hall/x/set"), "x|");
  EXPECT_EQ(idAndKey("site/hall/x/set/picture.brightness"), "x|picture.brightness");
  for (const char* other : {"site/hall/x/set/", "site/hall/x/set/a/b", "site/hall/x/state",
                            "site/hallx/set", "x/set"}) {
    EXPECT_EQ(idAndKey(other), "|") << other;
  }
}

TEST(StateMessage, TellsWhatIsKnownAndNothingElse) {
  const FleetProfile profile = HallOf(FullModel(5, 30));
  const auto message = [&](const LiveState& it) { return StateMessage(profile, it).toStdString(); };
  std::string told = message({}) + '\n';
  LiveState state{.reachability = Reachability::Answers,
                  .power = PowerState::WarmingUp,
                  .source = PlayingSource{31, {}},  // a number is better than no name
                  .problems = PartProblems{},
                  .blank = true,
                  .lamps = {{120, true}, {7, {}}}};
  state.problems->at(2) = ProblemGrade::Warning;
  told += message(state) + '\n';
  state.reachability = Reachability::Silent;
  state.connection = ConnectionState::NoAnswer;
  ExpectRecord(TEST_SOURCE_DIR "/bridge/States.txt", told + message(state) + '\n');
}

class DiscoveryOf : public testing::Test {
 protected:
  QJsonObject Of(const CModelInfo2& info, const std::vector<std::string>& keys) {
    const KeyRules rules(keys);
    const Discovery discovery(models_, Texts(), rules, topics_);
    return Json(discovery.MessageOf(HallOf(info), "x"));
  }

  ModelBook models_;
  const Topics topics_{"projectors", "1-of-1"};
};

TEST_F(DiscoveryOf, AFewMessagesAreAsRecorded) {
  std::string told;
  for (const auto& [model, keys] :
       std::initializer_list<std::pair<CModelInfo2, std::vector<std::string>>>{
           {FullModel(5, 30), {}},  // only sensors
           {FullModel(5, 30), {"power", "picture.brightness"}},
           {FullModel(1, 1), {"other.*"}}}) {
    QJsonObject message = Of(model, keys);
    message.remove("origin");  // which has the version
    told += QJsonDocument(message).toJson().toStdString();
  }
  ExpectRecord(TEST_SOURCE_DIR "/bridge/Discovery.txt", told);
}

TEST_F(DiscoveryOf, ControlsFollowTheKindsOfTheRows) {
  std::set<std::string> platforms;
  for (const CModelInfo2& info : EveryModel()) {
    const ModelSettings settings(MakeModelData(info));
    const QJsonObject components = Of(info, {"*"})["components"].toObject();
    for (const QString& key : components.keys()) {
      const QJsonObject entity = components[key].toObject();
      const std::string platform = entity["platform"].toString().toStdString();
      platforms.insert(platform);
      EXPECT_FALSE(key.startsWith("service_")) << NameOf(info);
      EXPECT_FALSE(entity["name"].toString().isEmpty()) << NameOf(info) << ' ' << key.toStdString();
      EXPECT_EQ(platform == "select", !entity["options"].toArray().isEmpty());
      EXPECT_EQ(platform == "number", entity["min"].toInt() < entity["max"].toInt());
      // Everything that a hub can send is understood.
      const QString topic = entity["command_topic"].toString();
      const std::string setting = topic.section('/', -1).toStdString();
      QStringList payloads{"run"};
      if (platform == "select") {
        payloads = entity["options"].toVariant().toStringList();
      } else if (platform == "number") {
        payloads = {"=" + QString::number(entity["min"].toInt()),
                    "=" + QString::number(entity["max"].toInt())};
      } else if (platform == "switch") {
        payloads = {entity["payload_on"].toString(), entity["payload_off"].toString()};
      }
      for (const QString& payload : payloads) {
        if (topic.isEmpty()) break;
        EXPECT_EQ(CheckCommand({setting, payload}, settings, Texts(), KeyRules({"*"})), QString())
            << NameOf(info) << ' ' << setting;
      }
    }
  }
  EXPECT_EQ(platforms, (std::set<std::string>{"binary_sensor", "button", "number", "select",
                                              "sensor", "switch"}));
}

TEST(KeyRules, NeverAllowWhatIsForService) {
  const KeyRules all({"*", "service.*", "service.ir-top"});
  for (const std::string_view key : AllKeys()) {
    EXPECT_EQ(all.Allows(key), !key.starts_with("service.")) << key;
  }
  // No setting is a reset of hours.
  for (const CModelInfo2& info : EveryModel()) {
    const ModelSettings settings(MakeModelData(info));
    for (const ModelSetting& setting : settings.All()) {
      const auto* const action = std::get_if<ActionRow>(setting.row);
      if (action == nullptr) continue;
      EXPECT_NE(action->call.operation, PjtOperation::ExecLampTimeReset) << setting.key;
      EXPECT_NE(action->call.operation, PjtOperation::ExecFilterTimeReset) << setting.key;
    }
  }
  EXPECT_FALSE(KeyRules().Allows("picture.brightness"));
  EXPECT_TRUE(KeyRules({"picture.*"}).Allows("picture.brightness"));
  EXPECT_FALSE(KeyRules({"picture.*"}).Allows(kPowerKey));
}

class Desk : public testing::Test {
 protected:
  /// The outcome and reason of the answer, or what was run.
  std::string Send(const QByteArray& topic, const QByteArray& payload, bool isRetained = false) {
    said_.clear();
    desk_.Take({"projectors/" + topic, payload, isRetained}, now_);
    return said_;
  }

  const FleetProfile profile_ = HallOf(FullModel(5, 30));
  ModelBook models_;
  const Topics topics_{"projectors", "1-of-1"};
  CommandDesk::Time now_{};
  std::string said_;
  CommandDesk desk_{
      {.keys = KeyRules({"picture.*", "power"}), .perMinute = 60, .burst = 5},
      models_,
      Texts(),
      topics_,
      {.find = [this](const QByteArray& id, auto&) { return id == "x" ? &profile_ : nullptr; },
       .run =
           [this](std::size_t, const Command& command) {
             said_ = "run " + command.key + '=' + TypedValueOf(command);
             return true;
           },
       .answer =
           [this](const BrokerMessage& answer) {
             EXPECT_EQ(answer.topic, "projectors/x/answer");
             EXPECT_FALSE(answer.isRetained);
             const QJsonObject json = Json(answer.payload);
             said_ = (json["outcome"].toString() + ": " + json["reason"].toString()).toStdString();
             if (!json["value"].isString())
               said_ += " of " + json["value"].toVariant().toString().toStdString();
             if (json.contains("id"))
               said_ += " #" + json["id"].toVariant().toString().toStdString();
           }}};
};

TEST_F(Desk, RefusesEverythingWrongWithAReason) {
  // A topic and what is sent there.
  ExpectAnswers(TEST_SOURCE_DIR "/bridge/Commands.txt", [this](const std::string& question) {
    now_ += 1min;
    const QByteArray sent = QByteArray::fromStdString(question);
    const qsizetype end = (sent + ' ').indexOf(' ');
    return Send(sent.left(end), sent.mid(end + 1));
  });
  now_ += 1min;
  EXPECT_EQ(Send("x/set/picture.brightness", " +2\n"), "run picture.brightness=+2");
  EXPECT_EQ(Send("x/set/picture.brightness", "\xff\xfe"), "error: the value is no text in UTF-8");
  for (const char* topic : {"x/set", "x/set/power"}) {
    EXPECT_EQ(Send(topic, QByteArray(1 << 20, '[')), "error: the command has more than 4096 bytes");
  }
  EXPECT_EQ(Send("x/set/power", "on", true), "error: a command must not be retained");
  EXPECT_EQ(Send("x/set/power", "", true), "") << "a retained command was removed";
}

TEST_F(Desk, LimitsAndSwitches) {
  const auto send = [this] { return Send("x/set/power", "on"); };
  for (int i = 0; i < 5; ++i) EXPECT_EQ(send(), "run power=on");
  EXPECT_EQ(send(), "error: more than 60 commands a minute");
  now_ += 1s;
  EXPECT_EQ(send(), "run power=on");
  EXPECT_EQ(send(), "error: more than 60 commands a minute");

  now_ += 1min;
  const std::string off = "error: commands are switched off";
  for (const char* payload : {"off", "of", "0", "on off"}) {
    desk_.TakeSwitch(payload);
    EXPECT_EQ(send(), off) << payload;
  }
  desk_.TakeSwitch("ON");
  EXPECT_EQ(send(), "run power=on");
  desk_.SetSwitchedOn(false);
  desk_.TakeSwitch({});
  EXPECT_EQ(send(), off);
  desk_.SetSwitchedOn(true);
  EXPECT_EQ(send(), "run power=on");
  EXPECT_EQ(desk_.Counts().at("error"), 7U);
}

TEST_F(Desk, TellsEveryOutcome) {
  const Command command{"picture.brightness", -3, "a"};
  const auto finish = [&](WorkOutcome outcome, bool isAsleep) {
    desk_.Finish("x", command, {.outcome = outcome, .reason = "not '=-3'"}, isAsleep);
    return said_;
  };
  EXPECT_EQ(finish(WorkOutcome::Done, false), "accepted: not '-3' of -3 #a");
  EXPECT_EQ(finish(WorkOutcome::Pending, true), "pending: not '-3' of -3 #a");
  EXPECT_EQ(finish(WorkOutcome::Refused, false), "refused: not '-3' of -3 #a");
  EXPECT_EQ(finish(WorkOutcome::Refused, true), "standby: not '-3' of -3 #a");
  EXPECT_EQ(finish(WorkOutcome::NoAnswer, true), "no-answer: not '-3' of -3 #a");
  EXPECT_EQ(finish(WorkOutcome::Stopped, false), "stopped: not '-3' of -3 #a");
}

}  // namespace
