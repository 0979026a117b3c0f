#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "simulator/FaultyLine.h"
#include "simulator/PjLinkResponder.h"

namespace AdvancedControl {

/// Lets a projector be controlled over PJLink: answers on a TCP port what clients ask.
///
/// Belongs to the thread that makes it, and answers while that thread's event loop runs. The
/// projector is asked from that thread and must not run the event loop while it answers.
class PROJECTOR_COMMON_EXPORT PjLinkServer {
 public:
  struct Options {
    std::string password{};  ///< Empty: none is wanted.
    int connections = 8;     ///< Served at once; see `TcpListener` for further ones.
    std::chrono::milliseconds idle{30'000};  ///< A connection without a request is closed then.
    ServedProjector served{};
  };

  PjLinkServer(std::shared_ptr<ProjectorChannel> projector, Options options);
  ~PjLinkServer();
  PjLinkServer(const PjLinkServer&) = delete;
  PjLinkServer& operator=(const PjLinkServer&) = delete;

  /// `address` is numeric; port 0 is any free one. False when the port cannot be had.
  bool Listen(const std::string& address, int port);
  /// The port that is listened on, 0 when none is.
  int Port() const;
  /// Ends listening and all connections.
  void Close();

  /// Of the greeting as of any reply.
  void SetFault(const LineFault& fault);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace AdvancedControl
