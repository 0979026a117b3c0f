#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "Namespace.h"
#include "device/channels/ForwardingChannel.h"

namespace AdvancedControl {

/// Reports each command of another channel and its reply, for example to a fleet. `observer` is
/// called on the thread of the command.
class LearningChannel final : public ForwardingChannel {
 public:
  using Observer =
      std::function<void(const PjtCommand&, const PjtReply&, std::optional<PowerState>)>;

  LearningChannel(std::shared_ptr<ProjectorChannel> inner, Observer observer)
      : ForwardingChannel(std::move(inner)), observer_(std::move(observer)) {}

  PjtReply Execute(const PjtCommand& command) override {
    const PjtReply reply = Inner().Execute(command);
    observer_(command, reply, Power());
    return reply;
  }

 private:
  const Observer observer_;
};

}  // namespace AdvancedControl
