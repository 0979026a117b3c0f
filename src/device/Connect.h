#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "ProjectorCommonExport.h"
#include "device/BoundedChannel.h"
#include "device/ModelDataIntake.h"
#include "device/ProjectorChannel.h"
#include "device/WireFrame.h"

/// A projector that speaks our wire (docs/wire.md) over TCP.
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

/// A projector that speaks our wire on a serial line.
struct SerialAddress {
  static constexpr std::int32_t kDefaultBaud = 19200;

  std::string device;  ///< Path of the port.
  std::int32_t baud = kDefaultBaud;

  friend bool operator==(const SerialAddress&, const SerialAddress&) = default;
};

/// One English sentence, without its full stop, that says what is wrong with a connection's
/// parameters.
struct AddressError {
  std::string text;

  friend bool operator==(const AddressError&, const AddressError&) = default;
};

using ProjectorAddress = std::variant<AddressError, TcpAddress, PjLinkAddress, SerialAddress>;

/// Reads connection parameters as `CPjtInterface::CopyData` takes them.
PROJECTOR_COMMON_EXPORT ProjectorAddress ParseConnection(const ConnectionData& data);

/// Reads an address as people write it: "tcp://HOST:PORT", "pjlink://HOST:PORT", "HOST:PORT",
/// "serial:///dev/ttyUSB0?BAUD" or "/dev/ttyUSB0?BAUD". Ports and speed may be left out. Without a
/// scheme, port 4352 and none stand for PJLink. An IPv6 address with a port stands in brackets.
PROJECTOR_COMMON_EXPORT ProjectorAddress ParseAddress(std::string_view text,
                                                      std::string_view password = {});

/// Whether the text is the name of a host or its IP address, without scheme and port.
PROJECTOR_COMMON_EXPORT bool IsHostAddress(std::string_view text);

/// The path of the serial port with that number, which counts from 0.
inline std::string SerialDevice(int number) { return "/dev/ttyS" + std::to_string(number); }

/// A way to the projector that connects with the first command, behind a `BoundedChannel`. That of
/// an `AddressError` leaves every command unanswered at once. Never null.
PROJECTOR_COMMON_EXPORT std::shared_ptr<ProjectorChannel> MakeChannel(
    const ProjectorAddress& address);

/// The bounds for a `BoundedChannel` around a way to that address.
PROJECTOR_COMMON_EXPORT BoundedChannel::Limits BoundsFor(const ProjectorAddress& address);

/// The same without a bound, for a host that puts a channel of its own around it and a
/// `BoundedChannel` around both, or for threads that may wait as long as the channel itself does:
/// `timeOut` for connecting and as much for an answer, or the channel's own times without.
PROJECTOR_COMMON_EXPORT std::shared_ptr<ProjectorChannel> MakeUnboundedChannel(
    const ProjectorAddress& address, std::optional<std::chrono::milliseconds> timeOut = {});
