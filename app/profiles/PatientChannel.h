#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "device/channels/ForwardingChannel.h"
#include "fleet/JobLoop.h"

/// The clock and the pauses of a channel. A test steps them.
struct PatientTime {
  using Point = std::chrono::steady_clock::time_point;
  std::function<Point()> now = [] { return std::chrono::steady_clock::now(); };
  std::function<void(Point)> sleepUntil = &JobLoop::Pause;
};

/// Repeats unanswered commands, and detects that a projector is gone. A projector that has neither
/// greeted nor answered counts as gone after the first unanswered command, any other one after the
/// last repetition. From then on every command fails at once and is not sent.
///
/// A read is sent up to three times, and an absolute change up to twice. Any other change is
/// repeated only if it was never sent. Each attempt has the full time-out of the inner channel. No
/// repetition begins later than two time-outs after the first attempt, so a projector that falls
/// silent costs two time-outs, and not two for each command.
class PatientChannel : public ForwardingChannel {
 public:
  static constexpr int kReadAttempts = 3;
  static constexpr int kChangeAttempts = 2;
  static constexpr std::chrono::milliseconds kPause{50};  ///< Least time between two attempts.

  /// `timeOut` is the inner channel's time-out for an answer. `hasGreeted` is called after each
  /// attempt and returns whether the projector has greeted the inner channel.
  PatientChannel(
      std::shared_ptr<ProjectorChannel> inner, std::chrono::milliseconds timeOut,
      std::function<bool()> hasGreeted = [] { return false; }, PatientTime time = {})
      : ForwardingChannel(std::move(inner)),
        timeOut_(timeOut),
        hasGreeted_(std::move(hasGreeted)),
        time_(std::move(time)),
        wasThere_(Connection() == ConnectionState::Connected) {}

  PjtReply Execute(const PjtCommand& command) override;

  /// Treats the projector as gone, when the caller has found that out in another way.
  void GiveUp();
  bool IsGone() const { return gone_; }
  /// The reply to the last command; before the first command, one without an error.
  const PjtReply& Last() const { return last_; }
  /// Whether the last command was answered.
  bool HasAnswered() const { return last_.answered; }
  /// Whether a change was sent, whatever became of it.
  bool HasSentChange() const { return hasSentChange_; }
  /// Whether the last command was for something that the projector has, as far as that is known.
  bool IsOffered() const { return last_.offered; }

 private:
  const std::chrono::milliseconds timeOut_;
  const std::function<bool()> hasGreeted_;
  const PatientTime time_;
  bool wasThere_;  ///< It has greeted or answered.
  bool gone_ = false;
  bool hasSentChange_ = false;
  PjtReply last_;
};
