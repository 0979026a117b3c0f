#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QHostAddress>
#include <QList>
#include <QNetworkInterface>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QUdpSocket>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/SearchInquiry.h"

namespace AdvancedControl {

struct SearchOptions {
  std::vector<QHostAddress> addresses{};  ///< Each is asked whether it has a projector.
  /// Where PJLink's search is sent; empty for nowhere. `NetworkBroadcasts` has those of the
  /// machine.
  std::vector<QHostAddress> broadcasts{};
  /// Names of hosts that are known, to tell whether one of them was found.
  std::vector<std::string> hostNames{};
  std::uint16_t port = 4352;                ///< Of the projectors, TCP and UDP.
  std::uint16_t answerPort = 4352;          ///< Where projectors send their answers; 0 for any.
  std::string password{};                   ///< For projectors that require one.
  int atOnce = 64;                          ///< Most connections at the same time.
  int perSecond = 200;                      ///< Most connections begun in a second.
  std::chrono::milliseconds answers{3000};  ///< Answers to the broadcast are taken for this time.
  /// How long the look-up of the next host name is waited for.
  std::chrono::milliseconds lookUps{10000};
  PjLinkLimits limits{.connect = std::chrono::milliseconds(1500)};
};

/// A network interface of a machine, with its addresses.
struct MachineNetwork {
  QNetworkInterface::InterfaceFlags flags{};
  QList<QNetworkAddressEntry> addresses{};
};
/// The broadcast addresses of the networks that are up, without duplicates.
PROJECTOR_FLEET_EXPORT std::vector<QHostAddress> BroadcastsOf(
    const std::vector<MachineNetwork>& networks);
/// The broadcast addresses of this machine's networks.
PROJECTOR_FLEET_EXPORT std::vector<QHostAddress> NetworkBroadcasts();

/// Searches for projectors, on Qt's event loop. Sends nothing before `Start`, or after it is
/// deleted. Use it on one thread; the callbacks are called on that thread and must not delete it.
class PROJECTOR_FLEET_EXPORT SearchDriver final {
 public:
  SearchDriver(SearchOptions options, std::function<void(const FoundProjector&)> onFound,
               std::function<void()> onFinished);
  ~SearchDriver();
  SearchDriver(const SearchDriver&) = delete;
  SearchDriver& operator=(const SearchDriver&) = delete;

  void Start();

  /// The number of addresses asked so far, and of all addresses known so far.
  std::size_t Done() const { return done_; }
  std::size_t Count() const { return static_cast<std::size_t>(known_.size()); }
  /// One line if the broadcast could not be sent, its answers not received or a host name not
  /// looked up; otherwise empty.
  const QString& Problem() const { return problem_; }

 private:
  class Visit;
  struct LookUps;

  void Broadcast();
  void TakeAnswers();
  void Enqueue(const QHostAddress& address, const std::string& mac);
  void BeginVisits();
  void End(Visit* visit);
  void ReportFound();

  const SearchOptions options_;
  const std::function<void(const FoundProjector&)> onFound_;
  const std::function<void()> onFinished_;
  QObject context_;
  QTimer pace_;
  QTimer listening_;  // runs while answers to the broadcast are taken
  std::unique_ptr<QUdpSocket> datagrams_;
  std::deque<FoundProjector> waiting_;
  QSet<QHostAddress> known_;
  std::unique_ptr<LookUps> lookUps_;
  std::vector<std::unique_ptr<Visit>> visits_;
  double allowance_ = 0;  // connections that may begin now
  std::size_t done_ = 0;
  QString problem_;
};

}  // namespace AdvancedControl
