#pragma once

#include <chrono>
#include <map>

#include <QByteArray>
#include <QString>

#include "app/bridge/Broker.h"
#include "app/bridge/ShareProfiles.h"

/// The bridges with other shares at the same broker, and how many of this bridge's projectors they
/// have too. Without network and clock.
class OtherShares {
 public:
  using Time = std::chrono::steady_clock::time_point;

  /// `projectors` must outlive it. A bridge that has said nothing for `longest` is gone.
  OtherShares(const ShareProfiles& projectors, std::chrono::milliseconds longest)
      : projectors_(projectors), longest_(longest) {}

  /// Takes the message of a holder of another share. One line if that has projectors of this bridge
  /// and was not there before; else empty.
  QString Take(const BrokerMessage& message, Time now);
  /// The projectors that bridges have that are there now, counted for each bridge.
  std::size_t Common(Time now) const;

 private:
  struct Other {
    QByteArray share{};  ///< As its message has it.
    std::size_t common = 0;
    Time heard{};
  };

  bool IsThere(const Other& other, Time now) const { return now - other.heard < longest_; }

  const ShareProfiles& projectors_;
  const std::chrono::milliseconds longest_;
  std::map<QByteArray, Other> others_{};  ///< By topic.
};
