#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"

/// A channel around another one that passes everything on. Channels that log, disturb or repeat
/// derive from it and override only what they change, so that none of them loses a member of
/// `ProjectorChannel` by forgetting it. Each member may be called from the threads that
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
  /// `inner` must not be null; it is shared with whoever else holds it.
  explicit ForwardingChannel(std::shared_ptr<ProjectorChannel> inner) : inner_(std::move(inner)) {}

  /// The channel that this one stands around.
  ProjectorChannel& Inner() const { return *inner_; }

 private:
  std::shared_ptr<ProjectorChannel> inner_;
};
