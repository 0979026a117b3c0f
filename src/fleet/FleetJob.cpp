#include "fleet/FleetJob.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "fleet/Fleet.h"
#include "fleet/JobChannel.h"
#include "fleet/MakeVisit.h"
#include "fleet/ProjectorWork.h"

namespace AdvancedControl {

FleetJob::FleetJob(Fleet* fleet, std::vector<FleetTarget> targets, FleetWork work,
                   const SettingTexts& texts, Options options)
    : fleet_(fleet),
      targets_(std::move(targets)),
      work_(std::move(work)),
      texts_(texts),
      options_(std::move(options)),
      results_(targets_.size()) {
  const std::size_t atOnce =
      std::min(std::clamp<std::size_t>(options_.atOnce, 1, kMostAtOnce), targets_.size());
  for (std::size_t i = 0; i < targets_.size(); ++i) {
    queue_.Add(static_cast<VisitQueue::Peer>(i), PlaceOf(targets_[i]));
  }
  thread_ = std::thread([this, atOnce] {
    loop_.Run(static_cast<JobLoop::Peer>(atOnce), [this](JobLoop::Peer peer) {
      while (const auto index = Next()) WorkOn(*index, peer);
    });
  });
}

FleetJob::~FleetJob() {
  Cancel();
  thread_.join();
}

void FleetJob::Cancel() { isCancelled_ = true; }

FleetJob::Progress FleetJob::HowFar() const {
  const std::lock_guard lock(mutex_);
  return {finished_, targets_.size()};
}

void FleetJob::Wait() {
  std::unique_lock lock(mutex_);
  finishes_.wait(lock, [this] { return finished_ == targets_.size(); });
}

std::vector<WorkResult> FleetJob::Results() const {
  const std::lock_guard lock(mutex_);
  return results_;
}

SnapshotsById FleetJob::Undo() const {
  const std::lock_guard lock(mutex_);
  SnapshotsById undo;
  for (std::size_t i = 0; i < targets_.size(); ++i) {
    if (const auto& one = results_[i].undo) {
      undo.emplace(targets_[i].id, std::make_shared<const Snapshot>(*one));
    }
  }
  return undo;
}

/// If there is none, those who work at an address go on with the others there.
std::optional<std::size_t> FleetJob::Next() {
  const std::lock_guard lock(mutex_);
  return queue_.Next();
}

void FleetJob::WorkOn(std::size_t index, JobLoop::Peer peer) {
  const FleetTarget& target = targets_[index];
  const auto put = [&](const auto& change) {
    const std::lock_guard lock(mutex_);
    change(results_[index]);
  };
  WorkResult result{.outcome = WorkOutcome::Stopped};
  if (!isCancelled_) {
    put([](WorkResult& now) { now.outcome = WorkOutcome::Working; });
    std::optional<Fleet::Pause> pause;
    if (fleet_) pause.emplace(*fleet_, target.id);
    const auto told = [&](const PjtCommand& command, const PjtReply& reply,
                          std::optional<PowerState> power) {
      if (fleet_) fleet_->Learn(target.id, command, reply, power);
    };
    const std::function<bool()> goesOn = [this] { return !isCancelled_; };
    const auto channel = MakeJobChannel(loop_, peer, target, options_.timeOut);
    ProjectorWork work(target, channel, texts_, goesOn, told);
    result = work.Do(work_,
                     [&](const Snapshot& undo) { put([&](WorkResult& now) { now.undo = undo; }); });
    if (fleet_ && result.differing) fleet_->LearnDrift(target.id, result.differing);
  }
  {
    const std::lock_guard lock(mutex_);
    results_[index] = std::move(result);
    queue_.Leave(static_cast<VisitQueue::Peer>(index));
    ++finished_;
  }
  finishes_.notify_all();
  options_.onProgress();
}

}  // namespace AdvancedControl
