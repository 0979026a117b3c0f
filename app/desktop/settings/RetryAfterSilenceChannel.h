#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "app/desktop/projectors/ProjectorSession.h"
#include "app/profiles/ProjectorAccess.h"
#include "device/channels/ForwardingChannel.h"

/// A session's channel for work on many settings. The session's own channel answers for a projector
/// that was silent just before; this one sends the next command all the same, as long as `goesOn`
/// returns true.
class RetryAfterSilenceChannel : public ForwardingChannel {
 public:
  RetryAfterSilenceChannel(const ProjectorSession& session, std::function<bool()> goesOn)
      : ForwardingChannel(session.Channel()),
        timeOut_(session.Bounds().timeOut),
        goesOn_(std::move(goesOn)) {}

  // Restores the session's time-out for the other users of its channel.
  ~RetryAfterSilenceChannel() override { Inner().GiveUpAfter(timeOut_); }
  RetryAfterSilenceChannel(const RetryAfterSilenceChannel&) = delete;
  RetryAfterSilenceChannel& operator=(const RetryAfterSilenceChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override {
    ForgetSilence();
    const PjtReply reply = Inner().Execute(command);
    silent_ = !reply.answered;
    return reply;
  }
  void Announce(std::span<const PjtCommand> reads) override {
    ForgetSilence();
    Inner().Announce(reads);
  }

 private:
  void ForgetSilence() {
    if (std::exchange(silent_, false) && goesOn_()) Inner().Abandon();
  }

  std::chrono::milliseconds timeOut_;
  std::function<bool()> goesOn_;
  bool silent_ = true;  // the projector may have been silent before
};

/// A channel to a projector that repeats reads whose answer got lost, and considers the projector
/// gone after the session's time-out.
inline std::shared_ptr<PatientChannel> MakePatientChannel(const ProjectorSession& session,
                                                          std::function<bool()> goesOn) {
  return std::make_shared<PatientChannel>(
      std::make_shared<RetryAfterSilenceChannel>(session, std::move(goesOn)),
      session.Bounds().timeOut);
}
