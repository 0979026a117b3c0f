// What a restoration says about each setting, and what it keeps for undoing it.

#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "tests/snapshots/DisturbedProjector.h"

namespace {

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
  std::vector<Outcome> outcomes(settings.size());
  std::ranges::transform(settings, outcomes.begin(), &RestoredSetting::outcome);
  return outcomes;
}

using enum Outcome;
using Outcomes = std::vector<Outcome>;

constexpr PjtReply kRefused{.result = 0};
constexpr PjtReply kPending{.result = 1, .pending = true};
constexpr PjtReply kSilent{.answered = false};

TEST(Restoration, SaysWhyAChangeHasNotTakenEffect) {
  const Snapshot wanted = Wanted(
      {{"picture.gamma", 16, ""}, {"picture.tint", 131, ""}, {"picture.active-iris", 16, ""}});
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
  const Snapshot wanted = Wanted({{"picture.contrast", 130, ""}, {"picture.tint", 131, ""}});
  const struct {
    PjtReply reply;
    bool stops;
    Outcomes outcomes;
    std::size_t unread;
    int steps;
  } cases[] = {{kRefused, false, {Refused, Changed}, 1, 4},
               {{.result = 0, .busy = true}, false, {Busy, Changed}, 1, 4},
               {{.result = 0, .offered = false}, false, {NotOffered, Changed}, 0, 4},
               {kSilent, false, {NotReached, NotReached}, 0, 2},
               {kRefused, true, {NotReached, NotReached}, 0, 1}};
  for (const auto& one : cases) {
    ScriptedProjector target(CommandCode::Contrast, true, one.reply);
    int steps = 0;
    const Progress progress{.goesOn = [&] { return !one.stops || target.script->scripted == 0; },
                            .step = [&steps] { ++steps; }};
    Restoration restoration(wanted, target.settings, target.connection);
    restoration.Read(progress);
    restoration.Send(Texts(), progress);
    EXPECT_EQ(steps, one.steps);
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
  const Snapshot wanted = Wanted({{"picture.active-iris", 16, ""}, {"picture.contrast", 131, ""}});
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
    const Restoration restoration =
        target.Restore(Wanted({{"picture.contrast", 131, ""}}, one.beforehand), nullptr,
                       [&] { return target.channel->sent < one.changes; });
    EXPECT_EQ(OutcomesOf(restoration.Beforehand()), one.outcomes);
    EXPECT_EQ(OutcomesOf(restoration.Settings()), Outcomes{one.after});
  }
}

// The volumes of two sources are different settings.
TEST(Restoration, ASettingOfAnotherSourceIsNotAffected) {
  ConnectedProjector target(Profile("Projector 5-30"));
  target.channel->trouble = {.lateBy = 1 << 20, .lateChange = 1};
  const Snapshot wanted = Wanted({{"audio.volume", 5, "", 0}, {"audio.volume", 6, "", 4}});
  EXPECT_EQ(OutcomesOf(target.Restore(wanted).Settings()), (Outcomes{Unconfirmed, Changed}));
}

TEST(Restoration, UndoHoldsWhatHasChanged) {
  const SavedSetting input{"other.input-source", 4, ""}, gamma{"picture.gamma", 16, ""};
  const SavedSetting iris{"picture.active-iris", 16, ""};
  const SavedSetting tint{"picture.tint", 131, ""}, contrast{"picture.contrast", 130, ""};
  const struct {
    std::vector<SavedSetting> wanted;
    std::string settings, beforehand;
    int changes = 1000;
    std::vector<Memory> memories{};
    int again = 0;  // how many are sent twice
    int commands = 1000;
  } cases[] = {
      {{tint}, "picture.tint=128;", ""},
      // The other gamma has the wanted tint.
      {.wanted = {gamma, tint},
       .settings = "picture.gamma=32;picture.tint=128;",
       .beforehand = "",
       .memories = {{{SettingId::Gamma}, {SettingId::Tint}, {32}, {{{16}, {131}}, {{32}, {128}}}}}},
      {{gamma}, "picture.gamma=32;", ""},
      {{gamma, tint},
       "picture.gamma=32;picture.tint=128;",
       "picture.gamma=16;picture.tint=128;picture.gamma=32;"},
      {{gamma, tint, contrast},
       "picture.gamma=32;picture.tint=128;picture.contrast=128;",
       "picture.gamma=16;picture.tint=128;picture.gamma=32;",
       2},
      {{gamma, iris},
       "picture.gamma=32;picture.active-iris=0;",
       "picture.gamma=16;picture.active-iris=16;picture.active-iris=0;picture.gamma=32;"},
      // Each iris has a gamma.
      {.wanted = {gamma, iris},
       .settings = "picture.gamma=32;picture.active-iris=0;",
       .beforehand = "picture.active-iris=16;picture.gamma=16;picture.gamma=33;"
                     "picture.active-iris=0;picture.gamma=32;",
       .memories =
           {{{SettingId::ActiveIris}, {SettingId::Gamma}, {0}, {{{0}, {32}}, {{16}, {33}}}}},
       .again = 1},
      // The user stops when the gamma was seen to be another, before it is sent again.
      {.wanted = {gamma, iris},
       .settings = "picture.gamma=32;picture.active-iris=0;",
       .beforehand = "picture.gamma=33;picture.active-iris=16;picture.active-iris=0;"
                     "picture.gamma=32;",
       .changes = 3,
       .memories =
           {{{SettingId::ActiveIris}, {SettingId::Gamma}, {0}, {{{0}, {32}}, {{16}, {33}}}}},
       .commands = 6},
      {{input, gamma},
       "other.input-source=0;picture.gamma=32;",
       "other.input-source=4;picture.gamma=16;picture.gamma=32;other.input-source=0;"},
  };
  const auto list = [](const std::vector<SavedSetting>& settings) {
    std::string all;
    for (const auto& saved : settings) all += saved.key + '=' + std::to_string(saved.value) + ';';
    return all;
  };
  for (const auto& one : cases) {
    // The input cannot be read any more after the first change.
    ScriptedProjector target(CommandCode::InputSource, true, kRefused);
    target.script->isOn = [](const Disturbed& inner) { return inner.sent > 0; };
    for (const SettingId id : {SettingId::Tint, SettingId::Contrast})
      target.channel->projector.SetValue(id, 128);
    target.channel->projector.SetValue(SettingId::Gamma, 32);
    target.channel->projector.SetValue(SettingId::ActiveIris, 0);
    target.channel->memories = one.memories;
    const Snapshot wanted = Wanted(one.wanted);
    const Restoration restoration = target.Restore(wanted, nullptr, [&] {
      return target.channel->sent < one.changes && target.channel->count < one.commands;
    });
    const Snapshot undo = restoration.Undo("", Texts());
    EXPECT_EQ(list(undo.settings), one.settings);
    EXPECT_EQ(list(undo.beforehand), one.beforehand);
    EXPECT_EQ(target.channel->sent,
              one.again + std::ranges::count_if(restoration.Settings(), [](const auto& restored) {
                return restored.turn > 0;
              }));
    EXPECT_EQ(restoration.Count(Refused), one.commands == 1000 ? 0 : 1);
    const int reads = target.channel->count + target.script->scripted - target.channel->sent;
    EXPECT_EQ(target.channel->announced, reads) << "so that they are sent at once";
    Snapshot kept;
    const Restoration again = target.Restore(wanted, &kept);
    if (one.changes == 1000) {
      EXPECT_EQ(kept, Snapshot()) << "nothing was sent";
      EXPECT_EQ(list(again.Undo("", Texts()).settings), "") << "nothing differs";
    }
  }
}

TEST(Restoration, UndoLeavesOutWhatWasSoBeforeTheProjectorWasLost) {
  ScriptedProjector target(CommandCode::Contrast, true, kSilent);
  target.script->isOn = [](const Disturbed& inner) { return inner.sent > 0; };
  target.channel->projector.SetValue(SettingId::Contrast, 130);
  const Restoration restoration =
      target.Restore(Wanted({{"picture.contrast", 130, ""}}, {{"picture.tint", 131, ""}}));
  EXPECT_EQ(OutcomesOf(restoration.Beforehand()), Outcomes{Changed});
  EXPECT_EQ(OutcomesOf(restoration.Settings()), Outcomes{NotReached});
  EXPECT_TRUE(restoration.Undo("", Texts()).settings.empty());
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
