#include "settings/Call.h"

namespace AdvancedControl {

PjtCommand Call::Command(int value, int modelCode) const {
  const auto carried = [&](Argument argument) -> std::int16_t {
    switch (argument) {
      case Argument::Address:
        return address;
      case Argument::Value:
        return static_cast<std::int16_t>(value);
      case Argument::Flag:
        return static_cast<std::int16_t>(flag.Of(modelCode));
      case Argument::None:
        break;
    }
    return 0;
  };
  const OperationForm& form = FormOf(operation);
  return {operation, code, carried(form.first), carried(form.second)};
}

Answer Perform(CPjtInterface& projector, const Call& call, int value, int modelCode) {
  const PjtReply reply = projector.Execute(call.Command(value, modelCode));
  const OperationForm& form = FormOf(call.operation);
  const bool accepted =
      call.anyResult ? reply.result != 0 : IsSuccess(call.operation, reply.result);
  return {accepted || form.returns == Returns::Nothing,
          form.isGeneric ? int{static_cast<std::uint16_t>(reply.value)} : int{reply.value}};
}

std::optional<int> Read(CPjtInterface& projector, const Call& call) {
  const Answer answer = Perform(projector, call);
  return answer.accepted ? std::optional(answer.value) : std::nullopt;
}

}  // namespace AdvancedControl
