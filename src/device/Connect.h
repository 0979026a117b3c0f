#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ModelDataIntake.h"
#include "device/ProjectorChannel.h"
#include "device/channels/BoundedChannel.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// A projector that speaks the protocol of docs/wire.md over TCP.
struct TcpAddress {
  std::string host;
  std::uint16_t port = Wire::kDefaultPort;

  friend bool operator==(const TcpAddress&, const TcpAddress&) = default;
};

/// A projector of any maker that speaks PJLink.
struct PjLinkAddress {
  static constexpr std::uint16_t kDefaultPort = 4352;

  std::string host;
  std::uint16_t port = kDefaultPort;
  std::string password;  ///< Empty for none.

  friend bool operator==(const PjLinkAddress&, const PjLinkAddress&) = default;
};

/// A projector that speaks the protocol of docs/wire.md on a serial line.
struct SerialAddress {
  static constexpr std::int32_t kDefaultBaud = 19200;

  std::string device;  ///< Path of the port.
  std::int32_t baud = kDefaultBaud;

  friend bool operator==(const SerialAddress&, const SerialAddress&) = default;
};

/// What is wrong with a connection's parameters: one English sentence without its full stop.
struct AddressError {
  std::string text;

  friend bool operator==(const AddressError&, const AddressError&) = default;
};

using ProjectorAddress = std::variant<AddressError, TcpAddress, PjLinkAddress, SerialAddress>;

// The functions below may be called from any thread.

/// Interprets connection parameters in the form that `CPjtInterface::CopyData` takes.
PROJECTOR_COMMON_EXPORT ProjectorAddress ParseConnection(const ConnectionData& data);

/// Parses an address as people write it: "tcp://HOST:PORT", "pjlink://HOST:PORT", "HOST:PORT",
/// "serial:///dev/ttyUSB0?BAUD" or "/dev/ttyUSB0?BAUD". Ports and speed are optional. Without a
/// scheme, port 4352 or no port means PJLink. An IPv6 address with a port is put in brackets.
PROJECTOR_COMMON_EXPORT ProjectorAddress ParseAddress(std::string_view text,
                                                      std::string_view password = {});

/// The path of a serial port; `number` counts from 0.
inline std::string SerialDevice(int number) { return "/dev/ttyS" + std::to_string(number); }

/// Makes a channel that connects with its first command, wrapped in a `BoundedChannel`. For an
/// `AddressError`, every command is unanswered at once. Never null.
PROJECTOR_COMMON_EXPORT std::shared_ptr<ProjectorChannel> MakeChannel(
    const ProjectorAddress& address);

/// The limits for a `BoundedChannel` around a channel to that address.
PROJECTOR_COMMON_EXPORT BoundedChannel::Limits BoundsFor(const ProjectorAddress& address);

/// The same without a `BoundedChannel`, for a host that puts its own channel in between, or for
/// threads that may block. `timeOut` limits the time for connecting, and separately the time for
/// an answer; without it the channel uses its own time-outs. Never null.
PROJECTOR_COMMON_EXPORT std::shared_ptr<ProjectorChannel> MakeUnboundedChannel(
    const ProjectorAddress& address, std::optional<std::chrono::milliseconds> timeOut = {});

}  // namespace AdvancedControl
