#include "fleet/FleetJob.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "fleet/Fleet.h"
#include "fleet/JobChannel.h"
#include "fleet/MakeVisit.h"
#include "fleet/ProjectorWork.h"
#include "fleet/RunOnEach.h"

namespace AdvancedControl {

FleetJob::FleetJob(Fleet* fleet, std::vector<FleetTarget> targets, FleetWork work,
                   const SettingTexts& texts, Options options)
    : fleet_(fleet),
      targets_(std::move(targets)),
      work_(std::move(work)),
      texts_(texts),
      options_(std::move(options)),
      results_(targets_.size()) {
  std::vector<VisitQueue::Address> addresses;
  for (const FleetTarget& target : targets_) addresses.push_back(PlaceOf(target));
  thread_ = std::thread([this, addresses = std::move(addresses)] {
    const std::size_t atOnce = std::clamp<std::size_t>(options_.atOnce, 1, kMostAtOnce);
    RunOnEach(loop_, addresses, atOnce, [this](std::size_t index) { WorkOn(index); });
  });
}

FleetJob::~FleetJob() {
  Cancel();
  thread_.join();
}

void FleetJob::Cancel() {
  isCancelled_ = true;
  loop_.WakeAll();
}

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
    if (const auto& one = results_[i].undo) undo.emplace(targets_[i].id, one);
  }
  return undo;
}

void FleetJob::Change(std::size_t index, const auto& change) {
  const std::lock_guard lock(mutex_);
  change(results_[index]);
}

void FleetJob::WorkOn(std::size_t index) {
  const FleetTarget& target = targets_[index];
  std::optional<AddressHold> hold;
  if (!isCancelled_) hold.emplace(PlaceOf(target), options_.turn, [this] { loop_.WakeAll(); });
  while (!isCancelled_ && !hold->IsHeld()) JobLoop::Pause(SessionTime::max());
  WorkResult result = isCancelled_ ? WorkResult{.outcome = WorkOutcome::Stopped} : ResultOf(index);
  hold.reset();
  {
    const std::lock_guard lock(mutex_);
    results_[index] = std::move(result);
    ++finished_;
  }
  finishes_.notify_all();
  options_.onProgress();
}

WorkResult FleetJob::ResultOf(std::size_t index) {
  Change(index, [](WorkResult& now) { now.outcome = WorkOutcome::Working; });
  const FleetTarget& target = targets_[index];
  std::optional<Fleet::Pause> pause;
  if (fleet_) pause.emplace(*fleet_, target.id);
  const auto told = [&](const PjtCommand& command, const PjtReply& reply,
                        std::optional<PowerState> power) {
    if (fleet_) fleet_->Learn(target.id, command, reply, power);
  };
  const std::function<bool()> goesOn = [this] { return !isCancelled_; };
  ProjectorWork work(target, MakeJobChannel(loop_, target.address, options_.timeOut), texts_,
                     goesOn, told);
  WorkResult result = work.Do(work_, [&](const std::shared_ptr<const Snapshot>& undo) {
    Change(index, [&](WorkResult& now) { now.undo = undo; });
  });
  const auto* const compare = std::get_if<CompareSnapshots>(&work_);
  if (fleet_ && result.differing && compare != nullptr && compare->areWanted) {
    fleet_->LearnDrift(target.id, result.differing);
  }
  return result;
}

}  // namespace AdvancedControl
