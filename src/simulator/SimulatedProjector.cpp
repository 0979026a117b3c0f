#include "simulator/SimulatedProjector.h"

#include <algorithm>
#include <utility>

#include "simulator/SimulatedLayout.h"

namespace AdvancedControl {

namespace {

constexpr int kShownBias = CommandCode::kZeroPoint;
// Of the running state.
constexpr int kStandby = 0;
constexpr int kOn = 1;
constexpr int kCoolingDown = 2;

/// The value that a command sets; its place depends on the operation's family.
int WrittenValue(const PjtCommand& command) {
  return FormOf(command.operation).second == Argument::Value ? command.second : command.first;
}

bool IsSource(int source) { return source >= 0 && source <= 255; }

}  // namespace

SimulatedProjector::SimulatedProjector(SimulatedModel model)
    : SimulatedProjector(MakeLayout(std::move(model))) {}

SimulatedProjector::SimulatedProjector(std::shared_ptr<const Layout> layout)
    : layout_(std::move(layout)) {
  for (const Slot& slot : layout_->slots) values_.push_back(slot.standard);
}

SimulatedProjector::~SimulatedProjector() = default;

std::span<const SettingId> SimulatedProjector::Settings() const { return layout_->present; }

const SimulatedProjector::Slot* SimulatedProjector::SlotOf(SettingId id) const {
  const int index = layout_->slotOfSetting[static_cast<std::size_t>(id)];
  return index < 0 ? nullptr : &layout_->slots[static_cast<std::size_t>(index)];
}

int SimulatedProjector::At(const Slot& slot, int source) const {
  if (slot.setting->perSource) {
    const auto found = bySource_.find({slot.index, source});
    if (found != bySource_.end()) return found->second;
  }
  return values_[slot.index];
}

void SimulatedProjector::Put(const Slot& slot, int value, int source) {
  if (slot.setting->perSource) {
    bySource_[{slot.index, source}] = value;
  } else {
    values_[slot.index] = value;
  }
}

int SimulatedProjector::SourceOrCurrent(int source) const {
  if (source != kCurrentSource) return source;
  const Slot* const input = SlotOf(SettingId::InputSource);
  return input ? values_[input->index] : 0;
}

PjtReply SimulatedProjector::Execute(const PjtCommand& command) {
  const std::lock_guard lock(mutex_);
  FinishSwitching();
  const std::optional<int> value =
      FormOf(command.operation).isGeneric ? ExecuteGeneric(command) : ExecuteNamed(command);
  if (!value) return {.result = RefusedResult(command.operation)};
  return {.result = AcceptedResult(command.operation), .value = static_cast<std::int16_t>(*value)};
}

std::optional<int> SimulatedProjector::ExecuteGeneric(const PjtCommand& command) {
  const auto found = layout_->slotOfCode.find(command.code);
  if (found == layout_->slotOfCode.end()) return std::nullopt;
  const Slot* target = &layout_->slots[found->second];
  const int written = static_cast<std::uint16_t>(command.first);
  if (command.operation == PjtOperation::Set && !target->Allows(written)) {
    const auto other = std::ranges::find(layout_->slots, command.code, [](const Slot& candidate) {
      return candidate.setting->alsoSetBy;
    });
    if (other != layout_->slots.end() && !other->values.empty()) target = &*other;
  }
  const Slot& slot = *target;
  const int source = SourceOrCurrent(kCurrentSource);
  const int current = At(slot, source);

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
  Put(slot, *wanted, source);
  return wanted;
}

std::optional<int> SimulatedProjector::ExecuteNamed(const PjtCommand& command) {
  if (command.operation == PjtOperation::SetMyMemory) {
    return UseMemory(command.first) ? std::optional(0) : std::nullopt;
  }
  const bool isSwitch = command.operation == PjtOperation::SetPowerOn ||
                        command.operation == PjtOperation::SetPowerOff;
  if (isSwitch && TakesTime()) {
    return SwitchPower(command.operation == PjtOperation::SetPowerOn) ? std::optional(0)
                                                                      : std::nullopt;
  }
  std::optional<int> result;
  for (const Route& route : layout_->routes[static_cast<std::size_t>(command.operation)]) {
    const int selector = route.binding.selector;
    if (selector != Binding::kAny && selector != command.first) continue;
    if (const auto value = ExecuteRoute(route, command)) result = value;
  }
  return result;
}

std::optional<int> SimulatedProjector::ExecuteRoute(const Route& route, const PjtCommand& command) {
  const Slot& slot = layout_->slots[route.slot];
  const Binding& binding = route.binding;
  const int source = command.first;
  if (slot.setting->perSource && !IsSource(source)) return std::nullopt;

  const int current = At(slot, source);
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
  Put(slot, *wanted, source);
  return binding.form == ValueForm::Shown ? *wanted - kShownBias : *wanted;
}

bool SimulatedProjector::UseMemory(int position) {
  const int count = static_cast<int>(memories_.size());
  if (position < 0 || position >= 2 * count) return false;
  const bool load = position < count;
  std::vector<int>& memory = memories_[static_cast<std::size_t>(position % count)];
  if (load && memory.empty()) {
    for (const Slot& slot : layout_->slots) {
      if (slot.setting->inMemory) values_[slot.index] = slot.standard;
    }
    return true;
  }
  if (!load) memory.clear();
  auto kept = memory.begin();
  for (const Slot& slot : layout_->slots) {
    if (!slot.setting->inMemory) continue;
    if (load) {
      values_[slot.index] = *kept++;
    } else {
      memory.push_back(values_[slot.index]);
    }
  }
  return true;
}

void SimulatedProjector::SetPowerTimes(std::chrono::milliseconds warmUp,
                                       std::chrono::milliseconds coolDown) {
  const std::lock_guard lock(mutex_);
  warmUp_ = warmUp;
  coolDown_ = coolDown;
}

bool SimulatedProjector::SwitchPower(bool on) {
  const Slot* const power = SlotOf(SettingId::Power);
  if (!power) return false;
  const int wanted = on ? kOn : kStandby;
  int& state = values_[power->index];
  if (state == wanted) return true;
  if (switchedAt_) return false;
  state = on ? kOn : kCoolingDown;
  switchedAt_ = Clock::now() + (on ? warmUp_ : coolDown_);
  return true;
}

void SimulatedProjector::FinishSwitching() const {
  if (!switchedAt_ || Clock::now() < *switchedAt_) return;
  switchedAt_.reset();
  int& state = values_[SlotOf(SettingId::Power)->index];
  if (state == kCoolingDown) state = kStandby;
}

std::optional<PowerState> SimulatedProjector::Power() const {
  const std::lock_guard lock(mutex_);
  const Slot* const power = SlotOf(SettingId::Power);
  if (!power || !TakesTime()) return std::nullopt;
  FinishSwitching();
  switch (values_[power->index]) {
    case kStandby:
      return PowerState::Standby;
    case kCoolingDown:
      return PowerState::CoolingDown;
    default:
      return switchedAt_ ? PowerState::WarmingUp : PowerState::On;
  }
}

bool SimulatedProjector::Has(SettingId id) const { return SlotOf(id) != nullptr; }

const Setting* SimulatedProjector::Describe(SettingId id) const {
  const Slot* const slot = SlotOf(id);
  return slot ? slot->setting : nullptr;
}

SettingRange SimulatedProjector::RangeOf(SettingId id) const {
  const Slot* const slot = SlotOf(id);
  return slot ? slot->range : SettingRange{};
}

std::span<const int> SimulatedProjector::ValuesOf(SettingId id) const {
  const Slot* const slot = SlotOf(id);
  return slot ? std::span<const int>(slot->values) : std::span<const int>();
}

int SimulatedProjector::Value(SettingId id, int source) const {
  const std::lock_guard lock(mutex_);
  const Slot* const slot = SlotOf(id);
  if (!slot) return 0;
  FinishSwitching();
  return At(*slot, SourceOrCurrent(source));
}

void SimulatedProjector::SetValue(SettingId id, int value, int source) {
  const std::lock_guard lock(mutex_);
  const Slot* const slot = SlotOf(id);
  if (!slot) return;
  if (id == SettingId::Power) switchedAt_.reset();
  Put(*slot, value, SourceOrCurrent(source));
}

std::optional<int> SimulatedProjector::CodeValue(std::uint16_t code) const {
  const std::lock_guard lock(mutex_);
  if (const auto found = layout_->slotOfCode.find(code); found != layout_->slotOfCode.end()) {
    FinishSwitching();
    return At(layout_->slots[found->second], SourceOrCurrent(kCurrentSource));
  }
  return std::nullopt;
}

void SimulatedProjector::SetCodeValue(std::uint16_t code, int value) {
  const std::lock_guard lock(mutex_);
  if (const auto found = layout_->slotOfCode.find(code); found != layout_->slotOfCode.end()) {
    const Slot& slot = layout_->slots[found->second];
    if (slot.setting->id == SettingId::Power) switchedAt_.reset();
    Put(slot, value, SourceOrCurrent(kCurrentSource));
  }
}

}  // namespace AdvancedControl
