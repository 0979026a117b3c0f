#include "pages/common/WaitWatch.h"

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kTick{50};
constexpr int kBlink = 4;  // ticks

}  // namespace

WaitWatch::WaitWatch(std::function<bool()> waits, std::function<void(bool)> tell)
    : waits_(std::move(waits)), tell_(std::move(tell)) {}

void WaitWatch::Start() {
  ticks_ = 0;
  if (timer_ == 0) timer_ = startTimer(kTick);
}

void WaitWatch::Stop() {
  if (timer_ != 0) killTimer(std::exchange(timer_, 0));
  TellOver();
}

void WaitWatch::TellOver() {
  if (std::exchange(told_, false)) tell_(false);
}

void WaitWatch::timerEvent(QTimerEvent*) {
  if (!waits_()) {
    ticks_ = 0;
    TellOver();
  } else if (++ticks_ >= kBlink) {
    told_ = true;
    tell_(true);
  }
}
