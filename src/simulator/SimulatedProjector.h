#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "simulator/PowerSwitch.h"
#include "simulator/Setting.h"
#include "simulator/SimulatedModel.h"
#include "simulator/SimulatedValues.h"

namespace AdvancedControl {

class SimulatedLayout;
struct SimulatedRoute;

/// A projector simulated with the settings table. It answers every command, stores accepted values
/// and refuses those out of range. Named and generic commands reach the same settings.
///
/// Safe to use from several threads at once.
class PROJECTOR_COMMON_EXPORT SimulatedProjector : public ProjectorChannel {
 public:
  static constexpr int kCurrentSource = -1;
  static constexpr int kStandbySource = 15;

  /// What all projectors of a model have in common. A program that simulates many projectors makes
  /// it once for each model; a projector then takes about a kilobyte. Does not change; any thread.
  static std::shared_ptr<const SimulatedLayout> MakeLayout(SimulatedModel model);

  explicit SimulatedProjector(SimulatedModel model = {});
  explicit SimulatedProjector(std::shared_ptr<const SimulatedLayout> layout);
  ~SimulatedProjector() override;
  SimulatedProjector(const SimulatedProjector&) = delete;
  SimulatedProjector& operator=(const SimulatedProjector&) = delete;

  PjtReply Execute(const PjtCommand& command) override;

  /// Sets how long switching on and off takes; no time at first. While the projector warms up,
  /// which reads as on, or cools down, it refuses to be switched.
  void SetPowerTimes(std::chrono::milliseconds warmUp, std::chrono::milliseconds coolDown);
  /// Nothing if switching takes no time.
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
  int SourceOrCurrent(int source) const;
  std::optional<int> ExecuteGeneric(const PjtCommand& command);
  std::optional<int> ExecuteNamed(const PjtCommand& command);
  std::optional<int> ExecuteRoute(const SimulatedRoute& route, const PjtCommand& command);
  /// Brings the running state up to date.
  void UpdatePower() const;

  const std::shared_ptr<const SimulatedLayout> layout_;

  mutable std::mutex mutex_;
  // Protected by the mutex.
  mutable SimulatedValues values_;
  mutable PowerSwitch power_;
};

}  // namespace AdvancedControl
