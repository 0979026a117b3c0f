#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Namespace.h"

class QIODevice;

namespace AdvancedControl {

/// What goes wrong with the replies of a server, whatever the projector answers.
struct LineFault {
  enum class Kind : std::uint8_t {
    None,
    Silent,   ///< Nothing is sent.
    Late,     ///< Each reply is sent after `amount` milliseconds.
    Cut,      ///< The next reply ends after `amount` bytes, and a connection with it.
    Garbage,  ///< Replies are replaced by other bytes.
    Trickle,  ///< Replies are sent byte by byte.
  };

  Kind kind = Kind::None;
  int amount = 0;

  friend bool operator==(const LineFault&, const LineFault&) = default;
};

/// A server's way to send its replies, with a fault that may change at any time.
class FaultyLine {
 public:
  /// Both must live as long as this. Timers that still run end with the line.
  /// children.
  FaultyLine(QIODevice& line, const LineFault& fault) : line_(line), fault_(fault) {}
  FaultyLine(const FaultyLine&) = delete;
  FaultyLine& operator=(const FaultyLine&) = delete;

  void Send(std::string_view bytes);
  /// Closes the line as soon as all that was sent is on its way.
  void Close();
  /// Number of bytes sent that the other end has not taken yet.
  std::size_t Backlog() const;

 private:
  void Write(std::string_view bytes);
  void TrickleOn();
  void CloseIfDone();

  QIODevice& line_;
  const LineFault& fault_;
  std::string trickling_;
  std::size_t late_ = 0;  // bytes whose time has not come
  bool closes_ = false;
};

}  // namespace AdvancedControl
