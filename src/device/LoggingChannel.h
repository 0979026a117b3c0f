#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "AdvancedControlExport.h"
#include "device/ProjectorChannel.h"

/// Reports every command that passes through to an observer, once the reply is there.
class ADVANCED_CONTROL_EXPORT LoggingChannel : public ProjectorChannel {
 public:
  /// Called on the thread that executes the command.
  using Observer =
      std::function<void(const PjtCommand&, const PjtReply&, std::chrono::microseconds elapsed)>;

  LoggingChannel(std::shared_ptr<ProjectorChannel> inner, Observer observer)
      : inner_(std::move(inner)), observer_(std::move(observer)) {}

  PjtReply Execute(const PjtCommand& command) override;
  void Announce(std::span<const PjtCommand> reads) override { inner_->Announce(reads); }
  void GiveUpAfter(std::chrono::milliseconds time) override { inner_->GiveUpAfter(time); }
  void Abandon() override { inner_->Abandon(); }
  ConnectionState Connection() const override { return inner_->Connection(); }
  std::optional<SourceList> Inputs() override { return inner_->Inputs(); }
  std::optional<PowerState> Power() const override { return inner_->Power(); }
  bool UseIdleTime() override { return inner_->UseIdleTime(); }

 private:
  std::shared_ptr<ProjectorChannel> inner_;
  Observer observer_;
};

/// The command as one line of a log, and what came back when `reply` is given:
/// "SetBrightness(140)", "GetInputSrcVolume(3) = 16", "Get 0x2003 = 128", "Set 0x3304 (0x10)
/// refused".
ADVANCED_CONTROL_EXPORT std::string FormatCommand(const PjtCommand& command,
                                                  const PjtReply* reply = nullptr);
