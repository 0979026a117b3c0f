#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "app/desktop/projectors/ProjectorSession.h"
#include "app/profiles/ProjectorAccess.h"
#include "device/channels/ForwardingChannel.h"

/// A session's channel as work on many settings needs it: a command after an unanswered one is
/// really sent, where the session spares a projector that was silent just now. Once `goesOn` says
/// no, it is not.
class AfreshChannel : public ForwardingChannel {
 public:
  AfreshChannel(const ProjectorSession& session, std::function<bool()> goesOn)
      : ForwardingChannel(session.Channel()),
        timeOut_(session.Bounds().timeOut),
        goesOn_(std::move(goesOn)) {}

  // Others who use the session's channel have its own time.
  ~AfreshChannel() override { Inner().GiveUpAfter(timeOut_); }
  AfreshChannel(const AfreshChannel&) = delete;
  AfreshChannel& operator=(const AfreshChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override {
    TryAfresh();
    const PjtReply reply = Inner().Execute(command);
    silent_ = !reply.answered;
    return reply;
  }
  void Announce(std::span<const PjtCommand> reads) override {
    TryAfresh();
    Inner().Announce(reads);
  }

 private:
  void TryAfresh() {
    if (std::exchange(silent_, false) && goesOn_()) Inner().Abandon();
  }

  std::chrono::milliseconds timeOut_;
  std::function<bool()> goesOn_;
  bool silent_ = true;  // it may have been so to others
};

/// The way to a projector that asks again where an answer got lost, and knows when it is gone:
/// after the session's own time-out.
inline std::shared_ptr<PatientChannel> MakePatient(const ProjectorSession& session,
                                                   std::function<bool()> goesOn) {
  return std::make_shared<PatientChannel>(
      std::make_shared<AfreshChannel>(session, std::move(goesOn)), session.Bounds().timeOut);
}
