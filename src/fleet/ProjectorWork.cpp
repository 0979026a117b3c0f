#include "fleet/ProjectorWork.h"

#include <algorithm>
#include <array>
#include <utility>

#include "device/channels/PjLinkChannel.h"
#include "fleet/LearningChannel.h"
#include "fleet/StatusItems.h"

namespace AdvancedControl {

namespace {

/// The outcomes of a restoration in which something was not done, the most serious first.
struct Failure {
  Outcome outcome;
  const char* reason;
};
constexpr Failure kFailures[] = {
    {Outcome::Refused, "refused"},
    {Outcome::Busy, "the projector is busy or in standby"},
    {Outcome::NotOffered, "the projector does not have it"},
    {Outcome::NotAllowed, "the model does not allow this value"},
    {Outcome::NotSettable, "it cannot be set"},
    {Outcome::Unknown, "the model does not have it"},
};

SettingDifference::Kind KindOf(Outcome outcome) {
  using Kind = SettingDifference::Kind;
  switch (outcome) {
    case Outcome::Differs:
      return Kind::Differs;
    case Outcome::Unknown:
    case Outcome::NotOffered:
    case Outcome::NotSettable:
    case Outcome::NotAllowed:
      return Kind::DoesNotApply;
    default:
      return Kind::NotRead;
  }
}

std::shared_ptr<const std::vector<SettingDifference>> DifferencesIn(
    const Restoration& restoration) {
  std::vector<SettingDifference> differences;
  for (const RestoredSetting& restored : restoration.Settings()) {
    if (restored.outcome == Outcome::AlreadySo) continue;
    differences.push_back({restored.saved, KindOf(restored.outcome), restored.before});
  }
  return std::make_shared<const std::vector<SettingDifference>>(std::move(differences));
}

const Snapshot* SnapshotOf(const SnapshotsById& snapshots, const std::string& id) {
  const auto found = snapshots.find(id);
  return found == snapshots.end() ? nullptr : found->second.get();
}

}  // namespace

ProjectorWork::ProjectorWork(const FleetTarget& target,
                             const std::shared_ptr<ProjectorChannel>& channel,
                             const SettingTexts& texts, const std::function<bool()>& goesOn,
                             Observer observer)
    : id_(target.id),
      texts_(texts),
      goesOn_(goesOn),
      settings_(target.model ? *target.model : ModelData()),
      progress_{.goesOn = [this] { return goesOn_() && !IsGone(); }} {
  connection_.SetChannel(std::make_shared<LearningChannel>(channel, std::move(observer)));
  auto* const asked = dynamic_cast<PjLinkChannel*>(channel.get());
  if (asked == nullptr || settings_.Model().MySourceList.Size() > 0) return;
  ModelData model = settings_.Model();
  model.MySourceList = SourcesOf(asked->AskForInputs().first, InputCodes::AllNames);
  settings_ = ModelSettings(std::move(model));
}

WorkResult ProjectorWork::Do(const FleetWork& work, const KeepUndo& keepUndo) {
  keepUndo_ = keepUndo;
  return std::visit([this](const auto& one) { return Do(one); }, work);
}

WorkResult ProjectorWork::Do(const SwitchPower& power) {
  if (auto trouble = Switch(power.on)) return *trouble;
  LiveState state;
  const auto value = Read(connection_, ReadingOf(StatusItem::Power));
  if (!value) return IsGone() ? Unanswered() : WorkResult{.outcome = WorkOutcome::Pending};
  TakeStatus(state, StatusItem::Power, *value, nullptr);
  const bool isSo = (state.power == PowerState::On) == power.on;
  return {.outcome = isSo ? WorkOutcome::Done : WorkOutcome::Pending};
}

WorkResult ProjectorWork::Do(const SetSetting& set) {
  const ModelSetting* const setting = settings_.Find(set.key);
  if (setting == nullptr) return Refused("the model has no such setting");
  if (setting->kind == ModelSetting::Kind::Action) return Run(*setting, set.text);
  if (!setting->changeable) return Refused("it cannot be set");
  const auto typed = texts_.Parse(*setting, set.text);
  if (!typed) return Refused("'" + set.text + "' is not one of: " + texts_.Values(*setting));
  const auto source = settings_.PresentSource(connection_, *setting);
  const auto present =
      typed->relative ? settings_.Read(connection_, *setting, source) : std::nullopt;
  if (IsGone()) return Unanswered();
  const auto value = Resolve(*setting, *typed, present);
  if (!value) return Refused("'" + set.text + "' leads to no value that the setting allows");
  if (setting->IsPower()) return SetPower(*setting, *value);
  Snapshot snapshot = EmptySnapshot(id_, settings_.Model());
  snapshot.settings.push_back({set.key, *value, texts_.Value(*setting, *value), source});
  return Apply(snapshot);
}

WorkResult ProjectorWork::Do(const TakeSnapshots&) {
  std::vector<std::string> unread;
  Snapshot taken = TakeSnapshot(id_, settings_, connection_, texts_, progress_, &unread);
  if (IsGone()) return Unanswered();
  if (!goesOn_()) return {.outcome = WorkOutcome::Stopped};
  if (taken.settings.empty() && !unread.empty()) {
    return Refused("the projector reports none of its settings now");
  }
  return {.outcome = WorkOutcome::Done,
          .snapshot = std::make_shared<const Snapshot>(std::move(taken)),
          .unread = static_cast<int>(unread.size())};
}

WorkResult ProjectorWork::Do(const ApplySnapshots& apply) {
  const Snapshot* const snapshot = SnapshotOf(apply.snapshots, id_);
  return snapshot ? Apply(*snapshot) : Refused("there is no snapshot for it");
}

WorkResult ProjectorWork::Do(const CompareSnapshots& compare) {
  const Snapshot* const snapshot = SnapshotOf(compare.snapshots, id_);
  if (snapshot == nullptr) return Refused("there is no snapshot for it");
  Restoration restoration(*snapshot, settings_, connection_);
  restoration.Read(progress_);
  if (IsGone()) return Unanswered();
  if (!goesOn_()) return {.outcome = WorkOutcome::Stopped};
  // A projector that reports nothing now, for example in standby, is not known to have the right
  // values.
  const int differing = restoration.Count(Outcome::Differs);
  const bool isKnown = differing + restoration.Count(Outcome::AlreadySo) > 0;
  return {.outcome = WorkOutcome::Done,
          .differing = isKnown ? std::optional(differing) : std::nullopt,
          .differences = DifferencesIn(restoration)};
}

WorkResult ProjectorWork::Apply(const Snapshot& snapshot) {
  Restoration restoration(snapshot, settings_, connection_);
  restoration.Read(progress_);
  std::shared_ptr<const Snapshot> undo;
  const auto keep = [&] {
    Snapshot grown = restoration.Undo(id_, texts_);
    if (grown.settings.empty() && grown.beforehand.empty()) return true;
    undo = std::make_shared<const Snapshot>(std::move(grown));
    keepUndo_(undo);
    return true;
  };
  if (progress_.goesOn()) restoration.Send(texts_, progress_, keep);
  WorkResult result = OutcomeOf(restoration);
  result.undo = std::move(undo);
  return result;
}

WorkResult ProjectorWork::OutcomeOf(const Restoration& restoration) const {
  if (IsGone()) return Unanswered();
  if (restoration.Count(Outcome::Unconfirmed) > 0) {
    return {.outcome = WorkOutcome::NoAnswer, .reason = "not confirmed, it may have changed"};
  }
  const int undone = restoration.Count(Outcome::NotReached) + restoration.Count(Outcome::Differs);
  if (undone > 0 && !goesOn_()) return {.outcome = WorkOutcome::Stopped};
  for (const auto& [outcome, reason] : kFailures) {
    for (const auto* const all : {&restoration.Beforehand(), &restoration.Settings()}) {
      const auto failed = std::ranges::find(*all, outcome, &RestoredSetting::outcome);
      if (failed == all->end()) continue;
      WorkResult result = Refused(failed->saved.key + ": " + reason);
      if (failed->setting != nullptr)
        result.setting = texts_.Name(settings_, *failed->setting, failed->saved.source);
      return result;
    }
  }
  if (restoration.Count(Outcome::Pending) > 0) return {.outcome = WorkOutcome::Pending};
  if (undone > 0) return Refused("not all of it could be sent");
  return {.outcome = WorkOutcome::Done};
}

/// The only state that is a switch. Snapshots do not contain it.
WorkResult ProjectorWork::SetPower(const ModelSetting& setting, int value) {
  if (auto trouble = Switch(value != 0)) return *trouble;
  const auto now = settings_.Read(connection_, setting);
  if (IsGone()) return Unanswered();
  return {.outcome = now == value ? WorkOutcome::Done : WorkOutcome::Pending};
}

/// Nothing if the projector accepts it. A dialog ignores the result of these commands.
std::optional<WorkResult> ProjectorWork::Switch(bool on) {
  const CPjtInterface::Tally before = connection_.Sent();
  const auto operation = on ? PjtOperation::SetPowerOn : PjtOperation::SetPowerOff;
  const PjtReply reply = connection_.Execute({operation});
  if (auto trouble = Trouble(before)) return trouble;
  if (!IsSuccess(operation, reply.result)) return Refused("refused");
  return std::nullopt;
}

/// Does what a button does, with the entry of the list beside it, if there is one.
WorkResult ProjectorWork::Run(const ModelSetting& action, const std::string& entry) {
  int position = 0;
  if (!action.entries.empty()) {
    const auto typed = texts_.Parse(action, entry);
    position = typed ? PositionOf(action.entries, typed->amount) : -1;
    if (position < 0) return Refused("'" + entry + "' is no entry of its list");
  }
  const CPjtInterface::Tally before = connection_.Sent();
  const Call& call = std::get<ActionRow>(*action.row).call;
  const bool accepted = Perform(connection_, call, position, settings_.Model().ModelCode).accepted;
  if (auto trouble = Trouble(before)) return *trouble;
  return accepted ? WorkResult{.outcome = WorkOutcome::Done} : Refused("refused");
}

std::optional<WorkResult> ProjectorWork::Trouble(const CPjtInterface::Tally& before) const {
  const CPjtInterface::Tally now = connection_.Sent();
  if (now.unanswered > before.unanswered) return Unanswered();
  if (now.notOffered > before.notOffered) return Refused("the projector does not have it");
  if (now.busy > before.busy) return Refused("the projector is busy or in standby");
  if (now.pending > before.pending) return WorkResult{.outcome = WorkOutcome::Pending};
  return std::nullopt;
}

WorkResult ProjectorWork::Refused(std::string reason) const {
  return {.outcome = WorkOutcome::Refused, .reason = std::move(reason)};
}

WorkResult ProjectorWork::Unanswered() const {
  return {.outcome = WorkOutcome::NoAnswer,
          .reason = std::string(ConnectionStateText(connection_.Connection()))};
}

}  // namespace AdvancedControl
