#include "simulator/SimulatedProjector.h"

#include <algorithm>
#include <utility>

#include "simulator/SimulatedLayout.h"

namespace AdvancedControl {

namespace {

constexpr int kShownBias = CommandCode::kZeroPoint;

/// The value that a command sets; its place depends on the operation's family.
int WrittenValue(const PjtCommand& command) {
  return FormOf(command.operation).second == Argument::Value ? command.second : command.first;
}

bool IsSource(int source) { return source >= 0 && source <= 255; }

}  // namespace

std::shared_ptr<const SimulatedLayout> SimulatedProjector::MakeLayout(SimulatedModel model) {
  return std::make_shared<const SimulatedLayout>(std::move(model));
}

SimulatedProjector::SimulatedProjector(SimulatedModel model)
    : SimulatedProjector(MakeLayout(std::move(model))) {}

SimulatedProjector::SimulatedProjector(std::shared_ptr<const SimulatedLayout> layout)
    : layout_(std::move(layout)), values_(layout_->slots) {}

SimulatedProjector::~SimulatedProjector() = default;

std::span<const SettingId> SimulatedProjector::Settings() const { return layout_->present; }

int SimulatedProjector::SourceOrCurrent(int source) const {
  if (source != kCurrentSource) return source;
  const SimulatedSlot* const input = layout_->Find(SettingId::InputSource);
  return input ? values_.Single(*input) : 0;
}

PjtReply SimulatedProjector::Execute(const PjtCommand& command) {
  const std::lock_guard lock(mutex_);
  UpdatePower();
  const std::optional<int> value =
      FormOf(command.operation).isGeneric ? ExecuteGeneric(command) : ExecuteNamed(command);
  if (!value) return {.result = RefusedResult(command.operation)};
  return {.result = AcceptedResult(command.operation), .value = static_cast<std::int16_t>(*value)};
}

std::optional<int> SimulatedProjector::ExecuteGeneric(const PjtCommand& command) {
  const SimulatedSlot* target = layout_->FindCode(command.code);
  if (!target) return std::nullopt;
  const int written = static_cast<std::uint16_t>(command.first);
  if (command.operation == PjtOperation::Set && !target->Allows(written)) {
    const auto other = std::ranges::find(
        layout_->slots, command.code,
        [](const SimulatedSlot& candidate) { return candidate.setting->alsoSetBy; });
    if (other != layout_->slots.end() && !other->values.empty()) target = &*other;
  }
  const SimulatedSlot& slot = *target;
  const int source = SourceOrCurrent(kCurrentSource);
  const int current = values_.At(slot, source);

  std::optional<int> wanted;
  switch (command.operation) {
    case PjtOperation::Get:
      return current;
    case PjtOperation::Set:
      wanted = written;
      break;
    case PjtOperation::Inc:
      wanted = slot.Next(current, +1);
      break;
    default:
      wanted = slot.Next(current, -1);
      break;
  }
  if (slot.setting->reported || !wanted || !slot.Allows(*wanted)) return std::nullopt;
  values_.Put(slot, *wanted, source);
  return wanted;
}

std::optional<int> SimulatedProjector::ExecuteNamed(const PjtCommand& command) {
  const auto done = [](bool isDone) { return isDone ? std::optional(0) : std::nullopt; };
  if (command.operation == PjtOperation::SetMyMemory) {
    return done(values_.UseMemory(command.first, layout_->slots));
  }
  const bool on = command.operation == PjtOperation::SetPowerOn;
  if (power_.TakesTime() && (on || command.operation == PjtOperation::SetPowerOff)) {
    const SimulatedSlot* const power = layout_->Find(SettingId::Power);
    return done(power && power_.Switch(on, values_.Single(*power)));
  }
  std::optional<int> result;
  for (const SimulatedRoute& route : layout_->routes[static_cast<std::size_t>(command.operation)]) {
    const int selector = route.binding.selector;
    if (selector != Binding::kAny && selector != command.first) continue;
    if (const auto value = ExecuteRoute(route, command)) result = value;
  }
  return result;
}

std::optional<int> SimulatedProjector::ExecuteRoute(const SimulatedRoute& route,
                                                    const PjtCommand& command) {
  const SimulatedSlot& slot = layout_->slots[route.slot];
  const Binding& binding = route.binding;
  const int source = command.first;
  if (slot.setting->perSource && !IsSource(source)) return std::nullopt;

  const int current = values_.At(slot, source);
  std::optional<int> wanted;
  switch (binding.verb) {
    case Verb::None:
      return std::nullopt;
    case Verb::Read:
      return current;
    case Verb::Write:
      wanted = slot.FromWritten(WrittenValue(command), binding.form);
      break;
    case Verb::StepUp:
      wanted = slot.Next(current, +1);
      break;
    case Verb::StepDown:
      wanted = slot.Next(current, -1);
      break;
    case Verb::Reset:
      wanted = slot.setting->reset.value_or(slot.standard);
      break;
    case Verb::TurnTo:
      wanted = binding.turnTo;
      break;
  }
  if (!wanted || !slot.Allows(*wanted)) return std::nullopt;
  values_.Put(slot, *wanted, source);
  return binding.form == ValueForm::Shown ? *wanted - kShownBias : *wanted;
}

void SimulatedProjector::SetPowerTimes(std::chrono::milliseconds warmUp,
                                       std::chrono::milliseconds coolDown) {
  const std::lock_guard lock(mutex_);
  power_.SetTimes(warmUp, coolDown);
}

void SimulatedProjector::UpdatePower() const {
  if (const auto* const power = layout_->Find(SettingId::Power)) {
    power_.Update(values_.Single(*power));
  }
}

std::optional<PowerState> SimulatedProjector::Power() const {
  const std::lock_guard lock(mutex_);
  const SimulatedSlot* const power = layout_->Find(SettingId::Power);
  if (!power || !power_.TakesTime()) return std::nullopt;
  UpdatePower();
  return power_.Power(values_.Single(*power));
}

bool SimulatedProjector::Has(SettingId id) const { return layout_->Find(id) != nullptr; }

const Setting* SimulatedProjector::Describe(SettingId id) const {
  const SimulatedSlot* const slot = layout_->Find(id);
  return slot ? slot->setting : nullptr;
}

SettingRange SimulatedProjector::RangeOf(SettingId id) const {
  const SimulatedSlot* const slot = layout_->Find(id);
  return slot ? slot->range : SettingRange{};
}

std::span<const int> SimulatedProjector::ValuesOf(SettingId id) const {
  const SimulatedSlot* const slot = layout_->Find(id);
  return slot ? std::span<const int>(slot->values) : std::span<const int>();
}

int SimulatedProjector::Value(SettingId id, int source) const {
  const std::lock_guard lock(mutex_);
  const SimulatedSlot* const slot = layout_->Find(id);
  if (!slot) return 0;
  UpdatePower();
  return values_.At(*slot, SourceOrCurrent(source));
}

void SimulatedProjector::SetValue(SettingId id, int value, int source) {
  const std::lock_guard lock(mutex_);
  const SimulatedSlot* const slot = layout_->Find(id);
  if (!slot) return;
  if (id == SettingId::Power) power_.Cancel();
  values_.Put(*slot, value, SourceOrCurrent(source));
}

std::optional<int> SimulatedProjector::CodeValue(std::uint16_t code) const {
  const std::lock_guard lock(mutex_);
  const SimulatedSlot* const slot = layout_->FindCode(code);
  if (!slot) return std::nullopt;
  UpdatePower();
  return values_.At(*slot, SourceOrCurrent(kCurrentSource));
}

void SimulatedProjector::SetCodeValue(std::uint16_t code, int value) {
  const std::lock_guard lock(mutex_);
  const SimulatedSlot* const slot = layout_->FindCode(code);
  if (!slot) return;
  if (slot->setting->id == SettingId::Power) power_.Cancel();
  values_.Put(*slot, value, SourceOrCurrent(kCurrentSource));
}

}  // namespace AdvancedControl
