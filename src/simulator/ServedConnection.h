#pragma once

#include <chrono>
#include <cstddef>

#include <QObject>

#include "Namespace.h"

namespace AdvancedControl {

/// One connection of a client, which owns its socket or line. Deletes itself when that is closed.
class ServedConnection : public QObject {
 public:
  using Clock = std::chrono::steady_clock;

  /// How long nothing has come over a connection before it may be closed for a new one.
  static constexpr std::chrono::milliseconds kIdle{100};

  /// Whether it may be closed for a new one: it owes no reply, and nothing has come for a moment.
  bool IsIdle() const { return Backlog() == 0 && Clock::now() - lastRead_ >= kIdle; }
  /// When something came last; at first, when the connection was opened.
  Clock::time_point LastRead() const { return lastRead_; }

 protected:
  void NoteRead() { lastRead_ = Clock::now(); }
  /// Number of bytes sent that the other end has not taken yet.
  virtual std::size_t Backlog() const = 0;

 private:
  Clock::time_point lastRead_ = Clock::now();
};

}  // namespace AdvancedControl
