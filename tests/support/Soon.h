#pragma once

#include <chrono>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

/// Runs the event loop until `isSo` returns true, for up to a minute: on a slow machine everything
/// takes longer.
bool Soon(auto isSo) {
  const QDeadlineTimer end(std::chrono::minutes(1));
  while (!isSo()) {
    if (end.hasExpired()) return false;
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QThread::msleep(1);
  }
  return true;
}
