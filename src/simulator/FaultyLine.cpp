#include "simulator/FaultyLine.h"

#include <QIODevice>
#include <QTcpSocket>
#include <QTimer>

namespace AdvancedControl {

void FaultyLine::Send(std::string_view bytes) {
  if (bytes.empty() || closes_) return;
  switch (fault_.kind) {
    case LineFault::Kind::Silent:
      break;
    case LineFault::Kind::None:
      Write(bytes);
      break;
    case LineFault::Kind::Late:
      late_ += bytes.size();
      QTimer::singleShot(fault_.amount, &line_, [this, late = std::string(bytes)] {
        late_ -= late.size();
        Write(late);
        CloseIfDone();
      });
      break;
    case LineFault::Kind::Cut:
      Write(bytes.substr(0, static_cast<std::size_t>(fault_.amount)));
      Close();
      break;
    case LineFault::Kind::Garbage:
      Write(std::string(bytes.size(), '?'));
      break;
    case LineFault::Kind::Trickle:
      trickling_ += bytes;
      // Otherwise a timer is already sending the rest.
      if (trickling_.size() == bytes.size()) SendNextByte();
      break;
  }
}

void FaultyLine::Close() {
  closes_ = qobject_cast<QTcpSocket*>(&line_) != nullptr;
  CloseIfDone();
}

std::size_t FaultyLine::Backlog() const {
  return static_cast<std::size_t>(line_.bytesToWrite()) + trickling_.size() + late_;
}

void FaultyLine::Write(std::string_view bytes) {
  if (line_.isWritable()) line_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void FaultyLine::SendNextByte() {
  Write(trickling_.substr(0, 1));
  trickling_.erase(0, 1);
  if (trickling_.empty()) return CloseIfDone();
  QTimer::singleShot(1, &line_, [this] { SendNextByte(); });
}

void FaultyLine::CloseIfDone() {
  if (!closes_ || late_ > 0 || !trickling_.empty()) return;
  static_cast<QTcpSocket&>(line_).disconnectFromHost();
}

}  // namespace AdvancedControl
