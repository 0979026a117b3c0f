#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "app/host/ProjectorSession.h"
#include "app/profiles/ProjectorAccess.h"

/// A session's channel as work on many settings needs it: a command after an unanswered one is
/// really sent, where the session spares a projector that was silent just now. Once `goesOn` says
/// no, it is not.
class AfreshChannel : public ProjectorChannel {
 public:
  AfreshChannel(const ProjectorSession& session, std::function<bool()> goesOn)
      : inner_(session.Channel()), timeOut_(session.Bounds().timeOut), goesOn_(std::move(goesOn)) {}

  // Others who use the session's channel have its own time.
  ~AfreshChannel() override { inner_->GiveUpAfter(timeOut_); }
  AfreshChannel(const AfreshChannel&) = delete;
  AfreshChannel& operator=(const AfreshChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override {
    TryAfresh();
    const PjtReply reply = inner_->Execute(command);
    silent_ = !reply.answered;
    return reply;
  }
  void Announce(std::span<const PjtCommand> reads) override {
    TryAfresh();
    inner_->Announce(reads);
  }
  void GiveUpAfter(std::chrono::milliseconds time) override { inner_->GiveUpAfter(time); }
  void Abandon() override { inner_->Abandon(); }
  ConnectionState Connection() const override { return inner_->Connection(); }
  std::optional<SourceList> Inputs() override { return inner_->Inputs(); }
  std::optional<PowerState> Power() const override { return inner_->Power(); }

 private:
  void TryAfresh() {
    if (std::exchange(silent_, false) && goesOn_()) inner_->Abandon();
  }

  std::shared_ptr<ProjectorChannel> inner_;
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
