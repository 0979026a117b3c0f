#pragma once

#include <atomic>
#include <chrono>
#include <utility>
#include <vector>

#include <QObject>

#include "device/CModelInfo2.h"
#include "device/ProjectorChannel.h"

using Clock = std::chrono::steady_clock;

/// A projector that accepts everything and answers each command after `delay`. Reads return
/// plausible values, which change with every round.
class AnsweringChannel final : public ProjectorChannel {
 public:
  explicit AnsweringChannel(Clock::duration delay = {}) : delay_(delay) {}

  PjtReply Execute(const PjtCommand& command) override;

  /// Changes the values, so that a refresh has something to show.
  void NextRound() { ++round_; }

  struct Work {
    int commands = 0;
    double seconds = 0;  ///< Time that the commands took; longer than the delay on a busy machine.
  };
  /// Returns and clears the work since the last call. Not to be called while a command runs.
  Work TakeWork() { return std::exchange(work_, {}); }

 private:
  const Clock::duration delay_;
  std::atomic<int> round_ = 0;
  Work work_;
};

/// A model with every list filled.
CModelInfo2 MakeFullModel(int dialogType, int modelCode);

/// Waits for the application's windows to paint.
class PaintWatch final : public QObject {
 public:
  PaintWatch();

  /// Runs the event loop until something has been painted since the last call and no events are
  /// left. False if nothing was painted within a second.
  bool RunUntilPainted();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool painted_ = false;
};

inline double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// `values` must not be empty.
double Median(std::vector<double> values);
