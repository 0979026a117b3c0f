#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "device/channels/ForwardingChannel.h"
#include "fleet/AddressHold.h"
#include "fleet/FleetTarget.h"

namespace AdvancedControl {

/// Holds the projector's address as long as the inner channel has a connection, so that nobody else
/// connects meanwhile. A command waits until the address is free, but not for longer than half of
/// its time; then it is unanswered and was not sent. If others wait for the address, the connection
/// is closed as soon as it is idle, see `BoundedChannel::Limits::tend`; also if the projector has
/// not answered.
class PROJECTOR_FLEET_EXPORT HoldingChannel final : public ForwardingChannel {
 public:
  /// `time` is that of a command.
  HoldingChannel(std::shared_ptr<ProjectorChannel> inner, const FleetTarget& target,
                 std::chrono::milliseconds time);
  /// Closes the connection, then releases the address.
  ~HoldingChannel() override;

  PjtReply Execute(const PjtCommand& command) override;
  void GiveUpAfter(std::chrono::milliseconds time) override;
  /// `ConnectionState::Connecting` while a command waits, and after it has waited in vain.
  ConnectionState Connection() const override;
  bool UseIdleTime() override;
  bool TendConnection(std::chrono::milliseconds unused) override;

 private:
  const AddressHold::Address address_;
  const std::chrono::milliseconds time_;
  std::chrono::milliseconds longest_ = time_;
  std::optional<AddressHold> hold_;
  bool isSilent_ = false;  ///< The last command was not answered.
  /// Instead of that of the inner channel.
  std::atomic<std::optional<ConnectionState>> state_;
};

}  // namespace AdvancedControl
