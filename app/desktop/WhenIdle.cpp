#include "app/desktop/WhenIdle.h"

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kLater{50};

}  // namespace

WhenIdle::WhenIdle(std::function<bool()> isWaiting, QObject* parent)
    : QObject(parent), isWaiting_(std::move(isWaiting)) {
  again_.setInterval(kLater);
  connect(&again_, &QTimer::timeout, this, &WhenIdle::Try);
}

void WhenIdle::Run(std::function<void()> act) {
  act_ = std::move(act);
  Try();
  if (!act_) return;
  again_.start();
  Q_EMIT Waiting(true);
}

void WhenIdle::Try() {
  if (isWaiting_()) return;
  if (again_.isActive()) {
    again_.stop();
    Q_EMIT Waiting(false);
  }
  std::exchange(act_, {})();
}
