#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/channels/ForwardingChannel.h"

namespace AdvancedControl {

/// Reports every command and its reply to an observer. Threads as for `ProjectorChannel`.
class PROJECTOR_COMMON_EXPORT LoggingChannel : public ForwardingChannel {
 public:
  /// Called after the reply has arrived, on the thread that executes the command.
  using Observer =
      std::function<void(const PjtCommand&, const PjtReply&, std::chrono::microseconds elapsed)>;

  LoggingChannel(std::shared_ptr<ProjectorChannel> inner, Observer observer)
      : ForwardingChannel(std::move(inner)), observer_(std::move(observer)) {}

  PjtReply Execute(const PjtCommand& command) override;

 private:
  Observer observer_;
};

/// The command as one line of a log, with its result if `reply` is given:
/// "SetBrightness(140)", "GetInputSrcVolume(3) = 16", "Get 0x2003 = 128", "Set 0x3304 (0x10)
/// refused".
PROJECTOR_COMMON_EXPORT std::string FormatCommand(const PjtCommand& command,
                                                  const PjtReply* reply = nullptr);

}  // namespace AdvancedControl
