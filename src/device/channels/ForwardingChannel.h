#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// A channel that forwards every call to another one. Channels that log, disturb or repeat commands
/// derive from it and override only what they change, so that they cannot forget to forward a
/// function of `ProjectorChannel`. Its functions may be called from the threads that
/// `ProjectorChannel` allows.
class PROJECTOR_COMMON_EXPORT ForwardingChannel : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override { return inner_->Execute(command); }
  void Announce(std::span<const PjtCommand> reads) override { inner_->Announce(reads); }
  void GiveUpAfter(std::chrono::milliseconds time) override { inner_->GiveUpAfter(time); }
  void Abandon() override { inner_->Abandon(); }
  ConnectionState Connection() const override { return inner_->Connection(); }
  std::optional<SourceList> Inputs() override { return inner_->Inputs(); }
  std::optional<PowerState> Power() const override { return inner_->Power(); }
  bool UseIdleTime() override { return inner_->UseIdleTime(); }
  bool TendConnection(std::chrono::milliseconds unused) override {
    return inner_->TendConnection(unused);
  }

 protected:
  /// `inner` must not be null. Ownership is shared.
  explicit ForwardingChannel(std::shared_ptr<ProjectorChannel> inner) : inner_(std::move(inner)) {}

  /// The wrapped channel.
  ProjectorChannel& Inner() const { return *inner_; }

 private:
  std::shared_ptr<ProjectorChannel> inner_;
};

}  // namespace AdvancedControl
