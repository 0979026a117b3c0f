#pragma once

#include <cstdint>

#include <QByteArray>
#include <QObject>

class QIODevice;

/// What goes wrong with the replies of a server, whatever the projector answers.
struct LineFault {
  enum class Kind : std::uint8_t {
    None,
    Silent,   ///< Nothing is sent.
    Late,     ///< Each reply is sent after `amount` milliseconds.
    Cut,      ///< The connection is closed after `amount` bytes of the next reply.
    Garbage,  ///< Replies are replaced by other bytes.
    Trickle,  ///< Replies are sent byte by byte.
  };

  Kind kind = Kind::None;
  int amount = 0;

  friend bool operator==(const LineFault&, const LineFault&) = default;
};

/// A server's way to send its replies, with a fault that may change at any time.
class FaultyLine final : public QObject {
 public:
  /// The line owns this; the fault must live longer.
  FaultyLine(QIODevice& line, const LineFault& fault);

  void Send(const QByteArray& bytes);
  /// Closes the line as soon as all that was sent is on its way.
  void Close();
  /// Number of bytes sent that the other end has not taken yet.
  qint64 Backlog() const;

 private:
  void SendPart(const QByteArray& bytes);
  void TrickleOn();
  void CloseIfDone();

  QIODevice& line_;
  const LineFault& fault_;
  QByteArray trickling_;
  qint64 late_ = 0;  // bytes whose time has not come
  bool closes_ = false;
};
