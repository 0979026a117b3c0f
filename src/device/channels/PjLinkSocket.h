#pragma once

#include <functional>
#include <memory>

#include "Namespace.h"
#include "device/protocol/PjLinkConnection.h"

namespace AdvancedControl {

/// Performs the steps of a PJLink session, and reports to the session's connection what happens.
/// Use from one thread at a time.
class PjLinkSocket {
 public:
  PjLinkSocket() = default;
  virtual ~PjLinkSocket() = default;
  PjLinkSocket(const PjLinkSocket&) = delete;
  PjLinkSocket& operator=(const PjLinkSocket&) = delete;

  virtual bool IsOpen() const = 0;
  virtual void Perform(const SessionStep& step) = 0;
  /// Reads what arrived without a request: it answers no later request, and may be the end of the
  /// connection. Does not wait.
  virtual void ReceiveUnsolicited() = 0;
  virtual void Close() = 0;
};

/// Makes the socket of a session, which reports to `connection`.
using MakePjLinkSocket = std::function<std::unique_ptr<PjLinkSocket>(PjLinkConnection& connection)>;

}  // namespace AdvancedControl
