#pragma once

#include <cstdint>

/// Sockets of a program that serves many simulated projectors from one port, each at a loopback
/// address of its own. A failure is −1, and errno has the reason. The caller closes what it gets.
namespace LoopbackSocket {

/// A socket of this type (`SOCK_STREAM`, …) that does not block, bound to a port of every address
/// of the loopback interface, and of no other; 0 chooses a free port.
int Open(int type, std::uint16_t port);
/// Accepts connections at such a port.
int Listen(std::uint16_t port);

}  // namespace LoopbackSocket
