// What a job makes of the replies of one projector.

#include <cstdlib>
#include <map>
#include <memory>

#include "device/CommandCode.h"
#include "device/channels/ForwardingChannel.h"
#include "fleet/ProjectorWork.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Record.h"
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

ApplySnapshots Saved(const std::string& key, int value) {
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
    kept.clear();
    return one.Do(work, [this](const auto& undo) { kept = undo->settings; });
  }

  std::vector<SavedSetting> kept;  ///< The last undo.
};

// A line of the record: a work, and behind a comma what upsets the projector.
TEST_F(ProjectorWorkTest, TellsWhatBecameOfIt) {
  using enum Upset;
  const std::map<std::string, Upset> upsets{
      {"refuses", Refuses}, {"lacks", Lacks},   {"busy", Busy},      {"pending", Pending},
      {"ignores", Ignores}, {"silent", Silent}, {"cancels", Cancels}};
  const std::map<std::string, Cause> commands{
      {"ExecAutoAdjust", {.at = Op::ExecAutoAdjust}},
      {"SetPowerOff", {.at = Op::SetPowerOff}},
      {"GetPower", {.at = Op::Get, .code = CommandCode::RunningState}},
      {"GetBrightness", {.at = Op::Get, .code = CommandCode::Brightness}},
      {"GetMirror", {.at = Op::GetMirror}},
      {"SecondGetMirror", {.at = Op::GetMirror, .passes = 1}},
      {"SetMirror", {.at = Op::SetMirror}},
      {"", {}}};
  ExpectAnswers(TEST_SOURCE_DIR "/fleet/Work.txt", [&](const std::string& line) {
    const auto comma = std::min(line.find(", "), line.size());
    std::istringstream words(line.substr(0, comma)), upset(line.substr(comma));
    std::string what, key, text, how, command;
    std::getline(words >> what >> key >> std::ws, text);
    upset >> how >> how >> command;
    Cause cause = commands.at(command);
    if (!how.empty()) cause.upset = upsets.at(how);
    const ApplySnapshots saved =
        key.empty() ? ApplySnapshots() : Saved(key, std::atoi(text.c_str()));
    const std::map<std::string, FleetWork> works{{"set", SetSetting{key, text}},
                                                 {"switch-off", SwitchPower{false}},
                                                 {"take", TakeSnapshots()},
                                                 {"compare", CompareSnapshots{saved.snapshots}},
                                                 {"apply", saved}};
    const WorkResult result = Do(works.at(what), std::make_shared<UpsetProjector>(cause));
    constexpr const char* kOutcomes[] = {"waiting", "working",   "done",   "pending",
                                         "refused", "no answer", "stopped"};
    std::ostringstream told;
    told << kOutcomes[static_cast<std::size_t>(result.outcome)];
    if (!result.reason.empty()) told << ": " << result.reason;
    EXPECT_EQ(result.undo ? result.undo->settings : std::vector<SavedSetting>(), kept);
    for (const SavedSetting& one : kept) told << "; undo: " << one.key << ' ' << one.value;
    constexpr const char* kKinds[] = {"differs", "does not apply", "not read"};
    if (result.differences) {
      for (const SettingDifference& one : *result.differences)
        told << "; " << one.saved.key << ' ' << kKinds[static_cast<std::size_t>(one.kind)];
    }
    return told.str();
  });
}

}  // namespace
