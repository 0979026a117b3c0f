#pragma once

#include <chrono>
#include <cstddef>

#include <QObject>

#include "Namespace.h"

namespace AdvancedControl {

/// The connection of a client. Owns its socket or line, and deletes itself when that is closed.
class ServedConnection : public QObject {
 public:
  using Clock = std::chrono::steady_clock;

  /// Time without received data after which a connection may be closed in favour of a new one.
  static constexpr std::chrono::milliseconds kIdle{100};

  /// Whether it may be closed in favour of a new one: it owes no reply and has received nothing for
  /// a moment.
  bool IsIdle() const { return Backlog() == 0 && Clock::now() - lastRead_ >= kIdle; }
  /// When data was last received; initially, when the connection was opened.
  Clock::time_point LastRead() const { return lastRead_; }

 protected:
  void NoteRead() { lastRead_ = Clock::now(); }
  /// Number of bytes sent that have not been transmitted yet.
  virtual std::size_t Backlog() const = 0;

 private:
  Clock::time_point lastRead_ = Clock::now();
};

}  // namespace AdvancedControl
