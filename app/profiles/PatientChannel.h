#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

#include "device/channels/ForwardingChannel.h"

/// The clock and the pauses of a channel. A test steps them.
struct PatientTime {
  using Point = std::chrono::steady_clock::time_point;
  std::function<Point()> now = [] { return std::chrono::steady_clock::now(); };
  std::function<void(Point)> sleepUntil = [](Point end) { std::this_thread::sleep_until(end); };
};

/// Repeats commands whose answers were lost, and knows when a projector is gone: one that has
/// neither greeted nor answered is gone after the first command, any other after the last
/// repetition. Then every command is unanswered at once, and unsent.
///
/// A command always has the whole time of the channel behind. A read is asked up to three times, a
/// change that is absolute up to twice, any other only once, unless it never left. A repetition
/// begins only within two time-outs, so that a projector that falls silent costs two of them and
/// not one per command.
class PatientChannel : public ForwardingChannel {
 public:
  static constexpr int kReadAttempts = 3;
  static constexpr int kChangeAttempts = 2;
  static constexpr std::chrono::milliseconds kPause{50};  ///< At least, from one to the next.

  /// `timeOut` is that of the channel behind, for one answer. `hasGreeted` says whether the
  /// projector has greeted that channel; it is called after each command.
  PatientChannel(
      std::shared_ptr<ProjectorChannel> inner, std::chrono::milliseconds timeOut,
      std::function<bool()> hasGreeted = [] { return false; }, PatientTime time = {})
      : ForwardingChannel(std::move(inner)),
        timeOut_(timeOut),
        hasGreeted_(std::move(hasGreeted)),
        time_(std::move(time)),
        wasThere_(Connection() == ConnectionState::Connected) {}

  PjtReply Execute(const PjtCommand& command) override;

  /// Counts the projector for gone, as somebody else found out.
  void GiveUp();
  bool IsGone() const { return gone_; }
  /// The reply to the last command; before the first one that says nothing wrong.
  const PjtReply& Last() const { return last_; }
  /// Whether the last command was answered.
  bool HasAnswered() const { return last_.answered; }
  /// Whether it was to something that the projector has, as far as that is known.
  bool IsOffered() const { return last_.offered; }

 private:
  const std::chrono::milliseconds timeOut_;
  const std::function<bool()> hasGreeted_;
  const PatientTime time_;
  bool wasThere_;  ///< It has greeted or answered.
  bool gone_ = false;
  PjtReply last_;
};
