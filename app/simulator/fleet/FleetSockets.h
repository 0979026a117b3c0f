#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// The sockets of a fleet, on the loopback interface. Descriptors do not block; whoever gets one
/// closes it. Where there is none, errno says why. Addresses and ports are numbers as people write
/// them, 0x7F000001 for 127.0.0.1.
namespace FleetSockets {

struct End {
  std::uint32_t address = 0;
  std::uint16_t port = 0;
};

/// Listens on the port at every loopback address, 0 for any that is free; −1 when it cannot be had.
int Listen(std::uint16_t port);
/// The next connection; −1 when none waits.
int Accept(int listener);
/// Takes datagrams to the port at every loopback address.
int Datagrams(std::uint16_t port);

/// The address and port of this end.
End LocalEnd(int socket);
/// Closes a connection as if nothing listened there.
void Reset(int socket);

struct Datagram {
  End from;
  std::uint32_t to = 0;  ///< The address that it was sent to.
  std::string_view text;
};
/// The next datagram, nothing when none waits. Its text is valid until the next call.
std::optional<Datagram> Receive(int socket);
/// Sends from one of the machine's addresses.
bool Send(int socket, std::uint32_t from, const End& to, std::string_view text);

}  // namespace FleetSockets
