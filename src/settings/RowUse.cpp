#include "settings/RowUse.h"

#include "device/CommandCode.h"

inline namespace AdvancedControl {

namespace {

constexpr Call kInput = Named(PjtOperation::GetInputSource);
constexpr Call kCurrentQuestions[] = {kInput};
constexpr Call kPlayingQuestions[] = {Get(CommandCode::RunningState), kInput};

// These play the standby source while they do not run.
constexpr ModelCodes kCodesWithStandbySource{49, 50, 51, 52, 53, 54};
constexpr int kStandbySource = 15;
// Running states in which they do.
constexpr int kStandby = 0;
constexpr int kCoolingDown = 2;
// What a projector reports while it plays nothing.
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

bool Send(CPjtInterface& projector, const ListRow& row, const ModelData& model, int source,
          int value) {
  const int position = PositionOf(row.entries.Of(model), value);
  if (!row.send || position < 0) return false;
  if (value == row.rules.placeholder.Of(model.ModelCode)) return false;
  const int sent = row.rules.sendsPosition ? position : value;
  return Perform(projector, *row.Sending(source), sent, model.ModelCode).accepted;
}

bool Send(CPjtInterface& projector, const ValueRow& row, const ModelData& model, int source,
          int value) {
  return Perform(projector, row.Setting(source), value, model.ModelCode).accepted;
}

bool Send(CPjtInterface& projector, const CheckRow& row, const ModelData& model, int, int value) {
  if (value != 0 && value != 1) return false;
  return Perform(projector, row.send, value, model.ModelCode).accepted;
}

bool Send(CPjtInterface& projector, const StateRow& row, const ModelData&, int, int value) {
  const auto& call = value != 0 ? row.turnOn : row.turnOff;
  return call && Perform(projector, *call).accepted;
}

bool Send(CPjtInterface&, const auto&, const ModelData&, int, int) { return false; }

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

bool SendRow(CPjtInterface& projector, const PageRow& row, const ModelData& model, int value,
             std::optional<int> source) {
  if (!source) source = AskSource(projector, SourceOf(row), model.ModelCode);
  if (!source) return false;
  return std::visit([&](const auto& kind) { return Send(projector, kind, model, *source, value); },
                    row);
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
      // A row that tells refusals must not be told at its own end.
      if (!value || (row.error != 0 && atEnd(*value - row.bias))) return {};
      return answer(Perform(projector, step, *value));
    }
    case OperationFamily::SourceStepper:
      return answer(Perform(projector, step));
    case OperationFamily::ChannelStepper: {
      if (atEnd(known)) return {};
      const Answer stepped = Perform(projector, step, known);
      if (!stepped.accepted || stepped.value == known) return {};
      return {.value = stepped.value + row.bias};
    }
    default:
      break;
  }
  // A field has no range of its own.
  if ((row.bounds || row.ids.slider != 0) && atEnd(known)) return {};
  if (!Perform(projector, step).accepted) return {.refused = true};
  Call reading = row.Reading(source);
  reading.anyResult = step.anyResult;  // the read back is as strict as the step
  return {.value = Read(projector, reading)};
}

Stepped Step(CPjtInterface& projector, const ValueRow& row, const ModelData& model, bool upwards) {
  const auto source = AskSource(projector, row.of, model.ModelCode);
  if (!source) return {};
  const auto value = Read(projector, row.Reading(*source));
  if (!value) return {};
  return Step(projector, row, upwards, *source, StepBounds(row, model, SliderRange(row, model)),
              *value - row.bias);
}

}  // namespace AdvancedControl
