// What a job makes of the replies of one projector.

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/channels/ForwardingChannel.h"
#include "fleet/ProjectorWork.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Texts.h"

namespace {

using Op = PjtOperation;

enum class Upset : char { Nothing, Refuses, Lacks, Busy, Pending, Ignores, Silent, Cancels };

/// What upsets a projector, and how.
struct Cause {
  Upset upset = Upset::Nothing;
  Op at = Op::SetPowerOn;  ///< Instead of this one, it is every read.
  std::uint16_t code = 0;
  int passes = 0;  ///< Of the command before the first that upsets.
};

/// A simulated projector that is upset by a command, and does not carry it out.
struct UpsetProjector final : ForwardingChannel, Cause {
  explicit UpsetProjector(const Cause& cause = {})
      : ForwardingChannel(
            std::make_shared<SimulatedProjector>(SimulatedModel{.pageSet = 1, .ranges = {}})),
        Cause(cause) {
    Inner().Execute({Op::SetPowerOn});
  }
  PjtReply Execute(const PjtCommand& command) override {
    const bool isMeant = at == Op::SetPowerOn ? IsRead(command.operation)
                                              : at == command.operation && code == command.code;
    if (upset == Upset::Nothing || !isMeant || passes-- > 0) return Inner().Execute(command);
    passes = 0;
    if (upset == Upset::Cancels) goesOn = false;
    if (upset == Upset::Cancels) return Inner().Execute(command);
    if (upset == Upset::Pending || upset == Upset::Ignores) {
      return {.result = AcceptedResult(command.operation), .pending = upset == Upset::Pending};
    }
    return {.result = RefusedResult(command.operation),
            .answered = upset != Upset::Silent,
            .offered = upset != Upset::Lacks,
            .busy = upset == Upset::Busy};
  }

  bool goesOn = true;
};

struct WorkCase {
  FleetWork work;
  const char* expected;  ///< The outcome's name and the reason.
  Cause cause{};
};

ApplySnapshots Saved(const char* key, int value) {
  Snapshot snapshot;
  snapshot.settings.push_back({key, value, {}, {}});
  return {{{"a", std::make_shared<const Snapshot>(std::move(snapshot))}}};
}

struct ProjectorWorkTest : testing::Test {
  WorkResult Do(const FleetWork& work, const std::shared_ptr<UpsetProjector>& projector) {
    const auto model = std::make_shared<ModelData>();
    model->DialogType = 1;
    model->ModelCode = 1;
    const std::function<bool()> goesOn = [&] { return projector->goesOn; };
    ProjectorWork one({"a", {}, model}, projector, Texts(), goesOn, [](auto&&...) {});
    return one.Do(work, [this](const Snapshot& undo) { kept = undo.settings; });
  }

  std::vector<SavedSetting> kept;  ///< The last undo.
};

TEST_F(ProjectorWorkTest, TellsWhatBecameOfIt) {
  constexpr auto kPower = CommandCode::RunningState;
  const SetSetting adjust{"auto.adjust", ""}, off{"other.power", "Standby"}, on{off.key, "On"};
  const SetSetting mirror{"main.mirror", "H Inverse"}, brighter{"main.brightness", "+2"};
  const auto saved = Saved("main.mirror", 2);
  using enum Upset;
  const WorkCase cases[] = {
      {SetSetting{"no.such", "1"}, "Refused: the model has no such setting"},
      {SetSetting{"status.lamp-time", "1"}, "Refused: it cannot be set"},
      {SetSetting{mirror.key, "9999"}, "Refused: '9999' leads to no value that the setting allows"},
      {adjust, "Done: "},
      {adjust, "Refused: refused", {Refuses, Op::ExecAutoAdjust}},
      {adjust, "NoAnswer: no connection", {Silent, Op::ExecAutoAdjust}},
      {SetSetting{"picture.my-memory", "9"}, "Refused: '9' is no entry of its list"},
      {SetSetting{"picture.my-memory", "x"}, "Refused: 'x' is no entry of its list"},
      {SetSetting{"picture.my-memory", "=0"}, "Done: "},
      {adjust, "Pending: ", {Pending, Op::ExecAutoAdjust}},
      {off, "Done: "},
      {on, "Done: "},
      {SetSetting{off.key, "x"}, "Refused: 'x' is not one of: Standby, On"},
      {off, "Refused: refused", {Refuses, Op::SetPowerOff}},
      {SwitchPower{false}, "Refused: refused", {Refuses, Op::SetPowerOff}},
      {off, "Refused: the projector does not have it", {Lacks, Op::SetPowerOff}},
      {off, "Refused: the projector is busy or in standby", {Busy, Op::SetPowerOff}},
      {off, "Pending: ", {Pending, Op::SetPowerOff}},
      {off, "NoAnswer: no connection", {Silent, Op::SetPowerOff}},
      {off, "NoAnswer: no connection", {Silent, Op::Get, kPower}},
      {off, "Pending: ", {Refuses, Op::Get, kPower}},
      {SwitchPower{false}, "Done: "},
      {SwitchPower{false}, "Pending: ", {Ignores, Op::SetPowerOff}},
      {SwitchPower{false}, "Pending: ", {Refuses, Op::Get, kPower}},
      {SwitchPower{false}, "NoAnswer: no connection", {Silent, Op::Get, kPower}},
      {brighter, "Done: "},
      {brighter, "NoAnswer: no connection", {Silent, Op::Get, CommandCode::Brightness}},
      {mirror, "Done: "},
      {mirror, "Refused: main.mirror: the projector does not have it", {Lacks, Op::GetMirror}},
      {mirror, "Refused: main.mirror: the projector is busy or in standby", {Busy, Op::SetMirror}},
      {mirror, "Pending: ", {Pending, Op::SetMirror}},
      {mirror, "NoAnswer: not confirmed, it may have changed", {Refuses, Op::GetMirror, 0, 1}},
      {mirror, "Stopped: ", {Cancels, Op::GetMirror}},
      {mirror, "Done: ", {Cancels, Op::SetMirror}},
      {TakeSnapshots{}, "Refused: the projector reports none of its settings now", {Refuses}},
      {TakeSnapshots{}, "Stopped: ", {Cancels, Op::GetMirror}},
      {TakeSnapshots{}, "Done: ", {Refuses, Op::GetMirror}},
      {CompareSnapshots{saved.snapshots}, "Stopped: ", {Cancels, Op::GetMirror}},
      {ApplySnapshots{}, "Refused: there is no snapshot for it"},
      {saved, "Done: "},
      {Saved("no.such", 1), "Refused: no.such: the model does not have it"},
      {Saved("main.mirror", 9), "Refused: main.mirror: the model does not allow this value"},
  };
  constexpr const char* kOutcomes[] = {"Waiting", "Working",  "Done",   "Pending",
                                       "Refused", "NoAnswer", "Stopped"};
  for (const WorkCase& one : cases) {
    const WorkResult result = Do(one.work, std::make_shared<UpsetProjector>(one.cause));
    EXPECT_EQ(kOutcomes[static_cast<std::size_t>(result.outcome)] + (": " + result.reason),
              one.expected)
        << &one - cases;
  }
  kept.clear();
  EXPECT_EQ(Do(saved, std::make_shared<UpsetProjector>()).undo->settings, kept);
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0].value, 0);
}

TEST_F(ProjectorWorkTest, TellsWhyASettingIsNotAsSaved) {
  using Kind = SettingDifference::Kind;
  const std::pair<ApplySnapshots, Kind> kinds[] = {{Saved("main.mirror", 2), Kind::DoesNotApply},
                                                   {Saved("no.such", 1), Kind::DoesNotApply},
                                                   {Saved("status.mute", 1), Kind::DoesNotApply},
                                                   {Saved("main.mirror", 9), Kind::DoesNotApply},
                                                   {Saved("main.brightness", 100), Kind::NotRead}};
  for (const auto& [saved, kind] : kinds) {
    const Cause cause{kind == Kind::NotRead ? Upset::Refuses : Upset::Lacks};
    const auto projector = std::make_shared<UpsetProjector>(cause);
    const auto found = Do(CompareSnapshots{saved.snapshots}, projector).differences;
    ASSERT_EQ(found->size(), 1U);
    EXPECT_EQ(found->front().kind, kind) << found->front().saved.key;
  }
}

}  // namespace
