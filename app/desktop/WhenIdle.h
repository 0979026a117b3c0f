#pragma once

#include <functional>

#include <QObject>
#include <QTimer>

/// Runs what opens modal windows only while no dialog waits for its projector: a handler that waits
/// in an event loop below could not go on before the window is closed.
class WhenIdle : public QObject {
  Q_OBJECT

 public:
  /// `isWaiting` tells whether a dialog waits.
  WhenIdle(std::function<bool()> isWaiting, QObject* parent);

  /// Runs `act` now, or as soon as no dialog waits; the last one asked for takes the place of those
  /// that have not run yet.
  void Run(std::function<void()> act);

 Q_SIGNALS:
  /// Something has to wait, or has to no more.
  void Waiting(bool waiting);

 private:
  void Try();

  const std::function<bool()> isWaiting_;
  std::function<void()> act_;
  QTimer again_;
};
