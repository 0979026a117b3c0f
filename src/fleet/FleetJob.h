#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/AddressHold.h"
#include "fleet/FleetTarget.h"
#include "fleet/FleetWork.h"
#include "fleet/JobLoop.h"
#include "snapshots/SettingTexts.h"

namespace AdvancedControl {

class Fleet;

/// The same work on many projectors, several at a time but one at each address, on one thread of
/// its own. It holds the address of each that it works on, so that nobody else connects, and waits
/// until others have released it. The fleet keeps away and learns from it. Its functions may be
/// called from any thread, and all but `Wait` return at once.
class PROJECTOR_FLEET_EXPORT FleetJob {
 public:
  /// Bounds `Options::atOnce`.
  static constexpr std::size_t kMostAtOnce = 512;
  /// A program that starts a job for each command runs at most so many at a time, so that with its
  /// other threads it has no more than 16.
  static constexpr std::size_t kMostThreads = 10;

  struct Options {
    std::size_t atOnce = 64;
    std::chrono::milliseconds timeOut{2000};  ///< For connecting, and for each answer.
    /// Called on the thread of the job after each projector.
    std::function<void()> onProgress = [] {};
    /// Among those who wait for a projector.
    AddressHold::Turn turn = AddressHold::Turn::Last;
  };
  struct Progress {
    std::size_t finished = 0;
    std::size_t all = 0;
  };

  /// Begins. `fleet` may be null; it and `texts` must outlive the job.
  FleetJob(Fleet* fleet, std::vector<FleetTarget> targets, FleetWork work,
           const SettingTexts& texts, Options options);
  FleetJob(Fleet* fleet, std::vector<FleetTarget> targets, FleetWork work,
           const SettingTexts& texts)
      : FleetJob(fleet, std::move(targets), std::move(work), texts, Options{}) {}
  /// Cancels, and waits.
  ~FleetJob();
  FleetJob(const FleetJob&) = delete;
  FleetJob& operator=(const FleetJob&) = delete;

  /// Cancels the projectors that have not begun. To the others, nothing is sent after the present
  /// command, which may take up to a time-out.
  void Cancel();
  Progress HowFar() const;
  /// Waits until all projectors are finished.
  void Wait();

  /// In the order of the targets.
  std::vector<WorkResult> Results() const;
  /// Snapshots that undo everything the job has changed so far, by the projectors' identities; see
  /// `WriteFleetUndo`.
  SnapshotsById Undo() const;

 private:
  void WorkOn(std::size_t index);
  WorkResult ResultOf(std::size_t index);
  void Change(std::size_t index, const auto& change);

  Fleet* const fleet_;
  const std::vector<FleetTarget> targets_;
  const FleetWork work_;
  const SettingTexts& texts_;
  const Options options_;
  std::atomic<bool> isCancelled_ = false;

  mutable std::mutex mutex_;
  std::condition_variable finishes_;
  std::vector<WorkResult> results_;  ///< Under the mutex.
  std::size_t finished_ = 0;         ///< Under the mutex.
  JobLoop loop_;
  std::thread thread_;
};

}  // namespace AdvancedControl
