#pragma once

#include "Namespace.h"
#include "device/protocol/WireSession.h"
#include "fleet/Visit.h"

namespace AdvancedControl {

/// A visit to a projector that speaks the protocol of docs/wire.md. Asks for the power state
/// together with the hello, and then for everything else in one burst; on a serial line, one after
/// the other.
class WireVisit final : public Visit {
 public:
  /// `sequence` as for `WireSession`.
  WireVisit(WireSession::Medium medium, const FleetPolicy& policy, LiveState state,
            ProjectorMemory memory, std::shared_ptr<const ModelData> model, std::uint16_t sequence);

  SessionStep Next(SessionTime now) override;
  void Connected(SessionTime) override { session_.Connected(); }
  void NotConnected(ConnectionState problem, SessionTime) override {
    session_.NotConnected(problem);
  }
  void Received(std::string_view bytes, SessionTime) override { session_.Received(bytes); }
  void Closed(SessionTime) override { session_.Closed(); }
  ConnectionState Connection() const override { return session_.State(); }

 private:
  void TakeReply(SessionTime now);

  WireSession session_;
  std::vector<StatusItem> asked_{};  ///< In this order; the first is the power state.
  std::size_t answers_ = 0;
  bool isAsking_ = false;
};

}  // namespace AdvancedControl
