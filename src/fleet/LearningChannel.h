#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "Namespace.h"
#include "device/channels/ForwardingChannel.h"

namespace AdvancedControl {

/// Reports each command of another channel and its reply, for example to a fleet. `told` is called
/// on the thread of the command.
class LearningChannel final : public ForwardingChannel {
 public:
  using Told = std::function<void(const PjtCommand&, const PjtReply&, std::optional<PowerState>)>;

  LearningChannel(std::shared_ptr<ProjectorChannel> inner, Told told)
      : ForwardingChannel(std::move(inner)), told_(std::move(told)) {}

  PjtReply Execute(const PjtCommand& command) override {
    const PjtReply reply = Inner().Execute(command);
    told_(command, reply, Power());
    return reply;
  }

 private:
  const Told told_;
};

}  // namespace AdvancedControl
