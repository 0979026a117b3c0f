#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "Namespace.h"

namespace AdvancedControl {

struct SimulatedSlot;

/// The values of a simulated projector's settings, and its four memories. `slots` are always those
/// of the projector's layout. Use from one thread at a time.
class SimulatedValues {
 public:
  /// Every setting has its standard value, and so have the memories.
  explicit SimulatedValues(const std::vector<SimulatedSlot>& slots);

  /// `source` matters only for a setting that is kept per source.
  int At(const SimulatedSlot& slot, int source) const;
  void Put(const SimulatedSlot& slot, int value, int source);
  /// The value of a setting that is not kept per source.
  int& Single(const SimulatedSlot& slot);

  /// Loads the memory at positions 0 to 3, saves it at 4 to 7. False for other positions.
  bool UseMemory(int position, const std::vector<SimulatedSlot>& slots);

 private:
  void Save(std::vector<int>& memory, const std::vector<SimulatedSlot>& slots) const;
  void Load(const std::vector<int>& memory, const std::vector<SimulatedSlot>& slots);

  /// One for each slot; the standard for a setting that is kept per source.
  std::vector<int> values_;
  /// By slot and source, where it is not the standard.
  std::map<std::pair<std::size_t, int>, int> bySource_;
  /// The values of the slots that a memory has, in order; empty while they are the standards.
  std::array<std::vector<int>, 4> memories_;
};

}  // namespace AdvancedControl
