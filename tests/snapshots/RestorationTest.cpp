// Snapshots on every projector of the profile file: kept, disturbed, put back.

#include <array>
#include <atomic>
#include <gmock/gmock.h>
#include <set>
#include <thread>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/channels/TcpChannel.h"
#include "simulator/WireResponder.h"
#include "tests/device/Peer.h"
#include "tests/snapshots/DisturbedProjector.h"

namespace {

// What sources keep for themselves, and what those and their modes do.
std::vector<Memory> Memories() {
  return {{{SettingId::InputSource}, {SettingId::Gamma, SettingId::ColorTemp, SettingId::Volume}},
          {{SettingId::InputSource, SettingId::Gamma, SettingId::ColorTemp},
           {SettingId::Brightness, SettingId::Tint, SettingId::ActiveIris, SettingId::Aspect}}};
}

TEST(Restoration, BringsEveryProjectorBackAndUndoesItself) {
  ASSERT_GT(Profiles().size(), 50U);
  unsigned seed = 3;
  for (const ProjectorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.Name);
    Room room(profile);
    std::set<std::string> names;
    for (const ModelSetting& setting : room.settings.All()) {
      const std::string name = Texts().Name(room.settings, setting, {});
      EXPECT_TRUE(names.insert(Texts().Tab(setting) + name).second) << name;
    }
    room.ChangeAll(1);
    room.channel->count = 0;
    const Snapshot wanted = room.Take();
    EXPECT_LE(room.channel->count, std::ssize(wanted.settings) + 2) << "a source is asked for once";
    room.ChangeAll(2);
    const Restoration restoration = room.Restore(wanted);
    EXPECT_EQ(room.Take().settings, wanted.settings);
    EXPECT_EQ(restoration.Count(Outcome::Changed) + restoration.Count(Outcome::AlreadySo),
              static_cast<int>(wanted.settings.size()));
    const int sent = room.channel->sent;
    EXPECT_EQ(room.Restore(wanted).Count(Outcome::Changed), 0);
    EXPECT_EQ(room.channel->sent, sent) << "what is so is not sent again";
    // Undone wherever it is cut off, with all that sources and modes keep, and done again.
    auto& memories = room.channel->memories;
    memories = Memories();
    for (const int cut : {1000, 1, 3, 6, 14}) {
      SCOPED_TRACE(cut);
      room.ChangeAll(++seed);
      const Snapshot before = room.Take();
      const auto first = memories;
      const int source = room.channel->projector.Value(SettingId::InputSource);
      Snapshot undo, redo;
      const int limit = room.channel->sent + cut;
      room.Restore(wanted, &undo, [&] { return room.channel->sent < limit; });
      // Somebody may choose another source meanwhile.
      if (cut == 1000) room.channel->projector.SetValue(SettingId::InputSource, source);
      room.channel->Execute({.operation = PjtOperation::GetInputSource});
      const Snapshot after = room.Take();
      const auto changed = memories;
      room.Restore(ReadSnapshot(WriteSnapshot(undo)).snapshot, &redo);
      EXPECT_EQ(room.Take().settings, before.settings);
      EXPECT_TRUE(std::ranges::equal(memories, first, &Memory::IsLike));
      room.Restore(redo);
      EXPECT_EQ(room.Take().settings, after.settings);
      EXPECT_TRUE(std::ranges::equal(memories, changed, &Memory::IsLike));
    }
  }
}

/// Serves a projector. Where an answer gets lost, the connection does.
Peer::Behaviour Serves(ProjectorChannel& projector) {
  return [&projector](Peer::End& end) {
    WireResponder responder(projector);
    for (auto bytes = end.Receive(); !bytes.empty(); bytes = end.Receive()) {
      Wire::Decoder replies;
      replies.Add(responder.Receive(bytes));
      while (const auto frame = replies.Next()) {
        const auto* reply = std::get_if<Wire::Reply>(&frame->message);
        if (reply != nullptr && reply->status == Wire::Status::Unanswered) return;
        std::string answer;
        Wire::Append(answer, *frame);
        end.Send(answer);
      }
    }
  };
}

/// Holds all that is told of a restoration against the projector, which had `before` at first.
void ExpectTruth(Room& room, const Restoration& restoration, const Restoration& before) {
  room.channel->CarryOutLate();
  room.channel->trouble = {};
  for (const RestoredSetting& restored : restoration.Settings()) {
    SCOPED_TRACE(restored.saved.key);
    const auto now = room.settings.Read(room.connection, *restored.setting, restored.saved.source);
    const auto number = static_cast<std::size_t>(&restored - restoration.Settings().data());
    switch (restored.outcome) {
      case Outcome::Changed:
      case Outcome::AlreadySo:
        EXPECT_EQ(now, restored.saved.value);
        break;
      case Outcome::NotReached:
      case Outcome::Differs:
        EXPECT_EQ(now, restored.before ? restored.before : before.Settings()[number].before)
            << "nothing was sent";
        break;
      default:
        EXPECT_TRUE(!restored.now || now == restored.now);
    }
  }
}

void ExpectTruthFromAfar(const ProjectorProfile& profile, const Disturbed::Trouble& trouble) {
  SCOPED_TRACE(profile.Name);
  Room room(profile);
  room.ChangeAll(1);
  const Snapshot wanted = room.Take();
  room.ChangeAll(2);
  Restoration before(wanted, room.settings, room.connection);
  before.Read();
  room.channel->count = 0;
  room.channel->trouble = trouble;
  auto peer = std::make_unique<Peer>(Way::Tcp, std::vector{Serves(*room.channel)});
  ProjectorAccess far(profile, std::make_shared<TcpChannel>("127.0.0.1", peer->port));
  const Restoration restoration = Restore(far.Settings(), far.Connection(), wanted, nullptr,
                                          [&far] { return !far.Channel().IsGone(); });
  peer.reset();
  ExpectTruth(room, restoration, before);
  room.Restore(wanted);
  EXPECT_EQ(room.Take().settings, wanted.settings);
}

// Whatever goes wrong, each list holds what is in it, and doing it again completes it.
TEST(Restoration, TellsTheTruthWhenCommandsAreRefusedLostAndLate) {
  std::vector<std::pair<const ProjectorProfile*, Disturbed::Trouble>> cases;
  for (const ProjectorProfile& profile : Profiles()) cases.push_back({&profile, {1, 1}});
  cases.push_back({&Profile("Projector 2-6"), {30, 10}});
  for (const int dead : {40, 100, 130}) cases.push_back({&Profile("Projector 5-54"), {0, 0, dead}});
  for (const int by : {0, 2, 30}) {
    for (const char* name : {"Projector 2-6", "Projector 4-24", "Projector 5-30"}) {
      cases.push_back({&Profile(name), {.latePercent = 10, .lateBy = by}});
    }
  }
  std::atomic<std::size_t> next = 0;
  std::array<std::jthread, 16> workers;  // it is mostly waiting
  for (std::jthread& worker : workers) {
    worker = std::jthread([&] {
      for (std::size_t n = next++; n < cases.size(); n = next++) {
        ExpectTruthFromAfar(*cases[n].first, cases[n].second);
      }
    });
  }
}

// A source or mode drags along what belongs to it. Where its answer is lost and it is carried out
// at once, before or after it is read back, or after all, and where the work is cut off behind it:
// nothing is told that is not so, and undoing it brings everything back.
TEST(Restoration, TellsTheTruthOfWhatAChangeDragsAlong) {
  constexpr int kCutOff = -1;
  constexpr int kLateBy[] = {kCutOff, 0, 1, 9, 1 << 20};
  constexpr int kChanges[] = {1, 2, 5, 20};
  std::size_t turn = 0;
  std::set<Outcome> outcomes;
  for (const ProjectorProfile& profile : Profiles()) {
    Room room(profile);
    room.channel->memories = Memories();
    room.ChangeAll(1);
    const Snapshot wanted = room.Take();
    for (const int by : kLateBy) {
      const int change = kChanges[turn++ % std::size(kChanges)];
      SCOPED_TRACE(testing::Message() << profile.Name << " change " << change << " by " << by);
      room.ChangeAll(2);
      const Snapshot atFirst = room.Take();
      const auto memories = room.channel->memories;
      Restoration before(wanted, room.settings, room.connection);
      before.Read();
      room.channel->sent = 0;
      if (by != kCutOff) room.channel->trouble = {.lateBy = by, .lateChange = change};
      Snapshot undo;
      const Restoration restoration =
          room.Restore(wanted, &undo, [&] { return by != kCutOff || room.channel->sent < change; });
      if (by == 0) {
        EXPECT_LE(restoration.Count(Outcome::Unconfirmed), 1) << "a step";
      }
      for (const auto& restored : restoration.Settings()) outcomes.insert(restored.outcome);
      ExpectTruth(room, restoration, before);
      room.Restore(undo);
      EXPECT_EQ(room.Take().settings, atFirst.settings);
      EXPECT_TRUE(std::ranges::equal(room.channel->memories, memories, &Memory::IsLike));
    }
  }
  using enum Outcome;
  EXPECT_THAT(outcomes, testing::IsSupersetOf({Changed, AlreadySo, Differs, Unconfirmed}));
}

TEST(Restoration, LeavesWhatIsBesideAnInterruptedStepUntouched) {
  Room room(Profile("Projector 5-30"));
  Snapshot wanted = room.Take();
  std::erase_if(wanted.settings, [](const SavedSetting& saved) {
    return !saved.key.starts_with("image.position-");
  });
  for (SavedSetting& saved : wanted.settings) saved.value += 20;
  const Restoration restoration =
      room.Restore(wanted, nullptr, [&room] { return room.channel->sent < 3; });
  ASSERT_EQ(restoration.Settings().size(), 2);
  EXPECT_EQ(restoration.Settings()[0].outcome, Outcome::Refused) << "after three steps";
  EXPECT_EQ(restoration.Settings()[1].outcome, Outcome::Differs) << "nothing was sent for it";
}

/// Gives what is scripted for a change; everything else goes its way.
struct Scripted : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    const bool isScripted = !IsRead(command.operation) && command.code == code;
    isGone = isGone || (isScripted && !reply.answered);
    return isScripted || isGone ? reply : inner->Execute(command);
  }

  std::shared_ptr<ProjectorChannel> inner;
  std::uint16_t code = 0;
  PjtReply reply;
  bool isGone = false;
};

TEST(Restoration, TellsWhyAChangeIsNotSo) {
  Snapshot wanted;
  wanted.settings = {{"picture.tint", 131, ""}, {"picture.active-iris", 16, ""}};
  using enum Outcome;
  const std::pair<PjtReply, std::vector<Outcome>> kCases[] = {
      {{.result = 1}, {Changed, Refused}},
      {{.result = 1, .pending = true}, {Unconfirmed, Pending}},
      {{.result = 0, .busy = true}, {Changed, Busy}},
      {{.answered = false}, {Unconfirmed, Unconfirmed}},
      {{.answered = false, .unsent = true}, {NotReached, NotReached}},
  };
  for (const auto& [reply, outcomes] : kCases) {
    Room room(Profile("Projector 5-30"));
    const auto scripted = std::make_shared<Scripted>();
    scripted->inner = room.channel;
    scripted->code = CommandCode::ActiveIris;
    scripted->reply = reply;
    room.connection.SetChannel(scripted);
    const Restoration restoration = room.Restore(wanted);
    std::vector<Outcome> told;
    for (const auto& restored : restoration.Settings()) told.push_back(restored.outcome);
    EXPECT_EQ(told, outcomes);
  }
}

TEST(Restoration, SkipsWhatTheModelDoesNotTakeAndStopsWhenTold) {
  Room room(Profile("Projector 5-30"));
  Snapshot snapshot = room.Take();
  snapshot.settings = {{"picture.brightness", 1000, ""}, {"picture.gamma", 99, ""},
                       {"status.power", 0, ""},          {"no.such", 1, ""},
                       {"audio.volume", 3, "", 6},       {"picture.tint", 131, "", 0},
                       {"picture.contrast", 130, ""},    {"picture.tint", 131, ""}};
  Restoration restoration(snapshot, room.settings, room.connection);
  restoration.Read();
  restoration.Send(Texts(), {.goesOn = [&room] { return room.channel->sent == 0; }});
  std::vector<Outcome> outcomes;
  for (const auto& restored : restoration.Settings()) outcomes.push_back(restored.outcome);
  using enum Outcome;
  EXPECT_THAT(outcomes, testing::ElementsAre(NotAllowed, NotAllowed, NotSettable, Unknown,
                                             NotAllowed, NotAllowed, Changed, Differs));
}

}  // namespace
