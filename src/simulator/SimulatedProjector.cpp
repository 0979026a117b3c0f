#include "simulator/SimulatedProjector.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

#include "device/CommandCode.h"

namespace AdvancedControl {

namespace {

constexpr int kShownBias = CommandCode::kZeroPoint;

/// The setting for a command code without a known meaning: stores any value.
constexpr Setting kPlain{.id = SettingId::Count, .name = "", .range = {0, 0xFFFF}};

/// The value that a command sets; its place depends on the operation's family.
int WrittenValue(const PjtCommand& command) {
  return FormOf(command.operation).second == Argument::Value ? command.second : command.first;
}

bool IsSource(int source) { return source >= 0 && source <= 255; }

std::optional<int> Number(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return std::nullopt;
  int number = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data() + start, end, number).ec != std::errc{}) return std::nullopt;
  return number;
}

std::optional<SettingRange> ParseRange(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const std::optional<int> minimum = Number(text.substr(0, comma));
  const std::optional<int> maximum = Number(text.substr(comma + 1));
  if (!minimum || !maximum || *minimum > *maximum) return std::nullopt;
  return SettingRange{*minimum, *maximum};
}

std::vector<int> ListValues(const CountedList& list) {
  return {list.values.begin(), list.values.begin() + list.Size()};
}

}  // namespace

SimulatedModel DescribeModel(const ModelData& data) {
  SimulatedModel model{.pageSet = data.DialogType, .ranges = {}};
  for (const Setting& setting : SettingsTable()) {
    if (setting.rangeText == Setting::kNoRangeText) continue;
    if (const auto range = ParseRange(data.RangeTexts[setting.rangeText])) {
      model.ranges[setting.id] = *range;
    }
  }
  const auto* const sources = data.MySourceList.firstValues.begin();
  model.values[SettingId::InputSource] = {sources, sources + data.MySourceList.Size()};
  model.values[SettingId::Aspect] = ListValues(data.AspectList);
  model.values[SettingId::Gamma] = ListValues(data.GammaList);
  model.values[SettingId::ColorTemp] = ListValues(data.ColorTempList);
  return model;
}

/// One setting of this projector.
struct SimulatedProjector::Slot {
  const Setting* setting = nullptr;
  SettingRange range;
  std::vector<int> values;
  int standard = 0;
  int value = 0;
  std::map<int, int> bySource;  ///< Only values that differ from the standard.

  bool Allows(int wanted) const {
    if (!values.empty()) return std::ranges::find(values, wanted) != values.end();
    return wanted >= range.minimum && wanted <= range.maximum;
  }

  int At(int source) const {
    if (!setting->perSource) return value;
    const auto found = bySource.find(source);
    return found == bySource.end() ? standard : found->second;
  }

  void Put(int wanted, int source) { (setting->perSource ? bySource[source] : value) = wanted; }

  /// The neighbouring value, counted or from the list; may be outside the range.
  std::optional<int> Next(int current, int step) const {
    if (values.empty()) return current + step;
    const auto found = std::ranges::find(values, current);
    if (found == values.end()) return std::nullopt;
    const auto position = found - values.begin() + step;
    if (position < 0 || position >= std::ssize(values)) return std::nullopt;
    return values[static_cast<std::size_t>(position)];
  }

  std::optional<int> FromWritten(int written, ValueForm form) const {
    switch (form) {
      case ValueForm::Device:
        return written;
      case ValueForm::OneBased:
        return written + 1;
      case ValueForm::TwoBased:
        return written + 2;
      case ValueForm::Shown:
        return written + kShownBias;
      case ValueForm::Position:
        if (values.empty()) return written;
        if (written < 0 || written >= std::ssize(values)) return std::nullopt;
        return values[static_cast<std::size_t>(written)];
    }
    return std::nullopt;
  }
};

struct SimulatedProjector::Route {
  std::size_t slot = 0;
  Binding binding;
};

SimulatedProjector::SimulatedProjector(SimulatedModel model) {
  slotOfSetting_.fill(-1);
  for (const Setting& setting : SettingsTable()) {
    if (Knows(setting.sets, model.pageSet) && !model.missing.contains(setting.id)) {
      AddSlot(setting, model);
    }
  }
  // A code that has a meaning only for other page sets becomes plain; the code of a missing setting
  // does not.
  for (const std::uint16_t code : PlainCodes()) {
    const bool hasMeaning = std::ranges::any_of(SettingsTable(), [&](const Setting& setting) {
      return setting.code == code && Knows(setting.sets, model.pageSet);
    });
    if (hasMeaning) continue;
    slotOfCode_.emplace(code, slots_.size());
    slots_.push_back({.setting = &kPlain, .range = kPlain.range, .values = {}, .bySource = {}});
  }
  std::vector<int> pictures;
  for (const Slot& slot : slots_) {
    if (slot.setting->inMemory) pictures.push_back(slot.value);
  }
  memories_.fill(pictures);
}

SimulatedProjector::~SimulatedProjector() = default;

void SimulatedProjector::AddSlot(const Setting& setting, SimulatedModel& model) {
  const std::size_t index = slots_.size();
  Slot slot{.setting = &setting, .range = setting.range, .values = {}, .bySource = {}};
  slot.values.assign(setting.values.begin(), setting.values.end());
  if (const auto own = model.ranges.find(setting.id); own != model.ranges.end()) {
    slot.range = own->second;
  }
  if (const auto own = model.values.find(setting.id);
      own != model.values.end() && !own->second.empty()) {
    slot.values = std::move(own->second);
  }
  slot.standard = setting.standard;
  if (!slot.Allows(slot.standard)) {
    slot.standard = slot.values.empty()
                        ? std::clamp(slot.standard, slot.range.minimum, slot.range.maximum)
                        : slot.values.front();
  }
  slot.value = slot.standard;
  slots_.push_back(std::move(slot));

  present_.push_back(setting.id);
  slotOfSetting_[static_cast<std::size_t>(setting.id)] = static_cast<int>(index);
  if (setting.code != 0) slotOfCode_.emplace(setting.code, index);
  for (const Binding& binding : setting.operations) {
    if (binding.verb == Verb::None) continue;
    routes_[static_cast<std::size_t>(binding.operation)].push_back({index, binding});
  }
}

SimulatedProjector::Slot* SimulatedProjector::SlotOf(SettingId id) {
  return const_cast<Slot*>(std::as_const(*this).SlotOf(id));
}

const SimulatedProjector::Slot* SimulatedProjector::SlotOf(SettingId id) const {
  const int index = slotOfSetting_[static_cast<std::size_t>(id)];
  return index < 0 ? nullptr : &slots_[static_cast<std::size_t>(index)];
}

int SimulatedProjector::SourceOrCurrent(int source) const {
  if (source != kCurrentSource) return source;
  const Slot* const input = SlotOf(SettingId::InputSource);
  return input ? input->value : 0;
}

PjtReply SimulatedProjector::Execute(const PjtCommand& command) {
  const std::lock_guard lock(mutex_);
  const std::optional<int> value =
      FormOf(command.operation).isGeneric ? ExecuteGeneric(command) : ExecuteNamed(command);
  if (!value) return {.result = RefusedResult(command.operation)};
  return {.result = AcceptedResult(command.operation), .value = static_cast<std::int16_t>(*value)};
}

std::optional<int> SimulatedProjector::ExecuteGeneric(const PjtCommand& command) {
  const auto found = slotOfCode_.find(command.code);
  if (found == slotOfCode_.end()) return std::nullopt;
  Slot* target = &slots_[found->second];
  const int written = static_cast<std::uint16_t>(command.first);
  if (command.operation == PjtOperation::Set && !target->Allows(written)) {
    const auto other = std::ranges::find(
        slots_, command.code, [](const Slot& candidate) { return candidate.setting->alsoSetBy; });
    if (other != slots_.end() && !other->values.empty()) target = &*other;
  }
  Slot& slot = *target;
  const int source = SourceOrCurrent(kCurrentSource);
  const int current = slot.At(source);

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
  slot.Put(*wanted, source);
  return wanted;
}

std::optional<int> SimulatedProjector::ExecuteNamed(const PjtCommand& command) {
  if (command.operation == PjtOperation::SetMyMemory) {
    return UseMemory(command.first) ? std::optional(0) : std::nullopt;
  }
  std::optional<int> result;
  for (const Route& route : routes_[static_cast<std::size_t>(command.operation)]) {
    const int selector = route.binding.selector;
    if (selector != Binding::kAny && selector != command.first) continue;
    if (const auto value = ExecuteRoute(route, command)) result = value;
  }
  return result;
}

std::optional<int> SimulatedProjector::ExecuteRoute(const Route& route, const PjtCommand& command) {
  Slot& slot = slots_[route.slot];
  const Binding& binding = route.binding;
  const int source = command.first;
  if (slot.setting->perSource && !IsSource(source)) return std::nullopt;

  const int current = slot.At(source);
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
  slot.Put(*wanted, source);
  return binding.form == ValueForm::Shown ? *wanted - kShownBias : *wanted;
}

bool SimulatedProjector::UseMemory(int position) {
  const int count = static_cast<int>(memories_.size());
  if (position < 0 || position >= 2 * count) return false;
  const bool load = position < count;
  std::vector<int>& memory = memories_[static_cast<std::size_t>(position % count)];
  auto kept = memory.begin();
  for (Slot& slot : slots_) {
    if (!slot.setting->inMemory) continue;
    (load ? slot.value : *kept) = load ? *kept : slot.value;
    ++kept;
  }
  return true;
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
  return slot ? slot->At(SourceOrCurrent(source)) : 0;
}

void SimulatedProjector::SetValue(SettingId id, int value, int source) {
  const std::lock_guard lock(mutex_);
  if (Slot* const slot = SlotOf(id)) slot->Put(value, SourceOrCurrent(source));
}

std::optional<int> SimulatedProjector::CodeValue(std::uint16_t code) const {
  const std::lock_guard lock(mutex_);
  if (const auto found = slotOfCode_.find(code); found != slotOfCode_.end()) {
    return slots_[found->second].At(SourceOrCurrent(kCurrentSource));
  }
  return std::nullopt;
}

void SimulatedProjector::SetCodeValue(std::uint16_t code, int value) {
  const std::lock_guard lock(mutex_);
  if (const auto found = slotOfCode_.find(code); found != slotOfCode_.end()) {
    slots_[found->second].Put(value, SourceOrCurrent(kCurrentSource));
  }
}

}  // namespace AdvancedControl
