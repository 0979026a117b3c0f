#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ModelData.h"
#include "device/ProjectorChannel.h"
#include "simulator/SettingsTable.h"

namespace AdvancedControl {

/// How a model's projector differs from the settings table.
struct SimulatedModel {
  int pageSet = 5;                                 ///< 1..5.
  std::map<SettingId, SettingRange> ranges;        ///< Instead of the table's, in device values.
  std::map<SettingId, std::vector<int>> values{};  ///< The device values allowed, in list order.
  std::set<SettingId> missing{};                   ///< Commands for these are refused.
};

/// The model that a host describes: its page set, ranges, sources, aspects, gammas and colour
/// temperatures. A range text without two ascending numbers is ignored.
PROJECTOR_COMMON_EXPORT SimulatedModel DescribeModel(const ModelData& data);

/// A projector simulated with the settings table. It answers every command, stores accepted values
/// and refuses those out of range. Named and generic commands reach the same settings.
///
/// Safe to use from several threads at once.
class PROJECTOR_COMMON_EXPORT SimulatedProjector : public ProjectorChannel {
 public:
  static constexpr int kCurrentSource = -1;
  static constexpr int kStandbySource = 15;

  /// What all projectors of a model have in common. A program that simulates many makes it once,
  /// and each then takes about a kilobyte. Does not change; any thread.
  class Layout;
  static std::shared_ptr<const Layout> MakeLayout(SimulatedModel model);

  explicit SimulatedProjector(SimulatedModel model = {});
  explicit SimulatedProjector(std::shared_ptr<const Layout> layout);
  ~SimulatedProjector() override;
  SimulatedProjector(const SimulatedProjector&) = delete;
  SimulatedProjector& operator=(const SimulatedProjector&) = delete;

  PjtReply Execute(const PjtCommand& command) override;

  /// Lets switching on and off take time, none at first. Meanwhile the projector warms up, which
  /// reads as on, or cools down, and refuses to be switched.
  void SetPowerTimes(std::chrono::milliseconds warmUp, std::chrono::milliseconds coolDown);
  /// Nothing while switching takes no time.
  std::optional<PowerState> Power() const override;

  /// The settings this projector has, in the table's order. Does not change.
  std::span<const SettingId> Settings() const;
  bool Has(SettingId id) const;

  // For a setting that the projector does not have, the value is 0, the range and the list are
  // empty, and setting it does nothing.

  /// The table row of the setting in this model's form; null if the model does not have it.
  const Setting* Describe(SettingId id) const;
  SettingRange RangeOf(SettingId id) const;
  /// The values allowed instead of the range; empty if the range applies.
  std::span<const int> ValuesOf(SettingId id) const;

  /// The device value; for a setting that is kept per source, the value of `source`.
  int Value(SettingId id, int source = kCurrentSource) const;
  /// Changes the setting as if at the projector itself. Accepts any value.
  void SetValue(SettingId id, int value, int source = kCurrentSource);

  /// The same by command code; nothing if the projector does not know the code.
  std::optional<int> CodeValue(std::uint16_t code) const;
  void SetCodeValue(std::uint16_t code, int value);

 private:
  using Clock = std::chrono::steady_clock;
  struct Slot;
  struct Route;

  const Slot* SlotOf(SettingId id) const;
  int At(const Slot& slot, int source) const;
  void Put(const Slot& slot, int value, int source);
  int SourceOrCurrent(int source) const;
  std::optional<int> ExecuteGeneric(const PjtCommand& command);
  std::optional<int> ExecuteNamed(const PjtCommand& command);
  std::optional<int> ExecuteRoute(const Route& route, const PjtCommand& command);
  bool UseMemory(int position);
  bool TakesTime() const { return warmUp_.count() > 0 || coolDown_.count() > 0; }
  bool SwitchPower(bool on);
  void FinishSwitching() const;

  const std::shared_ptr<const Layout> layout_;

  mutable std::mutex mutex_;
  // Under the mutex.
  mutable std::vector<int>
      values_;  // one for each slot; of a setting kept per source, the standard
  std::map<std::pair<std::size_t, int>, int> bySource_;  // those that differ from it
  std::array<std::vector<int>, 4> memories_;             // empty while they hold the standards
  std::chrono::milliseconds warmUp_{0};
  std::chrono::milliseconds coolDown_{0};
  mutable std::optional<Clock::time_point> switchedAt_;  // when the power is as it was asked to be
};

}  // namespace AdvancedControl
