#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

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

/// The way to a PJLink projector whose inputs nobody knows: asks for them until it has them all, a
/// few exchanges before each read that follows an answer. So a silent projector is not asked, and
/// no read of a slow one waits for long. After a failure the next 10 seconds are left free, after
/// another one twice as many, and so on, up to 2 minutes.
class InputAskingChannel : public ProjectorChannel {
 public:
  InputAskingChannel(std::shared_ptr<PjLinkChannel> inner, std::shared_ptr<ToldInputs> told)
      : inner_(std::move(inner)), told_(std::move(told)) {}

  PjtReply Execute(const PjtCommand& command) override;
  void Abandon() override { inner_->Abandon(); }
  ConnectionState Connection() const override { return inner_->Connection(); }

 private:
  using Clock = std::chrono::steady_clock;

  void AskOn();
  /// One exchange; false when it brought nothing.
  bool AskNext();

  const std::shared_ptr<PjLinkChannel> inner_;
  const std::shared_ptr<ToldInputs> told_;
  std::vector<std::string> codes_;
  std::vector<PjLinkInput> inputs_;  ///< Of the first of `codes_`.
  bool isAnswering_ = false;         ///< As far as the last command tells.
  bool isDone_ = false;
  std::chrono::seconds pause_{10};
  Clock::time_point nextTry_{};
};
