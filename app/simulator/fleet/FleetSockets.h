#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Sockets on the loopback interface that do not block. The caller closes the descriptors that it
/// gets; −1 means failure, and errno has the reason. Addresses and ports are in the machine's byte
/// order: 0x7F000001 is 127.0.0.1.
namespace FleetSockets {

struct Endpoint {
  std::uint32_t address = 0;
  std::uint16_t port = 0;
};

/// Listens on the port at every loopback address; 0 chooses a free port.
int Listen(std::uint16_t port);
/// The next connection; −1 with `EAGAIN` if none waits.
int Accept(int listener);
/// Receives datagrams to the port at every loopback address.
int OpenDatagrams(std::uint16_t port);

/// The address and port of this end.
Endpoint LocalEndpoint(int socket);
/// Closes a connection as if nothing listened there.
void Reset(int socket);

struct Datagram {
  Endpoint from;
  std::uint32_t to = 0;  ///< The address that it was sent to.
  std::string_view text;
};
/// The next datagram; nothing if none waits. Its text is valid until the next call.
std::optional<Datagram> Receive(int socket);
/// Sends from the address `from`, which must be one of the machine's.
bool Send(int socket, std::uint32_t from, const Endpoint& to, std::string_view text);

}  // namespace FleetSockets
