#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include "app/simulator/fleet/FleetConnection.h"
#include "app/simulator/fleet/FleetProjectors.h"
#include "app/simulator/fleet/FleetSockets.h"

/// Serves many projectors over our wire and PJLink while the event loop runs: a port of each at
/// every loopback address. A connection belongs to the projector at the address that it was made
/// to; where there is none, it is reset. Answers the search of PJLink class 2 and sends its status
/// notices.
class FleetServer final : public QObject {
 public:
  struct Options {
    std::uint16_t wirePort = 0;                ///< 0 takes one that is free.
    std::uint16_t pjLinkPort = 0;              ///< Of TCP and UDP.
    std::string password;                      ///< Of PJLink; empty for none.
    std::optional<FleetSockets::End> notices;  ///< Who gets status notices.
  };

  /// `projectors` must live as long as this.
  FleetServer(FleetProjectors& projectors, Options options);
  ~FleetServer() override;

  /// Whether the ports could be had; errno says why not.
  bool Listen();
  std::uint16_t WirePort() const { return options_.wirePort; }
  std::uint16_t PjLinkPort() const { return options_.pjLinkPort; }

  /// Ends a projector's connections without a word, as when it loses its network.
  void Disconnect(std::size_t projector);
  // To whoever gets notices.
  /// Tells that the projector is on the network, and its state.
  void TellPresence(std::size_t projector);
  /// Tells what has changed of its state since.
  void TellChanges(std::size_t projector);

 private:
  using Clock = std::chrono::steady_clock;
  using Action = std::function<void()>;

  void HandleEvents();
  bool Watch(int descriptor, std::uint32_t events);
  void AcceptAll(int listener, FleetProtocol protocol);
  void Serve(int socket, FleetProtocol protocol);
  void Read(int socket);
  void Reply(int socket, std::string_view reply);
  void SendSome(int socket, std::string_view bytes);
  void SendRest(int socket);
  void SendLater(int socket, Clock::time_point due, std::string bytes, bool ends);
  void End(int socket);
  void EndWhenSent(int socket);
  FleetConnection* ConnectionAt(int socket);

  void AnswerSearch();
  void EachInTurn(const std::function<void(std::size_t)>& action);
  void AnswerSearchFrom(std::size_t projector, FleetSockets::End asker);
  void Notify(const FleetProjector& projector, std::string_view text);

  void RunAt(Clock::time_point due, Action action);
  void RunDue();
  void EndAbandoned();

  FleetProjectors& projectors_;
  Options options_;
  int events_ = -1;  // epoll
  int wireListener_ = -1;
  int pjLinkListener_ = -1;
  int datagrams_ = -1;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::vector<std::unique_ptr<FleetConnection>> connections_;  // by descriptor
  std::vector<std::uint32_t> generations_;  // of connections with the same descriptor
  std::multimap<Clock::time_point, Action> due_;
  QTimer timer_;
  QTimer tidying_;
};
