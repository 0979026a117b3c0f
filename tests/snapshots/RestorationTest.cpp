// Snapshots on every projector of the profile file: kept, disturbed, put back.

#include <atomic>
#include <gmock/gmock.h>
#include <random>
#include <thread>

#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "app/profiles/ProjectorAccess.h"
#include "device/TcpChannel.h"
#include "i18n/SystemLanguage.h"
#include "simulator/WireResponder.h"
#include "snapshots/Restoration.h"

namespace {

using Random = std::minstd_rand;

const SettingTexts& Texts() {
  static const std::vector<std::string> folders{TEST_CATALOG_DIR};
  static const SettingTexts texts(folders, kEnglishUnitedStates);
  return texts;
}

const std::vector<ProjectorProfile>& Profiles() {
  static const auto profiles = ReadProfileFile(TEST_CATALOG_DIR "/projectors.json").projectors;
  return profiles;
}

const ProjectorProfile& Profile(std::string_view name) {
  return *std::ranges::find(Profiles(), name, &ProjectorProfile::Name);
}

/// A projector whose commands may be refused, get lost on the way there or back, or end for good.
struct Disturbed : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    ++count;
    if (!IsRead(command.operation)) ++sent;
    const PjtReply lost{.result = RefusedResult(command.operation), .answered = false};
    if (count > trouble.deadAfter || Happens(trouble.lostPercent)) return lost;
    if (Happens(trouble.refusedPercent)) return {.result = RefusedResult(command.operation)};
    const PjtReply reply = projector.Execute(command);
    return Happens(trouble.lostPercent) ? lost : reply;
  }
  bool Happens(int percent) { return static_cast<int>(random() % 100) < percent; }

  explicit Disturbed(const ProjectorProfile& profile) : projector(SimulatedModelOf(profile)) {}
  SimulatedProjector projector;
  Random random{7};
  struct Trouble {
    int refusedPercent = 0, lostPercent = 0, deadAfter = 1 << 30;
  } trouble{};
  int count = 0, sent = 0;
};

/// The way to it over TCP, where an answer that got lost is never there.
class Line {
 public:
  explicit Line(std::shared_ptr<Disturbed> projector) : projector_(std::move(projector)) {
    while (port_ == 0) std::this_thread::yield();
  }
  std::shared_ptr<ProjectorChannel> Channel() const {
    constexpr std::chrono::milliseconds kTimeOut{100};
    return std::make_shared<TcpChannel>("127.0.0.1", port_,
                                        WireChannel::Limits{.answer = kTimeOut});
  }

 private:
  void Serve(const std::stop_token& end) {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    port_ = server.serverPort();
    while (!end.stop_requested()) {
      if (!server.waitForNewConnection(10)) continue;
      const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
      WireResponder responder(*projector_);
      while (!end.stop_requested() && socket->state() == QTcpSocket::ConnectedState) {
        socket->waitForReadyRead(10);
        Wire::Decoder replies;
        replies.Add(responder.Receive(socket->readAll().toStdString()));
        while (const auto frame = replies.Next()) {
          const auto* reply = std::get_if<Wire::Reply>(&frame->message);
          if (reply != nullptr && reply->status == Wire::Status::Unanswered) continue;
          std::string bytes;
          Wire::Append(bytes, *frame);
          socket->write(bytes.data(), std::ssize(bytes));
        }
        socket->flush();
      }
    }
  }

  std::shared_ptr<Disturbed> projector_;
  std::atomic<std::uint16_t> port_ = 0;
  std::jthread thread_{[this](const std::stop_token& end) { Serve(end); }};
};

struct Room {
  explicit Room(const ProjectorProfile& profile)
      : Room(profile, std::make_shared<Disturbed>(profile)) {}
  Room(const ProjectorProfile& profile, std::shared_ptr<Disturbed> disturbed)
      : Room(profile, disturbed, disturbed) {}
  Room(const ProjectorProfile& profile, std::shared_ptr<Disturbed> disturbed,
       std::shared_ptr<ProjectorChannel> way)
      : channel(std::move(disturbed)), projector(profile, std::move(way)) {}

  Snapshot Take() {
    return TakeSnapshot(projector.Name(), projector.Settings(), projector.Connection(), Texts());
  }
  Restoration Prepare(const Snapshot& snapshot) {
    return {snapshot, projector.Settings(), projector.Connection()};
  }
  Progress Careful() {
    return {.goesOn = [this] { return !projector.Channel().IsGone(); }};
  }
  Restoration Restore(const Snapshot& snapshot) {
    Restoration restoration = Prepare(snapshot);
    restoration.Read(Careful());
    restoration.Send(Texts(), Careful());
    return restoration;
  }
  void ChangeAll(unsigned seed) {
    Random random(seed);
    for (const ModelSetting& setting : projector.Settings().All()) {
      if (!setting.Restorable()) continue;
      const int value = AnyValue(setting, random);
      projector.Settings().Change(projector.Connection(), setting, value);
    }
  }
  static int AnyValue(const ModelSetting& setting, Random& random) {
    if (setting.kind == ModelSetting::Kind::Choice) {
      return setting.entries[random() % setting.entries.size()].value;
    }
    const Range range = setting.range.value_or(Range{100, 120});
    const auto size = static_cast<unsigned>(range.maximum - range.minimum + 1);
    return range.minimum + static_cast<int>(random() % size);
  }

  std::shared_ptr<Disturbed> channel;
  ProjectorAccess projector;
};

TEST(Restoration, BringsEveryProjectorBackAndUndoesItself) {
  ASSERT_GT(Profiles().size(), 50U);
  for (const ProjectorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.Name);
    Room room(profile);
    room.ChangeAll(1);
    const Snapshot wanted = room.Take();
    room.ChangeAll(2);
    const Snapshot before = room.Take();
    Restoration restoration = room.Prepare(wanted);
    restoration.Read();
    const Snapshot undo = restoration.Undo(profile.Name, Texts());
    restoration.Send(Texts());
    EXPECT_EQ(room.Take().settings, wanted.settings);
    EXPECT_EQ(restoration.Count(Outcome::Changed) + restoration.Count(Outcome::AlreadySo),
              static_cast<int>(wanted.settings.size()));
    const int sent = room.channel->sent;
    EXPECT_EQ(room.Restore(wanted).Count(Outcome::Changed), 0);
    EXPECT_EQ(room.channel->sent, sent) << "what is so is not sent again";
    room.Restore(undo);
    EXPECT_EQ(room.Take().settings, before.settings);
  }
}

// Whatever goes wrong, each list holds what is in it, and doing it again completes it.
TEST(Restoration, TellsTheTruthWhenCommandsAreRefusedAndLost) {
  const struct {
    const char* profile;
    Disturbed::Trouble trouble;
    bool overTcp = false;
  } kCases[] = {{"Projector 5-54", {30, 10}},       {"Projector 5-54", {0, 0, 40}},
                {"Projector 5-54", {0, 0, 100}},    {"Projector 5-54", {0, 0, 130}},
                {"Projector 5-54", {1, 1}, true},   {"Projector 1-1", {1, 1}, true},
                {"Projector 4-11 b", {1, 1}, true}, {"Projector 3-71", {0, 0, 60}, true}};
  for (const auto& [name, trouble, overTcp] : kCases) {
    SCOPED_TRACE(name);
    const ProjectorProfile& profile = Profile(name);
    Room room(profile);
    room.ChangeAll(1);
    const Snapshot wanted = room.Take();
    room.ChangeAll(2);
    Restoration before = room.Prepare(wanted);
    before.Read();
    room.channel->count = 0;
    room.channel->trouble = trouble;
    auto line = overTcp ? std::make_unique<Line>(room.channel) : nullptr;
    Room far(profile, room.channel, line ? line->Channel() : room.channel);
    const Restoration restoration = far.Restore(wanted);
    line.reset();
    room.channel->trouble = {};
    for (std::size_t i = 0; i < wanted.settings.size(); ++i) {
      const RestoredSetting& restored = restoration.Settings()[i];
      SCOPED_TRACE(restored.saved.key);
      const auto now = room.projector.Settings().Read(room.projector.Connection(),
                                                      *restored.setting, restored.saved.source);
      const bool done =
          restored.outcome == Outcome::Changed || restored.outcome == Outcome::AlreadySo;
      if (done) {
        EXPECT_EQ(now, restored.saved.value);
      } else if (restored.outcome == Outcome::Refused && restored.now) {
        EXPECT_EQ(now, restored.now);
      } else if (restored.outcome == Outcome::NotReached || restored.outcome == Outcome::Differs) {
        EXPECT_EQ(now, before.Settings()[i].before) << "nothing was sent";
      }
    }
    const Restoration rest = room.Restore(wanted);
    EXPECT_EQ(rest.Count(Outcome::Changed) + rest.Count(Outcome::AlreadySo),
              static_cast<int>(wanted.settings.size()));
  }
}

TEST(Restoration, SkipsWhatTheModelDoesNotTakeAndStopsWhenTold) {
  Room room(Profile("Projector 5-30"));
  Snapshot snapshot = room.Take();
  snapshot.settings = {{"picture.brightness", 1000, ""}, {"picture.gamma", 99, ""},
                       {"status.power", 0, ""},          {"no.such", 1, ""},
                       {"picture.contrast", 130, ""},    {"picture.tint", 131, ""}};
  Restoration restoration = room.Prepare(snapshot);
  restoration.Read();
  restoration.Send(Texts(), {.goesOn = [&room] { return room.channel->sent == 0; }});
  std::vector<Outcome> outcomes;
  for (const auto& restored : restoration.Settings()) outcomes.push_back(restored.outcome);
  EXPECT_THAT(outcomes,
              testing::ElementsAre(Outcome::NotAllowed, Outcome::NotAllowed, Outcome::NotSettable,
                                   Outcome::Unknown, Outcome::Changed, Outcome::Differs));
}

TEST(Snapshot, IsReadAsWrittenAndRefusedWhenWrong) {
  Room room(Profiles().front());
  const Snapshot snapshot = room.Take();
  const QByteArray text = WriteSnapshot(snapshot);
  const SnapshotContents contents = ReadSnapshot(text);
  EXPECT_EQ(contents.error, "");
  EXPECT_EQ(contents.snapshot, snapshot);
  for (const auto& [from, to, error] : std::vector<std::array<const char*, 3>>{
           {"\"format\"", "\"formal\"", "no file of saved settings"},
           {"\"version\": 1", "\"version\": 2", "only version 1"},
           {"\"value\": ", "\"value\": 0.5, \"x\": ", "settings[0].value: must be a whole"},
           {"\"value\": ", "\"value\": 1e9, \"x\": ", "settings[0].value: must be a whole"},
           {"\"settings\": [", "\"settings\": [1,", "settings[0]: must be an object"},
           {"\"settings\"", "\"settingz\"", "settings: must be an array"},
           {"\"key\": \"", "\"kez\": \"", "settings[0].key: must be a line"},
           {"\"model\": {", "\"model\": {]", "line 3: "}}) {
    QByteArray wrong = text;
    wrong.replace(wrong.indexOf(from), static_cast<int>(strlen(from)), to);
    EXPECT_THAT(ReadSnapshot(wrong).error.toStdString(), testing::HasSubstr(error));
  }
}

TEST(SettingTexts, UnderstandsWhatPeopleType) {
  const Room room(Profile("Projector 5-30"));
  const struct {
    const char* key;
    const char* text;
    std::optional<int> value;  // from present value `from`
    int from = 0;
  } kCases[] = {
      {"picture.brightness", "5", 133},
      {"picture.brightness", "=-31", 97},
      {"picture.brightness", "32", {}},
      {"picture.brightness", "+3", 131, 128},
      {"picture.brightness", "-3", 125, 128},
      {"picture.brightness", "+1", {}, 159},
      {"picture.brightness", "", {}},
      {"picture.brightness", "5x", {}},
      {"picture.brightness", "99999999999", {}},
      {"picture.sharpness", "4", 128},
      {"picture.active-iris", "theater", 16},
      {"picture.active-iris", "影院", 16},
      {"picture.active-iris", "17", 17},
      {"picture.active-iris", "1", {}},
      {"picture.active-iris", "+1", 16, 0},
      {"picture.active-iris", "+1", {}, 17},
      {"setup.mirror", "H&V Inverse", 3},
  };
  for (const auto& [key, text, value, from] : kCases) {
    const ModelSetting* const setting = room.projector.Settings().Find(key);
    ASSERT_NE(setting, nullptr) << key;
    const auto typed = Texts().Parse(*setting, text);
    EXPECT_EQ(typed ? Resolve(*setting, *typed, from) : std::nullopt, value) << key << ' ' << text;
  }
}

}  // namespace
