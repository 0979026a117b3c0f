#include "app/profiles/PatientChannel.h"

PjtReply PatientChannel::Execute(const PjtCommand& command) {
  last_ = {.result = RefusedResult(command.operation), .answered = false, .unsent = true};
  wasThere_ = wasThere_ || Connection() == ConnectionState::Connected;
  const bool isAbsolute = IsAbsolute(command.operation);
  const int attempts = IsRead(command.operation) ? kReadAttempts : kChangeAttempts;
  const auto begin = time_.now();
  auto asked = begin;
  bool wasSent = false;
  for (int attempt = 0; attempt < attempts && !gone_; ++attempt) {
    if (attempt > 0) {
      const bool mayRepeat = wasThere_ && (isAbsolute || !wasSent);
      if (!mayRepeat || time_.now() >= begin + 2 * timeOut_) break;
      time_.sleepUntil(asked + kPause);
    }
    asked = time_.now();
    last_ = Inner().Execute(command);
    wasThere_ = wasThere_ || last_.answered || hasGreeted_();
    wasSent = wasSent || last_.answered || !last_.unsent;
    if (last_.answered) break;
  }
  last_.unsent = !wasSent;
  hasSentChange_ = hasSentChange_ || (wasSent && !IsRead(command.operation));
  // An unanswered step does not mean that the projector is gone; the next command will show it.
  gone_ = gone_ || (!last_.answered && (isAbsolute || !wasSent || !wasThere_));
  return last_;
}

void PatientChannel::GiveUp() {
  gone_ = true;
  last_ = {.answered = false, .unsent = true};
}
