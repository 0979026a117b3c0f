#include "simulator/FaultyLine.h"

#include <QIODevice>
#include <QTcpSocket>
#include <QTimer>

FaultyLine::FaultyLine(QIODevice& line, const LineFault& fault)
    : QObject(&line), line_(line), fault_(fault) {}

void FaultyLine::Send(const QByteArray& bytes) {
  if (bytes.isEmpty() || closes_) return;
  switch (fault_.kind) {
    case LineFault::Kind::None:
      line_.write(bytes);
      break;
    case LineFault::Kind::Silent:
      break;
    case LineFault::Kind::Late:
      late_ += bytes.size();
      QTimer::singleShot(fault_.amount, this, [this, bytes] {
        late_ -= bytes.size();
        SendPart(bytes);
      });
      break;
    case LineFault::Kind::Cut:
      line_.write(bytes.left(fault_.amount));
      Close();
      break;
    case LineFault::Kind::Garbage:
      line_.write(QByteArray(bytes.size(), '?'));
      break;
    case LineFault::Kind::Trickle:
      trickling_ += bytes;
      // Otherwise the rest is on its way already.
      if (trickling_.size() == bytes.size()) TrickleOn();
      break;
  }
}

void FaultyLine::Close() {
  closes_ = true;
  CloseIfDone();
}

qint64 FaultyLine::Backlog() const { return line_.bytesToWrite() + trickling_.size() + late_; }

void FaultyLine::SendPart(const QByteArray& bytes) {
  if (line_.isWritable()) line_.write(bytes);
  CloseIfDone();
}

void FaultyLine::TrickleOn() {
  const QByteArray next = trickling_.left(1);
  trickling_.remove(0, 1);
  if (!trickling_.isEmpty()) QTimer::singleShot(1, this, &FaultyLine::TrickleOn);
  SendPart(next);
}

void FaultyLine::CloseIfDone() {
  if (!closes_ || late_ > 0 || !trickling_.isEmpty()) return;
  if (auto* const socket = qobject_cast<QTcpSocket*>(&line_)) {
    socket->disconnectFromHost();
  } else {
    line_.close();
  }
}
