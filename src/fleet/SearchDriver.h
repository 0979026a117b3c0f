#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <QHostAddress>
#include <QObject>
#include <QTimer>
#include <QUdpSocket>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/SearchInquiry.h"

namespace AdvancedControl {

struct SearchOptions {
  std::vector<std::uint32_t> addresses{};  ///< IPv4; each is asked whether it has a projector.
  /// Where PJLink's search is sent; empty for nowhere. `NetworkBroadcasts` has those of the
  /// machine.
  std::vector<QHostAddress> broadcasts{};
  std::uint16_t port = 4352;                ///< Of the projectors, TCP and UDP.
  std::uint16_t answerPort = 4352;          ///< Where projectors send their answers; 0 for any.
  std::string password{};                   ///< Tried where one is wanted.
  int atOnce = 64;                          ///< Connections at most at a time.
  int perSecond = 200;                      ///< Connections begun at most in a second.
  std::chrono::milliseconds answers{3000};  ///< Answers to the broadcast are taken for this time.
  PjLinkLimits limits{.connect = std::chrono::milliseconds(1500)};
};

/// The broadcast address of each network that the machine is in.
PROJECTOR_FLEET_EXPORT std::vector<QHostAddress> NetworkBroadcasts();

/// A search for projectors on Qt's event loop. Nothing is sent before it starts, or after it is
/// deleted. Belongs to one thread; the callbacks are called there, and may delete nothing of it.
class PROJECTOR_FLEET_EXPORT SearchDriver final {
 public:
  SearchDriver(SearchOptions options, std::function<void(const FoundProjector&)> onFound,
               std::function<void()> onFinished);
  ~SearchDriver();
  SearchDriver(const SearchDriver&) = delete;
  SearchDriver& operator=(const SearchDriver&) = delete;

  void Start();

  /// Addresses asked so far, and those that are known so far.
  std::size_t Done() const { return done_; }
  std::size_t Count() const { return known_.size(); }
  /// One line where the broadcast could not be sent or its answers not taken; empty otherwise.
  const QString& Problem() const { return problem_; }

 private:
  class Visit;

  void Broadcast();
  void TakeAnswers();
  void Enqueue(std::uint32_t address, const std::string& mac);
  void BeginVisits();
  void End(Visit* visit);

  const SearchOptions options_;
  const std::function<void(const FoundProjector&)> onFound_;
  const std::function<void()> onFinished_;
  QObject context_;
  QTimer pace_;
  QTimer listening_;  // runs while answers to the broadcast are taken
  std::unique_ptr<QUdpSocket> datagrams_;
  std::deque<FoundProjector> waiting_;
  std::set<std::uint32_t> known_;
  std::vector<std::unique_ptr<Visit>> visits_;
  double allowance_ = 0;  // connections that may begin now
  std::size_t done_ = 0;
  QString problem_;
};

}  // namespace AdvancedControl
