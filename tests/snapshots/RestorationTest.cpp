// Takes snapshots of every projector of the profile file, changes the settings, and restores them.

#include <array>
#include <gmock/gmock.h>
#include <set>

#include "device/channels/TcpChannel.h"
#include "simulator/WireResponder.h"
#include "tests/device/Peer.h"
#include "tests/snapshots/DisturbedProjector.h"

namespace {

// Settings kept for each source, and for each source and mode.
std::vector<Memory> Memories() {
  return {{{SettingId::InputSource}, {SettingId::Gamma, SettingId::ColorTemp, SettingId::Volume}},
          {{SettingId::InputSource, SettingId::Gamma, SettingId::ColorTemp},
           {SettingId::Brightness, SettingId::Tint, SettingId::ActiveIris, SettingId::Aspect}}};
}

TEST(Restoration, RestoresEveryProjectorAndCanBeUndone) {
  ASSERT_GT(Profiles().size(), 50U);
  unsigned seed = 3;
  for (const FleetProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.name);
    ConnectedProjector target(profile);
    std::set<std::string> names;
    for (const ModelSetting& setting : target.settings.All()) {
      const std::string name = Texts().Name(target.settings, setting, {});
      EXPECT_TRUE(names.insert(Texts().Tab(setting) + name).second) << name;
      EXPECT_EQ(name.find(setting.key), std::string::npos) << name << ": keys are for programs";
    }
    target.ChangeAll(1);
    target.channel->count = 0;
    const Snapshot wanted = target.Take();
    EXPECT_LE(target.channel->count, std::ssize(wanted.settings) + 2)
        << "a source is asked for once";
    target.ChangeAll(2);
    const Restoration restoration = target.Restore(wanted);
    EXPECT_EQ(target.Take().settings, wanted.settings);
    EXPECT_EQ(restoration.Count(Outcome::Changed) + restoration.Count(Outcome::AlreadySo),
              static_cast<int>(wanted.settings.size()));
    const int sent = target.channel->sent;
    EXPECT_EQ(target.Restore(wanted).Count(Outcome::Changed), 0);
    EXPECT_EQ(target.channel->sent, sent) << "what is so is not sent again";
    // A restoration that ends anywhere can be undone, with all values of sources and modes, and
    // redone.
    auto& memories = target.channel->memories;
    memories = Memories();
    for (const int cut : {1000, 1, 3, 6, 14}) {
      SCOPED_TRACE(cut);
      target.ChangeAll(++seed);
      const Snapshot before = target.Take();
      const auto first = memories;
      const int source = target.channel->projector.Value(SettingId::InputSource);
      Snapshot undo, redo;
      const int limit = target.channel->sent + cut;
      target.Restore(wanted, &undo, [&] { return target.channel->sent < limit; });
      if (seed % 2 == 0) {  // go on with it
        Snapshot later;
        target.Restore(wanted, &later, [&] { return target.channel->sent < limit + cut; });
        undo = UndoOfBoth(undo, later, target.settings);
      }
      // The user may choose another source meanwhile.
      if (cut == 1000) target.channel->projector.SetValue(SettingId::InputSource, source);
      target.channel->Execute({.operation = PjtOperation::GetInputSource});
      const Snapshot after = target.Take();
      const auto changed = memories;
      target.Restore(ReadSnapshot(WriteSnapshot(undo)).snapshot, &redo);
      EXPECT_EQ(target.Take().settings, before.settings);
      EXPECT_TRUE(std::ranges::equal(memories, first, &Memory::IsLike));
      target.Restore(redo);
      EXPECT_EQ(target.Take().settings, after.settings);
      EXPECT_TRUE(std::ranges::equal(memories, changed, &Memory::IsLike));
    }
  }
}

/// Serves a projector. Closes the connection if an answer gets lost.
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

/// Compares the outcomes of a restoration with the projector, which had the values `before` at
/// first.
void ExpectTruth(ConnectedProjector& target, const Restoration& restoration,
                 const Restoration& before) {
  target.channel->CarryOutLate();
  target.channel->trouble = {};
  for (const RestoredSetting& restored : restoration.Settings()) {
    SCOPED_TRACE(restored.saved.key);
    const auto now =
        target.settings.Read(target.connection, *restored.setting, restored.saved.source);
    const auto number = static_cast<std::size_t>(&restored - restoration.Settings().data());
    const Outcome outcome = restored.outcome;
    if (outcome == Outcome::Changed || outcome == Outcome::AlreadySo) {
      EXPECT_EQ(now, restored.saved.value);
    } else if (outcome == Outcome::NotReached || outcome == Outcome::Differs) {
      EXPECT_EQ(now, restored.before ? restored.before : before.Settings()[number].before)
          << "nothing was sent";
    } else {
      EXPECT_TRUE(!restored.now || now == restored.now);
    }
  }
}

void ExpectTruthFromAfar(const FleetProfile& profile, const Disturbed::Trouble& trouble) {
  SCOPED_TRACE(profile.name);
  ConnectedProjector target(profile);
  target.ChangeAll(1);
  const Snapshot wanted = target.Take();
  target.ChangeAll(2);
  Restoration before(wanted, target.settings, target.connection);
  before.Read();
  target.channel->count = 0;
  target.channel->trouble = trouble;
  auto peer = std::make_unique<Peer>(Transport::Tcp, std::vector{Serves(*target.channel)});
  ProjectorAccess far(profile, std::make_shared<TcpChannel>("127.0.0.1", peer->port));
  const Restoration restoration = Restore(far.Settings(), far.Connection(), wanted, nullptr,
                                          [&far] { return !far.Channel().IsGone(); });
  peer.reset();
  ExpectTruth(target, restoration, before);
  target.Restore(wanted);
  EXPECT_EQ(target.Take().settings, wanted.settings);
}

// Whatever goes wrong, the outcomes must be true, and repeating the restoration must complete it.
TEST(Restoration, OutcomesAreTrueWhenCommandsAreRefusedLostOrLate) {
  std::vector<std::pair<const FleetProfile*, Disturbed::Trouble>> cases;
  for (const FleetProfile& profile : Profiles()) cases.push_back({&profile, {1, 1}});
  cases.push_back({&Profile("Projector 2-6"), {30, 10}});
  for (const int dead : {40, 100, 130}) cases.push_back({&Profile("Projector 5-54"), {0, 0, dead}});
  for (const int by : {0, 2, 30}) {
    for (const char* name : {"Projector 2-6", "Projector 4-24", "Projector 5-30"}) {
      cases.push_back({&Profile(name), {.latePercent = 10, .lateBy = by}});
    }
  }
  std::atomic<std::size_t> next = 0;
  std::array<std::jthread, 16> workers;  // the threads mostly wait
  for (std::jthread& worker : workers) {
    worker = std::jthread([&] {
      for (std::size_t n = next++; n < cases.size(); n = next++) {
        ExpectTruthFromAfar(*cases[n].first, cases[n].second);
      }
    });
  }
}

// Changing a source or mode changes other settings. Its answer is lost, and the change is carried
// out at once, before or after it is read back, or after everything else; or the work ends after
// it. In each case the outcomes must be true, and undoing must restore everything.
TEST(Restoration, OutcomesAreTrueForSettingsThatAChangeAffects) {
  constexpr int kCutOff = -1;
  constexpr int kLateBy[] = {kCutOff, 0, 1, 9, 1 << 20};
  constexpr int kChanges[] = {1, 2, 5, 20};
  std::size_t turn = 0;
  std::set<Outcome> outcomes;
  for (const FleetProfile& profile : Profiles()) {
    ConnectedProjector target(profile);
    target.channel->memories = Memories();
    target.ChangeAll(1);
    const Snapshot wanted = target.Take();
    for (const int by : kLateBy) {
      const int change = kChanges[turn++ % std::size(kChanges)];
      SCOPED_TRACE(testing::Message() << profile.name << " change " << change << " by " << by);
      target.ChangeAll(2);
      const Snapshot atFirst = target.Take();
      const auto memories = target.channel->memories;
      Restoration before(wanted, target.settings, target.connection);
      before.Read();
      target.channel->sent = 0;
      if (by != kCutOff) target.channel->trouble = {.lateBy = by, .lateChange = change};
      Snapshot undo;
      const Restoration restoration = target.Restore(
          wanted, &undo, [&] { return by != kCutOff || target.channel->sent < change; });
      if (by == 0) {
        EXPECT_LE(restoration.Count(Outcome::Unconfirmed), 1) << "a step";
      }
      for (const auto& restored : restoration.Settings()) outcomes.insert(restored.outcome);
      ExpectTruth(target, restoration, before);
      target.Restore(undo);
      EXPECT_EQ(target.Take().settings, atFirst.settings);
      EXPECT_TRUE(std::ranges::equal(target.channel->memories, memories, &Memory::IsLike));
    }
  }
  using enum Outcome;
  EXPECT_THAT(outcomes, testing::IsSupersetOf({Changed, AlreadySo, Differs, Unconfirmed}));
}

TEST(Restoration, LeavesWhatIsBesideAnInterruptedStepUntouched) {
  ConnectedProjector target(Profile("Projector 5-30"));
  Snapshot wanted = target.Take();
  std::erase_if(wanted.settings, [](const SavedSetting& saved) {
    return !saved.key.starts_with("image.position-");
  });
  for (SavedSetting& saved : wanted.settings) saved.value += 20;
  const Restoration restoration =
      target.Restore(wanted, nullptr, [&target] { return target.channel->sent < 3; });
  ASSERT_EQ(restoration.Settings().size(), 2);
  EXPECT_EQ(restoration.Settings()[0].outcome, Outcome::Refused) << "after three steps";
  EXPECT_EQ(restoration.Settings()[1].outcome, Outcome::Differs) << "nothing was sent for it";
}

}  // namespace
