#include "simulator/SimulatedValues.h"

#include "simulator/SimulatedSlot.h"

namespace AdvancedControl {

SimulatedValues::SimulatedValues(const std::vector<SimulatedSlot>& slots) {
  for (const SimulatedSlot& slot : slots) values_.push_back(slot.standard);
}

int SimulatedValues::At(const SimulatedSlot& slot, int source) const {
  if (slot.setting->perSource) {
    const auto found = bySource_.find({slot.index, source});
    if (found != bySource_.end()) return found->second;
  }
  return values_[slot.index];
}

void SimulatedValues::Put(const SimulatedSlot& slot, int value, int source) {
  if (slot.setting->perSource) {
    bySource_[{slot.index, source}] = value;
  } else {
    values_[slot.index] = value;
  }
}

int& SimulatedValues::Single(const SimulatedSlot& slot) { return values_[slot.index]; }

bool SimulatedValues::UseMemory(int position, const std::vector<SimulatedSlot>& slots) {
  const int count = static_cast<int>(memories_.size());
  if (position < 0 || position >= 2 * count) return false;
  std::vector<int>& memory = memories_[static_cast<std::size_t>(position % count)];
  if (position < count) {
    Load(memory, slots);
  } else {
    Save(memory, slots);
  }
  return true;
}

void SimulatedValues::Save(std::vector<int>& memory,
                           const std::vector<SimulatedSlot>& slots) const {
  memory.clear();
  for (const SimulatedSlot& slot : slots) {
    if (slot.setting->inMemory) memory.push_back(values_[slot.index]);
  }
}

void SimulatedValues::Load(const std::vector<int>& memory,
                           const std::vector<SimulatedSlot>& slots) {
  auto saved = memory.begin();
  for (const SimulatedSlot& slot : slots) {
    if (slot.setting->inMemory) values_[slot.index] = memory.empty() ? slot.standard : *saved++;
  }
}

}  // namespace AdvancedControl
