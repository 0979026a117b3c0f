// Takes snapshots of every projector of the profile file, changes the settings, and restores them.

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

/// Replies to the changes, or else the reads, of one code as scripted, and forwards everything
/// else.
struct Scripted : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    const bool isScripted =
        command.code == code && IsRead(command.operation) == ofReads && isOn(*inner);
    scripted += isScripted;
    isGone = isGone || (isScripted && !reply.answered);
    return isScripted || isGone ? reply : inner->Execute(command);
  }
  void Announce(std::span<const PjtCommand> reads) override { inner->Announce(reads); }

  std::shared_ptr<Disturbed> inner;
  std::uint16_t code = 0;
  bool ofReads = false;
  PjtReply reply;
  std::function<bool(const Disturbed&)> isOn = [](const Disturbed&) { return true; };
  bool isGone = false;
  int scripted = 0;
};

struct ScriptedProjector : ConnectedProjector {
  ScriptedProjector(std::uint16_t code, bool ofReads, const PjtReply& reply)
      : ConnectedProjector(Profile("Projector 5-30")) {
    script->inner = channel;
    script->code = code;
    script->ofReads = ofReads;
    script->reply = reply;
    connection.SetChannel(script);
  }

  std::shared_ptr<Scripted> script = std::make_shared<Scripted>();
};

std::vector<Outcome> OutcomesOf(const std::vector<RestoredSetting>& settings) {
  std::vector<Outcome> outcomes;
  for (const RestoredSetting& restored : settings) outcomes.push_back(restored.outcome);
  return outcomes;
}

using enum Outcome;
using Outcomes = std::vector<Outcome>;

constexpr PjtReply kRefused{.result = 0};
constexpr PjtReply kPending{.result = 1, .pending = true};
constexpr PjtReply kSilent{.answered = false};

TEST(Restoration, SaysWhyAChangeHasNotTakenEffect) {
  Snapshot wanted;
  wanted.settings = {
      {"picture.gamma", 16, ""}, {"picture.tint", 131, ""}, {"picture.active-iris", 16, ""}};
  const std::pair<PjtReply, Outcomes> kCases[] = {
      {{.result = 1}, {Changed, Changed, Refused}},
      {kPending, {Unconfirmed, Unconfirmed, Pending}},
      {{.result = 0, .busy = true}, {Changed, Changed, Busy}},
      {kSilent, {Unconfirmed, Unconfirmed, Unconfirmed}},
      {{.answered = false, .unsent = true}, {Unconfirmed, Unconfirmed, NotReached}},
  };
  for (const auto& [reply, outcomes] : kCases) {
    ScriptedProjector target(CommandCode::ActiveIris, false, reply);
    const Restoration restoration = target.Restore(wanted);
    EXPECT_EQ(OutcomesOf(restoration.Settings()), outcomes);
    for (const RestoredSetting& restored : restoration.Settings()) {
      EXPECT_TRUE(restored.outcome != Unconfirmed || !restored.now) << restored.saved.key;
    }
  }
}

TEST(Restoration, SaysWhyASettingCannotBeRead) {
  Snapshot wanted;
  wanted.settings = {{"picture.contrast", 130, ""}, {"picture.tint", 131, ""}};
  const struct {
    PjtReply reply;
    bool stops;
    Outcomes outcomes;
    std::size_t unread;
  } cases[] = {{kRefused, false, {Refused, Changed}, 1},
               {{.result = 0, .busy = true}, false, {Busy, Changed}, 1},
               {{.result = 0, .offered = false}, false, {NotOffered, Changed}, 0},
               {kSilent, false, {NotReached, NotReached}, 0},
               {kRefused, true, {NotReached, NotReached}, 0}};
  for (const auto& one : cases) {
    ScriptedProjector target(CommandCode::Contrast, true, one.reply);
    const Progress progress{.goesOn = [&] { return !one.stops || target.script->scripted == 0; }};
    int steps = 0;
    Restoration restoration(wanted, target.settings, target.connection);
    restoration.Read({.goesOn = progress.goesOn, .step = [&steps] { ++steps; }});
    EXPECT_EQ(steps, one.stops ? 1 : 2);
    restoration.Send(Texts(), progress);
    EXPECT_EQ(OutcomesOf(restoration.Settings()), one.outcomes);
    const Snapshot undo = restoration.Undo("", Texts());
    EXPECT_EQ(undo.settings.size(), std::ranges::count(one.outcomes, Changed));
    if (one.stops || !one.reply.answered) continue;
    std::vector<std::string> unread;
    const Snapshot taken =
        TakeSnapshot("", target.settings, target.connection, Texts(), {}, &unread);
    EXPECT_EQ(unread, std::vector<std::string>(one.unread, "picture.contrast"));
    EXPECT_EQ(std::ranges::count(taken.settings, "picture.contrast", &SavedSetting::key), 0);
  }
}

// Contrast can be read only with another iris, and is read again after that was set.
TEST(Restoration, ReadsAgainWhatAModeHasMadeReadable) {
  Snapshot wanted;
  wanted.settings = {{"picture.active-iris", 16, ""}, {"picture.contrast", 131, ""}};
  ScriptedProjector target(CommandCode::Contrast, true, kRefused);
  target.script->isOn = [](const Disturbed& inner) {
    return inner.projector.Value(SettingId::ActiveIris) == 0;
  };
  target.channel->projector.SetValue(SettingId::ActiveIris, 0);
  target.channel->projector.SetValue(SettingId::Contrast, 131);
  EXPECT_EQ(OutcomesOf(target.Restore(wanted).Settings()), (Outcomes{Changed, AlreadySo}));
}

TEST(Restoration, SendsBeforehandInOrderUpToAModeThatCannotBeSet) {
  const SavedSetting iris{"picture.active-iris", 16, ""}, tint{"picture.tint", 140, ""};
  const SavedSetting unknown{"no.such", 1, ""}, wrong{"picture.active-iris", 99, ""};
  const auto volume = [](int value, int source) {
    return SavedSetting{"audio.volume", value, "", source};
  };
  const struct {
    std::vector<SavedSetting> beforehand;
    std::optional<PjtReply> reply;  // to setting the iris
    Outcomes outcomes;
    Outcome after;
    int changes = 1000;  // until the user stops
  } cases[] = {
      {{iris, tint}, {}, {Changed, Changed}, Changed},
      {{{"picture.active-iris", 0, ""}, tint}, {}, {AlreadySo, Changed}, Changed},
      {{unknown, tint}, {}, {Unknown, NotReached}, Changed},
      {{wrong, tint}, {}, {NotAllowed, NotReached}, Changed},
      {{{"picture.tint", 999, ""}, tint}, {}, {NotAllowed, Changed}, Changed},
      {{iris, tint}, kRefused, {Refused, NotReached}, Changed},
      {{iris, tint}, kPending, {Pending, NotReached}, Unconfirmed},
      {{iris, tint}, {}, {Changed, NotReached}, Unconfirmed, 1},
      {{volume(5, 0), volume(6, 4), volume(7, 0)}, {}, {Changed, Changed, Changed}, Changed},
  };
  for (const auto& one : cases) {
    ScriptedProjector target(CommandCode::ActiveIris, false, one.reply.value_or(PjtReply()));
    target.script->isOn = [&one](const Disturbed&) { return one.reply.has_value(); };
    Snapshot wanted;
    wanted.beforehand = one.beforehand;
    wanted.settings = {{"picture.contrast", 131, ""}};
    const Restoration restoration =
        target.Restore(wanted, nullptr, [&] { return target.channel->sent < one.changes; });
    EXPECT_EQ(OutcomesOf(restoration.Beforehand()), one.outcomes);
    EXPECT_EQ(OutcomesOf(restoration.Settings()), Outcomes{one.after});
  }
}

// The volumes of two sources are different settings.
TEST(Restoration, ASettingOfAnotherSourceIsNotAffected) {
  ConnectedProjector target(Profile("Projector 5-30"));
  target.channel->trouble = {.lateBy = 1 << 20, .lateChange = 1};
  Snapshot wanted;
  wanted.settings = {{"audio.volume", 5, "", 0}, {"audio.volume", 6, "", 4}};
  EXPECT_EQ(OutcomesOf(target.Restore(wanted).Settings()), (Outcomes{Unconfirmed, Changed}));
}

TEST(Restoration, UndoHoldsWhatHasChanged) {
  const SavedSetting input{"other.input-source", 4, ""}, gamma{"picture.gamma", 16, ""};
  const SavedSetting tint{"picture.tint", 131, ""}, contrast{"picture.contrast", 130, ""};
  const struct {
    std::vector<SavedSetting> wanted;
    std::string settings, beforehand;
    int changes = 1000;
  } cases[] = {
      {{tint}, "picture.tint=128;", ""},
      {{gamma}, "picture.gamma=32;", ""},
      {{gamma, tint},
       "picture.gamma=32;picture.tint=128;",
       "picture.gamma=16;picture.tint=128;picture.gamma=32;"},
      {{gamma, tint, contrast},
       "picture.gamma=32;picture.tint=128;picture.contrast=128;",
       "picture.gamma=16;picture.tint=128;picture.gamma=32;",
       2},
      {{input, gamma},
       "other.input-source=0;picture.gamma=32;",
       "other.input-source=4;picture.gamma=16;picture.gamma=32;other.input-source=0;"},
  };
  const auto list = [](const std::vector<SavedSetting>& settings) {
    std::string all;
    for (const SavedSetting& saved : settings)
      all += saved.key + '=' + std::to_string(saved.value) + ';';
    return all;
  };
  for (const auto& one : cases) {
    // The input cannot be read any more after the first change.
    ScriptedProjector target(CommandCode::InputSource, true, kRefused);
    target.script->isOn = [](const Disturbed& inner) { return inner.sent > 0; };
    for (const SettingId id : {SettingId::Tint, SettingId::Contrast})
      target.channel->projector.SetValue(id, 128);
    target.channel->projector.SetValue(SettingId::Gamma, 32);
    Snapshot wanted;
    wanted.settings = one.wanted;
    target.channel->count = 0;
    const Restoration restoration =
        target.Restore(wanted, nullptr, [&] { return target.channel->sent < one.changes; });
    const Snapshot undo = restoration.Undo("", Texts());
    EXPECT_EQ(list(undo.settings), one.settings);
    EXPECT_EQ(list(undo.beforehand), one.beforehand);
    const int reads = target.channel->count + target.script->scripted - target.channel->sent;
    EXPECT_EQ(target.channel->announced, reads) << "so that they are sent at once";
    if (one.changes == 1000) {
      EXPECT_EQ(list(target.Restore(wanted).Undo("", Texts()).settings), "") << "nothing differs";
    }
  }
}

TEST(Restoration, SkipsWhatTheModelLacksAndStopsOnRequest) {
  ConnectedProjector target(Profile("Projector 5-30"));
  Snapshot snapshot = target.Take();
  snapshot.settings = {{"picture.brightness", 1000, ""}, {"picture.gamma", 99, ""},
                       {"status.power", 0, ""},          {"no.such", 1, ""},
                       {"audio.volume", 3, "", 6},       {"picture.tint", 131, "", 0},
                       {"picture.contrast", 130, ""},    {"picture.tint", 131, ""}};
  Restoration restoration(snapshot, target.settings, target.connection);
  restoration.Read();
  restoration.Send(Texts(), {.goesOn = [&target] { return target.channel->sent == 0; }});
  EXPECT_EQ(OutcomesOf(restoration.Settings()),
            (Outcomes{NotAllowed, NotAllowed, NotSettable, Unknown, NotAllowed, NotAllowed, Changed,
                      Differs}));
}

}  // namespace
