#pragma once

#include <array>
#include <deque>
#include <sys/epoll.h>
#include <vector>

#include "Namespace.h"
#include "fleet/FileEvents.h"
#include "fleet/FleetNetwork.h"
#include "fleet/HostNames.h"
#include "fleet/NoticeSocket.h"
#include "fleet/SocketConnection.h"

namespace AdvancedControl {

/// TCP connections and serial ports in an epoll loop. One thread calls `Wait` and then `Pass` in
/// turn. `Wait` and `Wake` may run at any time; the other functions must be called one at a time.
class SocketNetwork final : public FleetNetwork {
 public:
  void Connect(Peer peer, const std::string& host, std::uint16_t port) override;
  void OpenLine(Peer peer, const std::string& device, std::int32_t baud) override;
  void Send(Peer peer, std::string_view bytes) override;
  void Close(Peer peer) override;
  void GiveUp(Peer peer) override;

  /// Gives up the address of the peer's host name that it is connecting to, and connects to the
  /// next one. False if there is none.
  bool ConnectToNext(Peer peer);

  /// Listens for status notices; see `NoticeSocket::Open`.
  std::uint16_t ListenForNotices(const std::string& address, std::uint16_t port);

  /// Waits for an event, for `Wake`, or until the time `until`. Does not touch the connections.
  void Wait(SessionTime until) { events_.Wait(until); }
  /// Ends the wait under way or the next one.
  void Wake() const { events_.Wake(); }
  /// Passes on what happened during the last wait.
  void Pass(Listener& listener);

 private:
  using Stage = SocketConnection::Stage;
  struct Failure {
    enum class Kind : std::uint8_t { NotConnected, InUse, Closed };

    Peer peer;
    std::uint32_t attempt;
    Kind kind;
    ConnectionState problem;
  };

  SocketConnection& At(Peer peer);
  void ConnectByName(Peer peer);
  void Open(Peer peer, const SocketAddress& address);
  void Watch(Peer peer);
  void Fail(Peer peer, Failure::Kind kind, ConnectionState problem = ConnectionState::NotReachable);
  void PassNotices(Listener& listener);
  void PassEvent(const epoll_event& event, Listener& listener);
  void PassBytes(Peer peer, Listener& listener);
  void PassFailures(Listener& listener);
  void TakeNames();
  bool IsCurrent(Peer peer, std::uint32_t attempt) const;

  FileEvents events_;
  HostNames names_{events_.WakeFile()};
  NoticeSocket notices_;
  std::deque<SocketConnection> connections_;  ///< By peer.
  std::vector<Failure> failures_;             ///< To be told with the next `Pass`.
  std::array<char, 4096> buffer_{};
};

}  // namespace AdvancedControl
