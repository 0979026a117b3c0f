#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "simulator/FaultyLine.h"
#include "simulator/PjLinkResponder.h"

class QTcpSocket;

namespace AdvancedControl {

/// Serves a projector over PJLink on a TCP port.
///
/// Use it on the thread that creates it; it answers while that thread's event loop runs. The
/// projector's channel is called on that thread, and must not run the event loop.
class PROJECTOR_COMMON_EXPORT PjLinkServer {
 public:
  struct Options {
    std::string password{};  ///< Empty if none is required.
    int connections = 8;     ///< Served at once; see `TcpListener` for further ones.
    std::chrono::milliseconds idle{
        30'000};  ///< Time without a request after which a connection is closed.
    ServedProjector served{};
  };

  PjLinkServer(std::shared_ptr<ProjectorChannel> projector, Options options);
  ~PjLinkServer();
  PjLinkServer(const PjLinkServer&) = delete;
  PjLinkServer& operator=(const PjLinkServer&) = delete;

  /// Starts listening. `address` is numeric; port 0 chooses a free one. False on failure.
  bool Listen(const std::string& address, int port);
  /// The port; 0 while not listening.
  int Port() const;
  /// Takes a connected socket and serves it until it closes, whatever the number of connections.
  void Serve(std::unique_ptr<QTcpSocket> socket);

  /// Sets a fault of all replies and the greeting.
  void SetFault(const LineFault& fault);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace AdvancedControl
