#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Namespace.h"

class QIODevice;

namespace AdvancedControl {

/// What goes wrong with the replies of a server, regardless of the projector's answers.
struct LineFault {
  enum class Kind : std::uint8_t {
    None,
    Silent,   ///< Nothing is sent.
    Late,     ///< Each reply is sent after `amount` milliseconds.
    Cut,      ///< The next reply ends after `amount` bytes, and a TCP connection is then closed.
    Garbage,  ///< Replies are replaced by other bytes.
    Trickle,  ///< Replies are sent byte by byte.
  };

  Kind kind = Kind::None;
  int amount = 0;

  friend bool operator==(const LineFault&, const LineFault&) = default;
};

/// Sends the replies of a server with a fault, which may change at any time.
class FaultyLine {
 public:
  /// Both must outlive this object. Timers under way end when `line` is deleted.
  FaultyLine(QIODevice& line, const LineFault& fault) : line_(line), fault_(fault) {}
  FaultyLine(const FaultyLine&) = delete;
  FaultyLine& operator=(const FaultyLine&) = delete;

  void Send(std::string_view bytes);
  /// Closes a TCP connection once everything sent has been written to it; a serial line stays open.
  void Close();
  /// Number of bytes sent that the other end has not taken yet.
  std::size_t Backlog() const;

 private:
  void Write(std::string_view bytes);
  void SendNextByte();
  void CloseIfDone();

  QIODevice& line_;
  const LineFault& fault_;
  std::string trickling_;
  std::size_t late_ = 0;  // bytes that are delayed
  bool closes_ = false;
};

}  // namespace AdvancedControl
