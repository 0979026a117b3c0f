#include "simulator/SimulatedLayout.h"

#include <algorithm>
#include <utility>

#include "simulator/SettingsTable.h"

namespace AdvancedControl {

namespace {

/// The setting of a command code without a known meaning, which stores any value.
constexpr Setting kPlain{.id = SettingId::Count, .name = "", .range = {0, 0xFFFF}};

}  // namespace

SimulatedLayout::SimulatedLayout(SimulatedModel model) {
  slotOfSetting_.fill(-1);
  for (const Setting& setting : SettingsTable()) {
    if (Knows(setting.sets, model.pageSet) && !model.missing.contains(setting.id)) {
      Add(setting, model);
    }
  }
  // A code that has a meaning only in other page sets is plain here. That of a missing setting is
  // not.
  for (const std::uint16_t code : PlainCodes()) {
    const bool hasMeaning = std::ranges::any_of(SettingsTable(), [&](const Setting& setting) {
      return setting.code == code && Knows(setting.sets, model.pageSet);
    });
    if (hasMeaning) continue;
    slotOfCode_.emplace(code, slots.size());
    slots.push_back(
        {.setting = &kPlain, .index = slots.size(), .range = kPlain.range, .values = {}});
  }
}

void SimulatedLayout::Add(const Setting& setting, SimulatedModel& model) {
  const std::size_t index = slots.size();
  SimulatedSlot slot{.setting = &setting, .index = index, .range = setting.range, .values = {}};
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
  slots.push_back(std::move(slot));

  present.push_back(setting.id);
  slotOfSetting_[static_cast<std::size_t>(setting.id)] = static_cast<int>(index);
  if (setting.code != 0) slotOfCode_.emplace(setting.code, index);
  for (const Binding& binding : setting.operations) {
    if (binding.verb == Verb::None) continue;
    routes[static_cast<std::size_t>(binding.operation)].push_back({index, binding});
  }
}

const SimulatedSlot* SimulatedLayout::Find(SettingId id) const {
  const int index = slotOfSetting_[static_cast<std::size_t>(id)];
  return index < 0 ? nullptr : &slots[static_cast<std::size_t>(index)];
}

const SimulatedSlot* SimulatedLayout::FindCode(std::uint16_t code) const {
  const auto found = slotOfCode_.find(code);
  return found == slotOfCode_.end() ? nullptr : &slots[found->second];
}

}  // namespace AdvancedControl
