#pragma once

#include <chrono>
#include <map>

#include <QByteArray>
#include <QString>

#include "app/bridge/Broker.h"
#include "app/bridge/ShareProfiles.h"

/// The bridges with other shares on the same broker, and how many of this bridge's projectors they
/// also have. Has no network and no clock.
class OtherShares {
 public:
  using Time = std::chrono::steady_clock::time_point;

  /// `projectors` must outlive it. A bridge that has said nothing for `longest` is gone.
  OtherShares(const ShareProfiles& projectors, std::chrono::milliseconds longest)
      : projectors_(projectors), longest_(longest) {}

  /// Takes the message of a bridge with another share. Returns a warning of one line if that bridge
  /// is new and has projectors of this one; else an empty text.
  QString Take(const BrokerMessage& message, Time now);
  /// How many of this bridge's projectors the present other bridges have, added up.
  std::size_t Common(Time now) const;

 private:
  struct Other {
    QByteArray share{};  ///< As in its message.
    std::size_t common = 0;
    Time heard{};
  };

  bool IsThere(const Other& other, Time now) const { return now - other.heard < longest_; }

  const ShareProfiles& projectors_;
  const std::chrono::milliseconds longest_;
  std::map<QByteArray, Other> others_{};  ///< By topic.
};
