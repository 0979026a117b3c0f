#pragma once

#include <functional>
#include <memory>

#include "device/CommandCode.h"
#include "fleet/FleetWatcher.h"
#include "simulator/WireResponder.h"
#include "tests/device/BadProjector.h"

/// What answers on the wire: the codes that it has, with their values.
struct WireDevice final : ProjectorChannel {
  std::map<std::uint16_t, int> values{
      {CommandCode::RunningState, 1}, {CommandCode::InputSource, 3}, {CommandCode::ErrorStatus, 0},
      {CommandCode::BlankState, 0},   {CommandCode::Mute, 0},        {CommandCode::Freeze, 0},
      {CommandCode::LampTime, 1200},  {CommandCode::FilterTime, 80}};

  PjtReply Execute(const PjtCommand& command) override {
    const auto found = values.find(command.code);
    if (found == values.end()) return {};
    return {.result = 1, .value = static_cast<std::int16_t>(found->second)};
  }
};

/// Projectors in a time of their own, the network that leads to them, and the fleet that watches
/// them. Nothing here waits. A projector's host is its identity.
class SteppedFleet final : public FleetNetwork, public FleetClock {
 public:
  using Milliseconds = std::chrono::milliseconds;

  struct Projector {
    BadProjector device{};
    bool isThere = true;                     ///< Otherwise nothing answers.
    bool isRefusing = false;                 ///< The port is closed.
    bool isTaken = false;                    ///< Another program has the serial port.
    std::vector<SessionTime> connections{};  ///< When each began.
    int mostConnections = 0;                 ///< At the same time.
    int open = 0;
    int bursts = 0;                      ///< Of requests.
    int answersBursts = 1000;            ///< So many more, and then none.
    std::shared_ptr<WireDevice> wire{};  ///< Speaks the wire then, and not PJLink.
    std::optional<WireResponder> responder{};
  };

  explicit SteppedFleet(const FleetPolicy& policy = {})
      : states(*this, policy.history), watcher(policy, *this, *this, states) {}

  Projector& Add(const std::string& id) { return Add(id, id); }
  /// At a host of another name: it has moved, or shares the host.
  Projector& Add(const std::string& id, const std::string& host) {
    watcher.Set({id, PjLinkAddress{.host = host, .password = {}}});
    return projectors[host];
  }

  Projector& AddWire(const std::string& id) { return AddWire(id, id); }
  Projector& AddWire(const std::string& id, const std::string& host,
                     std::shared_ptr<const ModelData> model = {}) {
    watcher.Set({id, TcpAddress{.host = host}, std::move(model)});
    projectors[host].wire = std::make_shared<WireDevice>();
    return projectors[host];
  }

  void RunFor(SessionTime::duration time) {
    const SessionTime end = now_ + time;
    while (true) {
      const SessionTime next = watcher.Tick();
      const SessionTime event = events_.empty() ? SessionTime::max() : events_.begin()->first;
      const SessionTime until = std::min({next, event, end});
      now_ = std::max(now_, until);
      if (event <= now_) {
        const auto happens = std::move(events_.begin()->second);
        events_.erase(events_.begin());
        happens();
      } else if (now_ >= end && next > now_) {
        return;
      }
    }
  }

  LiveState State(const std::string& id) const { return states.State(id).value_or(LiveState{}); }

  SessionTime Now() const override { return now_; }
  WallTime Wall() const override { return WallTime(now_.time_since_epoch()); }

  void Connect(Peer peer, const std::string& host, std::uint16_t) override {
    Link& link = links_[peer];
    link.host = host;
    const int attempt = ++link.attempt;
    Projector& projector = projectors[host];
    projector.connections.push_back(now_);
    if (!projector.isThere) return;
    Later(Milliseconds(1), peer, attempt, [this, peer, attempt, host] {
      Projector& met = projectors[host];
      if (met.isTaken) return watcher.Events().InUse(peer);
      if (met.isRefusing || !met.device.Connect(now_)) {
        return watcher.Events().NotConnected(peer, ConnectionState::NotReachable);
      }
      links_[peer].isOpen = true;
      met.mostConnections = std::max(met.mostConnections, ++met.open);
      if (met.wire) met.responder.emplace(*met.wire);
      watcher.Events().Connected(peer);
      if (!met.wire) Bytes(peer, attempt, met.device.greeting, Milliseconds(1));
    });
  }

  void OpenLine(Peer peer, const std::string& device, std::int32_t) override {
    Connect(peer, device, 0);
  }

  void Send(Peer peer, std::string_view bytes) override {
    const Link& link = links_[peer];
    Projector& projector = projectors[link.host];
    if (!projector.isThere) return;
    ++projector.bursts;
    if (projector.answersBursts-- <= 0) return;
    const auto answer = projector.wire ? std::optional(projector.responder->Receive(bytes))
                                       : projector.device.Receive(bytes, now_);
    if (answer) Bytes(peer, link.attempt, *answer, projector.device.answers);
    if (!projector.device.IsOpen()) {
      Later(projector.device.answers, peer, link.attempt, [this, peer] {
        Forget(peer);
        watcher.Events().Closed(peer);
      });
    }
  }

  void Close(Peer peer) override {
    projectors[links_[peer].host].device.Close(now_);
    Forget(peer);
  }

  std::map<std::string, Projector> projectors;
  FleetStates states;
  FleetWatcher watcher;

 private:
  struct Link {
    std::string host;
    int attempt = 0;
    bool isOpen = false;
  };

  void Forget(Peer peer) {
    Link& link = links_[peer];
    ++link.attempt;  // bytes that are on their way are dropped
    if (std::exchange(link.isOpen, false)) --projectors[link.host].open;
  }

  void Bytes(Peer peer, int attempt, const std::string& bytes, Milliseconds after) {
    Later(after, peer, attempt, [this, peer, bytes] { watcher.Events().Received(peer, bytes); });
  }

  void Later(Milliseconds after, Peer peer, int attempt, std::function<void()> happens) {
    events_.emplace(now_ + after, [this, peer, attempt, happens = std::move(happens)] {
      if (links_[peer].attempt == attempt) happens();
    });
  }

  SessionTime now_{std::chrono::hours(1)};
  std::multimap<SessionTime, std::function<void()>> events_;
  std::map<Peer, Link> links_;
};
