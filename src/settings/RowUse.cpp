#include "settings/RowUse.h"

#include <cstdlib>
#include <utility>

#include "device/CommandCode.h"

namespace AdvancedControl {

namespace {

constexpr Call kInput = Named(PjtOperation::GetInputSource);
constexpr Call kCurrentQuestions[] = {kInput};
constexpr Call kPlayingQuestions[] = {Get(CommandCode::RunningState), kInput};

// Models that play a standby source while they are not running.
constexpr ModelCodes kCodesWithStandbySource{49, 50, 51, 52, 53, 54};
constexpr int kStandbySource = 15;
// The running states in which these models play the standby source.
constexpr int kStandby = 0;
constexpr int kCoolingDown = 2;
// The source that a projector reports while it plays nothing.
constexpr int kNoSource = -1;

std::optional<int> AskPlayingSource(CPjtInterface& projector, int modelCode) {
  const auto state = Read(projector, kPlayingQuestions[0]);
  const auto input = Read(projector, kInput);
  if (const auto standby = StandbySource(OfSource::Playing, modelCode)) {
    if (!state) return {};
    if (state == kStandby || state == kCoolingDown) return standby;
  }
  return input == kNoSource ? std::nullopt : input;
}

/// Sends a value to a row of any kind.
class Sender {
 public:
  Sender(CPjtInterface& projector, const ModelData& model, int source, int value,
         const Sending& how)
      : projector_(projector), model_(model), source_(source), value_(value), how_(how) {}

  Sent operator()(const ListRow& row) const {
    const int position =
        how_.position ? *how_.position : PositionOf(row.entries.Of(model_), value_);
    const bool isSendable = position >= 0 && value_ != row.rules.placeholder.Of(model_.ModelCode);
    if (!row.send || !isSendable) return Sent::Nothing;
    if (row.rules.sendsText) projector_.SettingText = how_.text;
    return Do(*row.Sending(source_), row.rules.sendsPosition ? position : value_);
  }
  Sent operator()(const ValueRow& row) const {
    return row.stepsOnly ? StepToValue(row) : Do(row.Setting(source_), value_);
  }
  Sent operator()(const CheckRow& row) const {
    return value_ == 0 || value_ == 1 ? Do(row.send, value_) : Sent::Nothing;
  }
  Sent operator()(const StateRow& row) const {
    const auto& call = value_ != 0 ? row.turnOn : row.turnOff;
    return call ? Do(*call, 0) : Sent::Nothing;
  }
  Sent operator()(const auto&) const { return Sent::Nothing; }

 private:
  Sent Do(const Call& call, int value) const {
    const bool accepted = Perform(projector_, call, value, model_.ModelCode).accepted;
    return accepted ? Sent::Accepted : Sent::Refused;
  }

  // The projector may have made a step whose answer got lost, so the value has to be read.
  Sent StepToValue(const ValueRow& row) const {
    const auto read = [&] { return ReadRow(projector_, row, model_, source_); };
    const Range bounds = StepBounds(row, model_);
    const auto present = read();
    if (!present) return Sent::Refused;
    const auto step = [&](bool upwards, int now) {
      Stepped stepped = Step(projector_, row, upwards, source_, bounds, now - row.bias);
      if (!stepped.value) stepped.value = read();
      return stepped;
    };
    return StepTo(*present, value_, step, how_.goesOn);
  }

  CPjtInterface& projector_;
  const ModelData& model_;
  int source_;
  int value_;
  const Sending& how_;
};

}  // namespace

std::optional<int> AskSource(CPjtInterface& projector, OfSource of, int modelCode) {
  if (of == OfSource::None) return 0;
  return of == OfSource::Current ? Read(projector, kInput) : AskPlayingSource(projector, modelCode);
}

std::optional<int> StandbySource(OfSource of, int modelCode) {
  const bool has = of == OfSource::Playing && kCodesWithStandbySource.Contains(modelCode);
  return has ? std::optional(kStandbySource) : std::nullopt;
}

std::span<const Call> SourceQuestions(OfSource of) {
  if (of == OfSource::None) return {};
  if (of == OfSource::Current) return kCurrentQuestions;
  return kPlayingQuestions;
}

std::optional<int> ReadRow(CPjtInterface& projector, const PageRow& row, const ModelData& model,
                           std::optional<int> source) {
  const auto call = ReadingOf(row, model);
  const OfSource of = SourceOf(row);
  if (!call || of == OfSource::None) return call ? Read(projector, *call) : std::nullopt;
  if (!source) source = AskSource(projector, of, model.ModelCode);
  return source ? Read(projector, At(*call, *source)) : std::nullopt;
}

Sent SendRow(CPjtInterface& projector, const PageRow& row, const ModelData& model, int value,
             const Sending& how) {
  const auto source =
      how.source ? how.source : AskSource(projector, SourceOf(row), model.ModelCode);
  if (!source) return Sent::Nothing;
  return std::visit(Sender(projector, model, *source, value, how), row);
}

std::optional<int> SteppedSource(OfSource of, std::optional<int> asked) {
  return of == OfSource::Current ? asked.value_or(0) : asked;
}

Stepped Step(CPjtInterface& projector, const ValueRow& row, bool upwards, int source, Range bounds,
             int known) {
  const auto atEnd = [&](int shown) {
    return upwards ? shown >= bounds.maximum : shown <= bounds.minimum;
  };
  const auto answer = [](const Answer& stepped) -> Stepped {
    if (!stepped.accepted) return {.refused = true};
    return {.value = stepped.value};
  };
  const Call step = row.Stepping(upwards, source);
  switch (FamilyOf(step.operation)) {
    case OperationFamily::PointerStepper: {
      const auto value = Read(projector, row.Reading(source));
      // A step at the end of the range is not sent, because its refusal would show an error.
      if (!value) return {.unchanged = true};
      if (row.error != 0 && atEnd(*value - row.bias)) return {};
      return answer(Perform(projector, step, *value));
    }
    case OperationFamily::SourceStepper:
      return answer(Perform(projector, step));
    case OperationFamily::ChannelStepper: {
      if (atEnd(known)) return {};
      const Answer stepped = Perform(projector, step, known);
      if (!stepped.accepted || stepped.value == known) return {.unchanged = true};
      return {.value = stepped.value + row.bias};
    }
    default:
      break;
  }
  if (atEnd(known)) return {};
  if (!Perform(projector, step).accepted) return {.refused = true};
  Call reading = row.Reading(source);
  reading.anyResult = step.anyResult;  // the value is read back as strictly as it is stepped
  return {.value = Read(projector, reading)};
}

Sent StepTo(int present, int wanted, const Stepper& step, const std::function<bool()>& goesOn) {
  constexpr int kMostFailures = 3;
  if (std::abs(present - wanted) > kMostSteps) return Sent::Nothing;
  int failures = 0;
  for (int i = 0; i < kMostSteps && present != wanted && goesOn(); ++i) {
    const bool upwards = present < wanted;
    const Stepped stepped = step(upwards, present);
    if (!stepped.value) return Sent::Refused;
    const int now = std::exchange(present, *stepped.value);
    const bool isNearer =
        upwards ? present > now && present <= wanted : present < now && present >= wanted;
    if (isNearer) {
      failures = 0;
    } else if (!stepped.refused || ++failures == kMostFailures) {
      break;
    }
  }
  return present == wanted ? Sent::Accepted : Sent::Refused;
}

}  // namespace AdvancedControl
