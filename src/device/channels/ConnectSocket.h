#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "Namespace.h"
#include "device/ConnectionState.h"

class QDeadlineTimer;
class QTcpSocket;

namespace AdvancedControl {

/// A connection to `host`, a name or an address, that holds at most `readBuffer` bytes which nobody
/// has read; or null, and `problem` says why. Blocks until the deadline at most, of which looking
/// up a name takes what it needs; then each of its addresses has its share of the rest.
std::unique_ptr<QTcpSocket> ConnectSocket(const std::string& host, std::uint16_t port,
                                          std::int64_t readBuffer, const QDeadlineTimer& deadline,
                                          ConnectionState& problem);

}  // namespace AdvancedControl
