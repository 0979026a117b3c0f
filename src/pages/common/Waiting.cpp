#include "pages/common/Waiting.h"

#include <chrono>
#include <utility>

#include "pages/common/StatusLine.h"

namespace AdvancedControl {

namespace {

constexpr std::chrono::milliseconds kTick{50};
constexpr int kBlink = 4;  // in ticks of the timer

}  // namespace

Waiting::Waiting(Dialog dialog) : dialog_(std::move(dialog)) {}

Waiting::~Waiting() = default;

StatusLine& Waiting::MakeLine(QWidget* parent) {
  delete line_;
  line_ = new StatusLine(parent);
  connect(line_, &StatusLine::Retry, this, [this] {
    line_->ShowProgress({});
    dialog_.projector().AllowRetry();
    dialog_.retry();
  });
  return *line_;
}

void Waiting::OnBusy() {
  RestartTally();
  ticks_ = 0;
  if (timer_ == 0) timer_ = startTimer(kTick);
}

void Waiting::OnIdle(bool left) {
  if (timer_ != 0) killTimer(std::exchange(timer_, 0));
  if (shown_) Show(false);
  const CPjtInterface& projector = dialog_.projector();
  const bool isNews = projector.Sent().commands != before_.commands;
  if (line_ != nullptr && left) {
    line_->Say({});
  } else if (line_ != nullptr && (isNews || line_->HasSomethingToSay())) {
    line_->ShowOutcome(projector, before_);
  }
  dialog_.idle(left);
  if (TakeStale()) dialog_.readAgain(left);
}

void Waiting::RestartTally() { before_ = dialog_.projector().Sent(); }

void Waiting::OnLeave() { abandoned_ = dialog_.projector().Abandon(); }

void Waiting::OnReturn() { abandoned_.reset(); }

void Waiting::timerEvent(QTimerEvent*) {
  if (dialog_.projector().IsWaiting()) {
    if (++ticks_ >= kBlink) Show(true);
  } else {
    ticks_ = 0;
    if (shown_) Show(false);
  }
}

void Waiting::Show(bool waiting) {
  shown_ = waiting;
  dialog_.show(waiting);
  if (line_ != nullptr) line_->ShowProgress(waiting ? dialog_.text() : QString());
}

}  // namespace AdvancedControl
