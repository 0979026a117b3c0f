#pragma once

#include <functional>

#include <QObject>

/// Tells when a dialog has waited for its projector for longer than a blink.
class WaitWatch final : public QObject {
 public:
  /// `waits` says whether it waits now. `tell` is told true again and again while the wait is long,
  /// and false once when it is over; after short waits nothing.
  WaitWatch(std::function<bool()> waits, std::function<void(bool)> tell);

  void Start();
  void Stop();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void TellOver();

  std::function<bool()> waits_;
  std::function<void(bool)> tell_;
  int timer_ = 0;
  int ticks_ = 0;
  bool told_ = false;
};
