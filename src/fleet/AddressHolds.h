#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/VisitQueue.h"

namespace AdvancedControl {

/// Lets only one connection at a time use an address. Those who want to connect wait in a line for
/// it. Any thread.
class PROJECTOR_FLEET_EXPORT AddressHolds {
 public:
  using Address = VisitQueue::Address;
  enum class Turn : std::uint8_t {
    Next,  ///< Before all `Last` ones: somebody waits for the result.
    Last,
  };
  class Hold;

  /// `onUse` is called before an address is held for the first time, and again when nobody holds it
  /// or waits for it any more. It must not call this object.
  explicit AddressHolds(std::function<void(const Address&, bool isHeld)> onUse)
      : onUse_(std::move(onUse)) {}
  /// `onUse` is not called any more once this has returned. Holds still work.
  void Detach();

 private:
  using Line = std::vector<Hold*>;

  void Add(Hold& hold);
  void Remove(Hold& hold);

  std::mutex mutex_;
  std::condition_variable changed_;
  std::function<void(const Address&, bool isHeld)> onUse_;  ///< Under the mutex.
  std::map<Address, Line> lines_;  ///< Under the mutex. The first of each line holds the address.
};

/// A place in the line for an address, until it is destroyed.
class PROJECTOR_FLEET_EXPORT AddressHolds::Hold {
 public:
  /// `onHeld` is called when the address is held, on any thread. It must not call this object.
  [[nodiscard]] Hold(
      std::shared_ptr<AddressHolds> holds, Address address, Turn turn,
      std::function<void()> onHeld = [] {});
  ~Hold();
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;

  bool IsHeld() const;
  /// Whether others wait for the address.
  bool IsWanted() const;
  /// Blocks until the address is held, for at most this time. False if it is not held then.
  bool WaitFor(std::chrono::milliseconds time) const;

 private:
  friend class AddressHolds;

  /// Under the mutex of the holds.
  void TakeTurn();

  const std::shared_ptr<AddressHolds> holds_;
  const Address address_;
  const Turn turn_;
  const std::function<void()> onHeld_;
  bool isHeld_ = false;  ///< Under the mutex of the holds.
};

}  // namespace AdvancedControl
