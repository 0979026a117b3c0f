#pragma once

#include <chrono>
#include <functional>

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QTimer>

#include "app/bridge/BridgeFleet.h"
#include "app/bridge/Metrics.h"
#include "app/bridge/MetricsListener.h"

/// Serves the metrics of a bridge, over HTTP and in a text file. Lives on the main thread.
class MetricsService {
 public:
  using Counting = std::function<BridgeCounts()>;

  /// `fleet` must outlive it; `count` returns what the bridge reports about itself now.
  MetricsService(const BridgeFleet& fleet, Counting count);
  /// Removes the text file.
  ~MetricsService();
  MetricsService(const MetricsService&) = delete;
  MetricsService& operator=(const MetricsService&) = delete;

  // Each starts, and returns one line with the error; empty on success.

  QString Listen(const QHostAddress& address, quint16 port);
  /// Replaces the file every 15 seconds.
  QString WriteTo(const QString& file);

 private:
  MetricsListener::Answer AnswerRequest(const HttpRequest& request);
  QByteArray Probe(std::size_t projector) const;
  const QByteArray& AllMetrics();
  void Write();

  const BridgeFleet& fleet_;
  const Counting count_;
  QByteArray rendered_;  ///< The last metrics, for clients that ask at about the same time.
  std::chrono::steady_clock::time_point renderedAt_{};
  MetricsListener listener_;
  QString file_;
  QTimer writing_;
  bool failedToWrite_ = false;
};
