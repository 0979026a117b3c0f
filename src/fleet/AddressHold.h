#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/VisitQueue.h"

namespace AdvancedControl {

/// A place in the line for an address. Only the first one in the line may connect there, so that
/// the process never has two connections to a projector. Any thread.
class PROJECTOR_FLEET_EXPORT AddressHold {
 public:
  using Address = VisitQueue::Address;
  enum class Turn : std::uint8_t {
    Next,  ///< Before all that are `Last`, because somebody waits for the result.
    Last,
  };

  class Observer;

  /// `onHeld` is called when the address is held, on any thread. It must not use any hold.
  [[nodiscard]] explicit AddressHold(
      Address address, Turn turn = Turn::Last, std::function<void()> onHeld = [] {});
  /// Leaves the line. `onHeld` is not called after this.
  ~AddressHold();
  AddressHold(const AddressHold&) = delete;
  AddressHold& operator=(const AddressHold&) = delete;

  /// How many are in the line for the address, the holder included.
  static std::size_t LengthOfLine(const Address& address);

  /// Whether it is the first in the line.
  bool IsHeld() const;
  /// Whether others wait for the address.
  bool IsWanted() const;
  /// Blocks until the address is held, for at most this time. False if it is not held then.
  bool WaitFor(std::chrono::milliseconds time) const;

 private:
  struct Lines;
  static Lines& All();

  const Address address_;
  const Turn turn_;
  const std::function<void()> onHeld_;
};

/// Learns which addresses are held.
class AddressHold::Observer {
 public:
  /// `onUse` is called before an address is held by anybody, and again when nobody holds it any
  /// more; at once for those that are held now. It must not use any hold.
  explicit Observer(std::function<void(const Address&, bool isHeld)> onUse);
  /// `onUse` is not called any more.
  ~Observer();
  Observer(const Observer&) = delete;
  Observer& operator=(const Observer&) = delete;

 private:
  friend class AddressHold;

  const std::function<void(const Address&, bool isHeld)> onUse_;
};

}  // namespace AdvancedControl
