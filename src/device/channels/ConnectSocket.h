#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "Namespace.h"
#include "device/ConnectionState.h"

class QDeadlineTimer;
class QTcpSocket;

namespace AdvancedControl {

/// Connects to `host`, a name or an address. The socket buffers at most `readBuffer` unread bytes.
/// On failure returns null and sets `problem`. Blocks at most until the deadline: first to look up
/// the name, then for each of its addresses with an equal share of the remaining time. Use the
/// socket on the calling thread.
std::unique_ptr<QTcpSocket> ConnectSocket(const std::string& host, std::uint16_t port,
                                          std::int64_t readBuffer, const QDeadlineTimer& deadline,
                                          ConnectionState& problem);

}  // namespace AdvancedControl
