#pragma once

#include <array>
#include <chrono>
#include <sys/epoll.h>
#include <unordered_map>
#include <vector>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/FleetNetwork.h"
#include "fleet/NameResolver.h"
#include "fleet/NoticeSocket.h"

namespace AdvancedControl {

/// TCP connections and serial ports in an epoll loop. One thread calls `Wait` and then `Pass` in
/// turn. `Wait` and `Wake` may run at any time; the other functions must be called one at a time.
class SocketNetwork final : public FleetNetwork {
 public:
  SocketNetwork();
  ~SocketNetwork() override;
  SocketNetwork(const SocketNetwork&) = delete;
  SocketNetwork& operator=(const SocketNetwork&) = delete;

  void Connect(Peer peer, const std::string& host, std::uint16_t port) override;
  void OpenLine(Peer peer, const std::string& device, std::int32_t baud) override;
  void Send(Peer peer, std::string_view bytes) override;
  void Close(Peer peer) override;

  /// Listens for status notices; see `NoticeSocket::Open`.
  std::uint16_t ListenForNotices(const std::string& address, std::uint16_t port);

  /// Waits until something happens, or until then, or for `Wake`. Touches no connection.
  void Wait(SessionTime until);
  /// Ends the wait under way or the next one.
  void Wake() const;
  /// Passes on what happened during the last wait.
  void Pass(Listener& listener);

 private:
  enum class Stage : std::uint8_t { None, LookingUp, Connecting, Open, Failed };

  struct Link {
    int file = -1;
    bool isLine = false;           ///< A serial port, and not a socket.
    std::uint32_t generation = 0;  ///< Grows with each connection, so that late events are known.
    Stage stage = Stage::None;
    std::uint16_t port = 0;
    std::string name{};  ///< Of the host, where it is one.
  };
  /// The addresses of a name. If one cannot be connected to, the next one is tried next time.
  struct Known {
    std::vector<SocketAddress> addresses;
    std::size_t next = 0;
    SessionTime time{};
  };
  struct Failure {
    enum class Kind : std::uint8_t { NotConnected, InUse, Closed };

    Peer peer;
    std::uint32_t generation;
    Kind kind;
    ConnectionState problem;
  };

  Link& LinkOf(Peer peer);
  void ConnectByName(Peer peer);
  void Open(Peer peer, const SocketAddress& address);
  void WatchFile(Peer peer);
  void Fail(Peer peer, Failure::Kind kind, ConnectionState problem = ConnectionState::NotReachable);
  void PassNotices(Listener& listener);
  void PassEvent(const epoll_event& event, Listener& listener);
  void PassBytes(Peer peer, Listener& listener);
  void TakeNames();
  bool IsCurrent(Peer peer, std::uint32_t generation) const;

  const int epoll_;
  const int wakes_;
  NameResolver resolver_;
  NoticeSocket notices_;
  std::vector<Link> links_;  ///< By peer.
  std::unordered_map<std::string, Known> names_;
  std::vector<Failure> failures_;  ///< To be told with the next `Pass`.
  std::array<epoll_event, 64> events_{};
  int count_ = 0;
  std::array<char, 4096> buffer_{};
};

}  // namespace AdvancedControl
