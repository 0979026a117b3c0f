#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "app/bridge/Broker.h"
#include "app/bridge/Command.h"
#include "app/bridge/ModelBook.h"
#include "app/bridge/RateLimit.h"
#include "app/bridge/Topics.h"
#include "fleet/FleetProfile.h"

/// Checks the commands that come from the broker, and answers wrong ones at once. Only commands
/// that are correct and allowed are carried out. Has no network and no clock.
class CommandDesk {
 public:
  using Time = std::chrono::steady_clock::time_point;

  struct Rules {
    KeyRules keys{};
    int perMinute = 30;  ///< For each projector.
    int burst = 10;
  };
  struct Services {
    /// The projector of a topic's level, or null.
    std::function<const FleetProfile*(const QByteArray& id, std::size_t& index)> find;
    /// Carries a command out; false if too many wait.
    std::function<bool(std::size_t projector, const Command& command)> run;
    std::function<void(BrokerMessage answer)> answer;
  };

  /// What is passed by reference must outlive it.
  CommandDesk(Rules rules, ModelBook& models, const SettingTexts& texts, const Topics& topics,
              Services services);

  const KeyRules& Keys() const { return rules_.keys; }

  void Take(const BrokerMessage& message, Time now);
  /// A command that was run has ended. `isAsleep` says whether the projector is in standby.
  void Finish(const QByteArray& id, const Command& command, const WorkResult& result,
              bool isAsleep);

  /// Commands are only accepted while both switches are on.
  void SetSwitchedOn(bool bySignal) { onBySignal_ = bySignal; }
  /// Takes the payload of the switch's topic: empty or "on" switches commands on, anything else
  /// off.
  void TakeSwitch(const QByteArray& payload);
  bool TakesCommands() const { return !rules_.keys.IsEmpty() && onBySignal_ && onByTopic_; }

  const std::map<std::string, std::uint64_t>& Counts() const { return counts_; }

 private:
  QString Refuse(const FleetProfile& profile, std::size_t index, const ParsedCommand& parsed,
                 Time now);
  void Answer(const QByteArray& id, const Command& command, const std::string& outcome,
              const std::string& reason);

  const Rules rules_;
  ModelBook& models_;
  const SettingTexts& texts_;
  const Topics& topics_;
  const Services services_;
  RateLimit limit_;
  bool onBySignal_ = true;
  bool onByTopic_ = true;
  std::map<std::string, std::uint64_t> counts_;
};
