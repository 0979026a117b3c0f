#include "settings/Call.h"

inline namespace AdvancedControl {

namespace {

bool HasNoResult(PjtOperation operation) {
  switch (FamilyOf(operation)) {
    case OperationFamily::SilentAction:
    case OperationFamily::SilentSetter:
    case OperationFamily::SilentFlaggedSetter:
      return true;
    default:
      return false;
  }
}

}  // namespace

PjtCommand Call::Command(int value, int modelCode) const {
  const auto word = static_cast<std::int16_t>(value);
  switch (FamilyOf(operation)) {
    case OperationFamily::Generic:
      return {operation, code, operation == PjtOperation::Set ? word : std::int16_t{0}};
    case OperationFamily::IntSetter:
    case OperationFamily::ShortSetter:
    case OperationFamily::SilentSetter:
    case OperationFamily::PointerStepper:
      return {operation, 0, word};
    case OperationFamily::FlaggedSetter:
    case OperationFamily::SilentFlaggedSetter:
      return {operation, 0, word, static_cast<std::int16_t>(flag.Of(modelCode))};
    case OperationFamily::SourceSetter:
    case OperationFamily::ShortSourceSetter:
    case OperationFamily::ChannelStepper:
      return {operation, 0, address, word};
    default:
      return {operation, 0, address};
  }
}

Answer Perform(CPjtInterface& projector, const Call& call, int value, int modelCode) {
  const PjtReply reply = projector.Execute(call.Command(value, modelCode));
  const bool generic = FamilyOf(call.operation) == OperationFamily::Generic;
  const bool accepted =
      call.anyResult ? reply.result != 0 : IsSuccess(call.operation, reply.result);
  return {accepted || HasNoResult(call.operation),
          generic ? int{static_cast<std::uint16_t>(reply.value)} : int{reply.value}};
}

std::optional<int> Read(CPjtInterface& projector, const Call& call) {
  const Answer answer = Perform(projector, call);
  return answer.accepted ? std::optional(answer.value) : std::nullopt;
}

}  // namespace AdvancedControl
