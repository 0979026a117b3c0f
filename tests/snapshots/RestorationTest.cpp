// Snapshots on every projector of the profile file: kept, disturbed, put back.

#include <array>
#include <atomic>
#include <gmock/gmock.h>
#include <map>
#include <random>
#include <set>
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

/// What a projector keeps for each of its sources, or for each of these and its modes.
struct Memory {
  using Values = std::vector<int>;

  /// What belongs to the source or mode that was set since comes back.
  void Follow(SimulatedProjector& projector) {
    const auto read = [&projector](const std::vector<SettingId>& which) {
      Values values;
      for (const SettingId id : which) values.push_back(projector.Value(id));
      return values;
    };
    const Values now = read(selectors);
    if (now != present && !present.empty()) {
      std::size_t number = kept.contains(now) ? 0 : kept.size();
      for (std::size_t i = 0; i < ids.size(); ++i, ++number) {
        const auto list = projector.ValuesOf(ids[i]);
        const int some = list.empty()
                             ? projector.RangeOf(ids[i]).minimum + static_cast<int>(number % 15)
                             : list[number % list.size()];
        projector.SetValue(ids[i], kept.contains(now) ? kept[now][i] : some);
      }
    }
    present = now;
    kept[now] = read(ids);
    fresh.emplace(now, kept[now]);
  }
  /// Whether all is as it was, of what is new too.
  bool IsLike(Memory then) const {
    then.kept.insert(fresh.begin(), fresh.end());
    return kept == then.kept;
  }

  std::vector<SettingId> selectors, ids;
  Values present{};
  std::map<Values, Values> kept{}, fresh{};
};

/// A projector whose commands may be refused, get lost on the way there or back, or end for good.
struct Disturbed : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    ++count;
    if (!IsRead(command.operation)) ++sent;
    const PjtReply lost{.result = RefusedResult(command.operation), .answered = false};
    if (count > trouble.deadAfter || Happens(trouble.lostPercent)) return lost;
    if (Happens(trouble.refusedPercent)) return {.result = RefusedResult(command.operation)};
    const PjtReply reply = projector.Execute(command);
    for (Memory& memory : memories) memory.Follow(projector);
    return Happens(trouble.lostPercent) ? lost : reply;
  }
  bool Happens(int percent) { return static_cast<int>(random() % 100) < percent; }

  explicit Disturbed(const ProjectorProfile& profile) : projector(SimulatedModelOf(profile)) {}
  SimulatedProjector projector;
  std::vector<Memory> memories{};
  Random random{7};
  struct Trouble {
    int refusedPercent = 0, lostPercent = 0, deadAfter = 1 << 30;
  } trouble{};
  int count = 0, sent = 0;
};

/// Serves a projector over TCP until told to end; an answer that got lost is never sent.
void Serve(const std::stop_token& end, ProjectorChannel& projector,
           std::atomic<std::uint16_t>& port) {
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  port = server.serverPort();
  while (!end.stop_requested()) {
    if (!server.waitForNewConnection(10)) continue;
    const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
    WireResponder responder(projector);
    while (!end.stop_requested() && socket->state() == QTcpSocket::ConnectedState) {
      socket->waitForReadyRead(10);
      Wire::Decoder replies;
      replies.Add(responder.Receive(socket->readAll().toStdString()));
      std::string bytes;
      while (const auto frame = replies.Next()) {
        const auto* reply = std::get_if<Wire::Reply>(&frame->message);
        if (!reply || reply->status != Wire::Status::Unanswered) Wire::Append(bytes, *frame);
      }
      socket->write(QByteArray::fromStdString(bytes));
      socket->flush();
    }
  }
}

Snapshot Take(ProjectorAccess& projector) {
  return TakeSnapshot(projector.Name(), projector.Settings(), projector.Connection(), Texts());
}

Restoration Restore(
    ProjectorAccess& projector, const Snapshot& snapshot, Snapshot* undo = nullptr,
    const std::function<bool()>& goesOn = [] { return true; }) {
  const Progress careful{.goesOn = [&] { return goesOn() && !projector.Channel().IsGone(); }};
  Restoration restoration(snapshot, projector.Settings(), projector.Connection());
  restoration.Read(careful);
  restoration.Send(Texts(), careful, [&] {
    if (undo != nullptr && goesOn()) *undo = restoration.Undo(projector.Name(), Texts());
    return true;
  });
  return restoration;
}

struct Room {
  explicit Room(const ProjectorProfile& profile)
      : channel(std::make_shared<Disturbed>(profile)), projector(profile, channel) {}

  void ChangeAll(unsigned seed) {
    Random random(seed);
    for (const ModelSetting& setting : projector.Settings().All()) {
      if (!setting.Restorable()) continue;
      const Range range = setting.range.value_or(Range{100, 120});
      const auto size = static_cast<unsigned>(range.maximum - range.minimum + 1);
      const int value = setting.kind == ModelSetting::Kind::Choice
                            ? setting.entries[random() % setting.entries.size()].value
                            : range.minimum + static_cast<int>(random() % size);
      projector.Settings().Change(projector.Connection(), setting, value);
    }
  }

  std::shared_ptr<Disturbed> channel;
  ProjectorAccess projector;
};

TEST(Restoration, BringsEveryProjectorBackAndUndoesItself) {
  ASSERT_GT(Profiles().size(), 50U);
  unsigned seed = 3;
  for (const ProjectorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.Name);
    Room room(profile);
    std::set<std::string> names;
    for (const ModelSetting& setting : room.projector.Settings().All()) {
      const std::string name = Texts().Name(room.projector.Settings(), setting, {});
      EXPECT_TRUE(names.insert(Texts().Tab(setting) + name).second) << name;
    }
    room.ChangeAll(1);
    room.channel->count = 0;
    const Snapshot wanted = Take(room.projector);
    EXPECT_LE(room.channel->count, std::ssize(wanted.settings) + 2) << "a source is asked for once";
    room.ChangeAll(2);
    const Restoration restoration = Restore(room.projector, wanted);
    EXPECT_EQ(Take(room.projector).settings, wanted.settings);
    EXPECT_EQ(restoration.Count(Outcome::Changed) + restoration.Count(Outcome::AlreadySo),
              static_cast<int>(wanted.settings.size()));
    const int sent = room.channel->sent;
    EXPECT_EQ(Restore(room.projector, wanted).Count(Outcome::Changed), 0);
    EXPECT_EQ(room.channel->sent, sent) << "what is so is not sent again";
    // Undone wherever it is cut off, with all that sources and modes keep, and done again.
    auto& memories = room.channel->memories;
    memories = {
        {{SettingId::InputSource}, {SettingId::Gamma, SettingId::ColorTemp, SettingId::Volume}},
        {{SettingId::InputSource, SettingId::Gamma, SettingId::ColorTemp},
         {SettingId::Brightness, SettingId::Tint, SettingId::ActiveIris, SettingId::Aspect}}};
    for (const int cut : {1000, 1, 3, 6, 14}) {
      SCOPED_TRACE(cut);
      room.ChangeAll(++seed);
      const Snapshot before = Take(room.projector);
      const auto first = memories;
      const int source = room.channel->projector.Value(SettingId::InputSource);
      Snapshot undo, redo;
      const int limit = room.channel->sent + cut;
      Restore(room.projector, wanted, &undo, [&] { return room.channel->sent < limit; });
      // Somebody may choose another source meanwhile.
      if (cut == 1000) room.channel->projector.SetValue(SettingId::InputSource, source);
      room.channel->Execute({.operation = PjtOperation::GetInputSource});
      const Snapshot after = Take(room.projector);
      const auto changed = memories;
      Restore(room.projector, ReadSnapshot(WriteSnapshot(undo)).snapshot, &redo);
      EXPECT_EQ(Take(room.projector).settings, before.settings);
      EXPECT_TRUE(std::ranges::equal(memories, first, &Memory::IsLike));
      Restore(room.projector, redo);
      EXPECT_EQ(Take(room.projector).settings, after.settings);
      EXPECT_TRUE(std::ranges::equal(memories, changed, &Memory::IsLike));
    }
  }
}

void ExpectTruth(const ProjectorProfile& profile, const Disturbed::Trouble& trouble) {
  SCOPED_TRACE(profile.Name);
  Room room(profile);
  room.ChangeAll(1);
  const Snapshot wanted = Take(room.projector);
  room.ChangeAll(2);
  Restoration before(wanted, room.projector.Settings(), room.projector.Connection());
  before.Read();
  room.channel->count = 0;
  room.channel->trouble = trouble;
  std::atomic<std::uint16_t> port = 0;
  std::jthread server(Serve, std::ref(*room.channel), std::ref(port));
  while (port == 0) std::this_thread::yield();
  const WireChannel::Limits limits{.answer = std::chrono::milliseconds(60)};
  ProjectorAccess far(profile, std::make_shared<TcpChannel>("127.0.0.1", port, limits));
  const Restoration restoration = Restore(far, wanted);
  server = {};
  room.channel->trouble = {};
  for (const RestoredSetting& restored : restoration.Settings()) {
    SCOPED_TRACE(restored.saved.key);
    const auto now = room.projector.Settings().Read(room.projector.Connection(), *restored.setting,
                                                    restored.saved.source);
    const auto number = static_cast<std::size_t>(&restored - restoration.Settings().data());
    const Outcome outcome = restored.outcome;
    if (outcome == Outcome::Changed || outcome == Outcome::AlreadySo) {
      EXPECT_EQ(now, restored.saved.value);
    } else if (outcome == Outcome::NotReached || outcome == Outcome::Differs) {
      EXPECT_EQ(now, before.Settings()[number].before) << "nothing was sent";
    } else {
      EXPECT_TRUE(!restored.now || now == restored.now);
    }
  }
  Restore(room.projector, wanted);
  EXPECT_EQ(Take(room.projector).settings, wanted.settings);
}

// Whatever goes wrong, each list holds what is in it, and doing it again completes it.
TEST(Restoration, TellsTheTruthWhenCommandsAreRefusedAndLost) {
  std::vector<std::pair<const ProjectorProfile*, Disturbed::Trouble>> cases;
  for (const ProjectorProfile& profile : Profiles()) cases.push_back({&profile, {1, 1}});
  cases.push_back({&Profile("Projector 2-6"), {30, 10}});
  for (const int dead : {40, 100, 130}) cases.push_back({&Profile("Projector 5-54"), {0, 0, dead}});
  std::atomic<std::size_t> next = 0;
  std::array<std::jthread, 16> workers;  // it is mostly waiting
  for (std::jthread& worker : workers) {
    worker = std::jthread([&] {
      for (std::size_t n = next++; n < cases.size(); n = next++) {
        ExpectTruth(*cases[n].first, cases[n].second);
      }
    });
  }
}

TEST(Restoration, SkipsWhatTheModelDoesNotTakeAndStopsWhenTold) {
  Room room(Profile("Projector 5-30"));
  Snapshot snapshot = Take(room.projector);
  snapshot.settings = {{"picture.brightness", 1000, ""}, {"picture.gamma", 99, ""},
                       {"status.power", 0, ""},          {"no.such", 1, ""},
                       {"audio.volume", 3, "", 6},       {"picture.tint", 131, "", 0},
                       {"picture.contrast", 130, ""},    {"picture.tint", 131, ""}};
  Restoration restoration(snapshot, room.projector.Settings(), room.projector.Connection());
  restoration.Read();
  restoration.Send(Texts(), {.goesOn = [&room] { return room.channel->sent == 0; }});
  std::vector<Outcome> outcomes;
  for (const auto& restored : restoration.Settings()) outcomes.push_back(restored.outcome);
  using enum Outcome;
  EXPECT_THAT(outcomes, testing::ElementsAre(NotAllowed, NotAllowed, NotSettable, Unknown,
                                             NotAllowed, NotAllowed, Changed, Differs));
}

/// Leaves each command as it is told to: "a" answers, "l" loses the answer, "u" does not send it;
/// the last goes on. Everything but "a" takes a time-out where it is in capitals.
struct Unsteady : ProjectorChannel {
  PjtReply Execute(const PjtCommand&) override {
    const char now = does[std::min(count++, does.size() - 1)];
    if (now == 'L') std::this_thread::sleep_for(timeOut);
    return {.result = now == 'a', .answered = now == 'a', .unsent = now == 'u'};
  }
  void GiveUpAfter(std::chrono::milliseconds time) override { given = time; }
  void Abandon() override { isAbandoned = true; }

  std::string does;
  std::chrono::milliseconds timeOut{};
  std::size_t count = 0;
  std::chrono::milliseconds given{};
  bool isAbandoned = false;
};

TEST(PatientChannel, AsksAgainWhatIsSafeToAskAndNeverCutsACommandShort) {
  constexpr std::chrono::milliseconds kTimeOut{500};
  constexpr PjtCommand kRead{.operation = PjtOperation::GetInputSource};
  constexpr PjtCommand kChange{.operation = PjtOperation::SetMute, .first = 1};
  constexpr PjtCommand kStep{PjtOperation::Inc, 0x2001};
  struct Case {
    const char* does;  // behind a first answer
    PjtCommand command;
    std::size_t times;  // it is sent
    bool isAnswered, isUnsent, isGone;
  };
  const Case kCases[] = {
      {"lla", kRead, 3, true, false, false},   {"l", kRead, 3, false, false, true},
      {"L", kRead, 2, false, false, true},     {"la", kChange, 2, true, false, false},
      {"lla", kChange, 2, false, false, true}, {"lu", kChange, 2, false, false, true},
      {"la", kStep, 1, false, false, false},   {"ua", kStep, 2, true, false, false},
      {"u", kStep, 2, false, true, true},      {"La", kRead, 2, true, false, false}};
  for (const Case& one : kCases) {
    SCOPED_TRACE(testing::Message() << one.does << ' ' << &one - kCases);
    const auto inner = std::make_shared<Unsteady>();
    inner->does = std::string("a") + one.does;
    inner->timeOut = kTimeOut;
    PatientChannel patient(inner, kTimeOut);
    EXPECT_TRUE(patient.Execute(kRead).answered);
    const PjtReply reply = patient.Execute(one.command);
    EXPECT_EQ(inner->count, 1 + one.times);
    EXPECT_EQ(reply.answered, one.isAnswered);
    EXPECT_EQ(!reply.answered && reply.unsent, one.isUnsent);
    EXPECT_EQ(patient.IsGone(), one.isGone);
    EXPECT_EQ(inner->given, std::chrono::milliseconds()) << "its time is its own";
  }
  const auto dead = std::make_shared<Unsteady>();
  dead->does = "l";
  PatientChannel patient(dead, kTimeOut);
  EXPECT_FALSE(patient.Execute(kRead).answered || patient.Execute(kRead).answered);
  EXPECT_EQ(dead->count, 1) << "it has never answered";
  patient.GiveUpAfter(kTimeOut);
  patient.Abandon();
  EXPECT_TRUE(dead->given == kTimeOut && dead->isAbandoned) << "all is passed on";
}

TEST(Snapshot, IsReadAsWrittenAndRefusedWhenWrong) {
  Room room(Profiles().front());
  const Snapshot snapshot = Take(room.projector);
  const QByteArray text = WriteSnapshot(snapshot);
  EXPECT_EQ(ReadSnapshot(text).snapshot, snapshot);
  for (const auto& [from, to, error] : std::vector<std::array<const char*, 3>>{
           {"\"format\"", "\"formal\"", "no file of saved settings"},
           {"\"version\": 1", "\"version\": 2", "only version 1"},
           {"\"value\": ", "\"value\": 0.5, \"x\": ", "settings[0].value: must be a whole"},
           {"\"value\": ", "\"value\": 1e9, \"x\": ", "settings[0].value: must be a whole"},
           {"\"settings\": [", "\"settings\": [1,", "settings[0]: must be an object"},
           {"\"settings\"", "\"settingz\"", "settings: must be an array"},
           {"\"settings\"", "\"beforehand\": 1, \"settings\"", "beforehand: must be an array"},
           {"\"key\": \"", "\"kez\": \"", "settings[0].key: must be a line"},
           {"\"model\": {", "\"model\": {]", "line 3: "}}) {
    QByteArray wrong = text;
    wrong.replace(wrong.indexOf(from), static_cast<int>(strlen(from)), to);
    EXPECT_THAT(ReadSnapshot(wrong).error.toStdString(), testing::HasSubstr(error));
  }
}

TEST(SettingTexts, UnderstandsWhatPeopleType) {
  const Room room(Profile("Projector 5-30"));
  struct Typed {
    const char* text;
    std::optional<int> value;  // from the present value `from`
    int from = 0;
  };
  const std::pair<const char*, std::vector<Typed>> kCases[] = {
      {"picture.brightness",
       {{"5", 133}, {"=-31", 97}, {"32", {}}, {"", {}}, {"5x", {}}, {"99999999999", {}}}},
      {"picture.brightness", {{"+3", 131, 128}, {"-3", 125, 128}, {"+1", {}, 159}}},
      {"picture.sharpness", {{"4", 128}}},
      {"picture.active-iris",
       {{"theater", 16}, {"影院", 16}, {"17", 17}, {"1", {}}, {"+1", 16, 0}, {"+1", {}, 17}}},
      {"setup.mirror", {{"H&V Inverse", 3}}},
  };
  for (const auto& [key, cases] : kCases) {
    const ModelSetting* const setting = room.projector.Settings().Find(key);
    ASSERT_NE(setting, nullptr) << key;
    for (const auto& [text, value, from] : cases) {
      const auto typed = Texts().Parse(*setting, text);
      EXPECT_EQ(typed ? Resolve(*setting, *typed, from) : std::nullopt, value) << key << text;
    }
  }
}

}  // namespace
