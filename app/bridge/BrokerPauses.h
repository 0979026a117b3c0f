#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

#include "app/bridge/Broker.h"

/// How long to wait before a connection to the broker that was lost is replaced. A broker that ends
/// each connection soon is called less and less often.
class BrokerPauses {
 public:
  void Connected() { connected_ = Clock::now(); }
  /// The pause after the connection that was lost now.
  std::chrono::milliseconds Next() {
    if (Clock::now() - connected_ >= kLasting) next_ = Broker::kFirstPause;
    return std::exchange(next_, std::min(next_ * 2, Broker::kLongestPause));
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::seconds kLasting{30};

  Clock::time_point connected_{};  ///< When the last connection was made.
  std::chrono::milliseconds next_ = Broker::kFirstPause;
};
