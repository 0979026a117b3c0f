#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>

#include <QObject>

#include "app/bridge/Command.h"
#include "fleet/Fleet.h"
#include "fleet/FleetJob.h"

/// Carries commands out, one after the other for each projector. Belongs to one thread, on which it
/// reports the results.
class CommandRunner {
 public:
  static constexpr std::size_t kMostWaiting = 256;
  static constexpr std::size_t kAtOnce = FleetJob::kMostThreads;

  using OnResult =
      std::function<void(std::size_t projector, const Command& command, const WorkResult& result)>;

  /// `fleet` and `texts` must outlive it.
  CommandRunner(Fleet& fleet, const SettingTexts& texts, OnResult onResult);
  /// Cancels what is under way, and waits for it.
  ~CommandRunner();
  CommandRunner(const CommandRunner&) = delete;
  CommandRunner& operator=(const CommandRunner&) = delete;

  /// False if too many wait.
  bool Add(std::size_t projector, FleetTarget target, Command command);
  /// Stops all commands. The results of waiting commands are reported at once, those of the others
  /// when they have ended.
  void StopAll();

 private:
  struct Waiting {
    std::size_t projector;
    FleetTarget target;
    Command command;
  };
  struct Running {
    Command command;
    std::unique_ptr<FleetJob> job;
  };

  void Begin();
  void Finish(std::size_t projector);

  Fleet& fleet_;
  const SettingTexts& texts_;
  const OnResult onResult_;
  QObject context_;
  std::deque<Waiting> waiting_;
  std::map<std::size_t, Running> running_;  ///< By projector.
};
