#pragma once

#include <memory>
#include <mutex>
#include <optional>

#include "device/PjLinkChannel.h"

/// The inputs of a projector on their way from the thread that asks to the one that shows them.
class ToldInputs {
 public:
  void Put(const SourceList& inputs);
  /// What was put last, once.
  std::optional<SourceList> Take();

 private:
  std::mutex mutex_;
  std::optional<SourceList> inputs_;
};

/// The way to a PJLink projector whose inputs nobody knows: asks for them once, as soon as it has
/// answered a command. So a silent projector is not asked, and the first value does not wait.
class InputAskingChannel : public ProjectorChannel {
 public:
  InputAskingChannel(std::shared_ptr<PjLinkChannel> inner, std::shared_ptr<ToldInputs> told)
      : inner_(std::move(inner)), told_(std::move(told)) {}

  PjtReply Execute(const PjtCommand& command) override;
  void Abandon() override { inner_->Abandon(); }
  ConnectionState Connection() const override { return inner_->Connection(); }

 private:
  enum class Asking { NotYet, Next, Done };

  const std::shared_ptr<PjLinkChannel> inner_;
  const std::shared_ptr<ToldInputs> told_;
  Asking asking_ = Asking::NotYet;
};
