#include "app/bridge/CommandRunner.h"

#include <algorithm>
#include <utility>

CommandRunner::CommandRunner(Fleet& fleet, const SettingTexts& texts, OnResult onResult)
    : fleet_(fleet), texts_(texts), onResult_(std::move(onResult)) {}

CommandRunner::~CommandRunner() {
  for (auto& [projector, running] : running_) running.job->Cancel();
}

bool CommandRunner::Add(std::size_t projector, FleetTarget target, Command command) {
  if (waiting_.size() >= kMostWaiting) return false;
  waiting_.push_back({projector, std::move(target), std::move(command)});
  Begin();
  return true;
}

void CommandRunner::StopAll() {
  for (const Waiting& waiting : std::exchange(waiting_, {})) {
    onResult_(waiting.projector, waiting.command, {.outcome = WorkOutcome::Stopped});
  }
  for (auto& [projector, running] : running_) running.job->Cancel();
}

void CommandRunner::Begin() {
  while (running_.size() < kAtOnce) {
    const auto next = std::ranges::find_if(
        waiting_, [this](const Waiting& waiting) { return !running_.contains(waiting.projector); });
    if (next == waiting_.end()) return;
    const Waiting begun = std::move(*next);
    waiting_.erase(next);
    FleetJob::Options options;
    options.atOnce = 1;
    options.turn = AddressHold::Turn::Next;
    // Called on the job's thread.
    options.onProgress = [this, projector = begun.projector] {
      QMetaObject::invokeMethod(
          &context_, [this, projector] { Finish(projector); }, Qt::QueuedConnection);
    };
    running_.emplace(
        begun.projector,
        Running{begun.command, std::make_unique<FleetJob>(&fleet_, std::vector{begun.target},
                                                          WorkOf(begun.command), texts_, options)});
  }
}

void CommandRunner::Finish(std::size_t projector) {
  const auto finished = running_.extract(projector);
  const Running& running = finished.mapped();
  onResult_(projector, running.command, running.job->Results().front());
  Begin();
}
