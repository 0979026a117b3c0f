#pragma once

#include "Namespace.h"
#include "device/Connect.h"
#include "device/protocol/PjLinkSession.h"
#include "fleet/Visit.h"

namespace AdvancedControl {

/// A visit to a PJLink projector. Sends each query once, even if its answer contains several items,
/// and asks for the name of an input that is selected for the first time.
class PjLinkVisit final : public Visit {
 public:
  PjLinkVisit(const PjLinkAddress& address, const FleetPolicy& policy, LiveState state,
              ProjectorMemory memory, std::shared_ptr<const ModelData> model);

  SessionStep Next(SessionTime now) override;
  void Connected(SessionTime now) override;
  void NotConnected(ConnectionState problem, SessionTime now) override;
  void Received(std::string_view bytes, SessionTime now) override;
  void Closed(SessionTime now) override;
  ConnectionState Connection() const override { return session_.State(); }

 private:
  enum class Asking : std::uint8_t { Nothing, Status, Name };

  /// Begins the next question; false when there is none.
  bool Ask(SessionTime now);
  void TakeResult(SessionTime now);
  void TakeStatusText(const PjLinkResult& result);
  void TakeName(const std::string& name);
  bool LacksName() const { return state_.source && state_.source->name.empty(); }
  /// Ends the visit. Items that were not asked for become unknown.
  void GiveUp();

  PjLinkSession session_;
  Asking asking_ = Asking::Nothing;
  std::size_t question_ = 0;  ///< The next one, or the one that is being asked.
  bool isFinished_ = false;
};

}  // namespace AdvancedControl
