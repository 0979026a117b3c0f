#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>
#include <vector>

#include "device/ModelDataIntake.h"
#include "simulator/SimulatedProjector.h"

/// A simulated projector that takes a given time for each command.
class PacedProjector final : public ProjectorChannel {
 public:
  explicit PacedProjector(const CModelInfo2& model)
      : simulation_(DescribeModel(MakeModelData(model))) {}

  PjtReply Execute(const PjtCommand& command) override {
    std::unique_lock lock(mutex_);
    sent_.push_back(command);
    ++sent;
    waiting = pace_.count() > 0;
    changed_.wait_for(lock, pace_, [this] { return pace_.count() == 0; });
    waiting = false;
    if (refuses) return {.result = RefusedResult(command.operation), .busy = busy};
    PjtReply reply = simulation_.Execute(command);
    reply.pending = late && !IsRead(command.operation);
    return reply;
  }

  /// Sets how long further commands take. Zero also ends the command that waits.
  void Pace(std::chrono::milliseconds pace) {
    const std::lock_guard lock(mutex_);
    pace_ = pace;
    changed_.notify_all();
  }
  /// The commands since the last call.
  std::vector<PjtCommand> Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(sent_, {});
  }

  std::atomic<bool> refuses = false;
  std::atomic<bool> busy = false;  ///< Whether refusals are for being busy.
  std::atomic<bool> late = false;  ///< Whether changes are accepted without taking effect yet.
  std::atomic<bool> waiting = false;
  std::atomic<int> sent = 0;

 private:
  SimulatedProjector simulation_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::chrono::milliseconds pace_{0};
  std::vector<PjtCommand> sent_;
};
