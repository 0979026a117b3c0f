#include "app/desktop/LiveProjectors.h"

#include <algorithm>
#include <utility>

LiveProjectors::LiveProjectors(const FleetPolicy& policy, Observer observer, QObject* parent)
    : QObject(parent),
      observer_(std::move(observer)),
      watch_(policy),
      sessions_([this](const std::string& id, const FleetProfile& profile) {
        return MakeObserver(id, profile);
      }) {
  connect(&watch_, &FleetWatch::Changed, this, &LiveProjectors::Changed);
}

// A session may outlive this object, for example that of a dialog that is being closed.
LoggingChannel::Observer LiveProjectors::MakeObserver(const std::string& id,
                                                      const FleetProfile& profile) {
  return [self = QPointer(this), id, profile](const PjtCommand& command, const PjtReply& reply,
                                              std::chrono::microseconds elapsed) {
    if (!self) return;
    std::optional<PowerState> power;
    if (const auto session = self->sessions_.Find(id)) power = session->Channel()->Power();
    self->watch_.Learn(id, command, reply, power);
    self->observer_(profile, command, reply, elapsed);
  };
}

std::vector<std::shared_ptr<ProjectorSession>> LiveProjectors::SetProfiles(
    const std::vector<FleetProfile>& profiles) {
  auto gone = sessions_.Keep(profiles);
  std::erase_if(served_, [&](const auto& served) {
    const bool isGone = std::ranges::find(gone, served.second) != gone.end();
    if (isGone) service_.Stop(served.first);
    return isGone;
  });
  watch_.SetProfiles(profiles);
  for (const FleetProfile& profile : profiles) {
    if (profile.link != ProjectorLink::Simulated) continue;
    const std::string id = FleetIdOf(profile);
    auto& session = served_[id];
    if (session) continue;
    session = sessions_.Get(profile);
    if (const auto place = service_.Serve(id, *session)) watch_.SetServed(id, *place);
  }
  return gone;
}

void LiveProjectors::TakeSimulation(const ProjectorSession& session) {
  for (const auto& [id, served] : served_) {
    if (served.get() != &session) continue;
    service_.Update(id, session);
    watch_.Projectors().AskSoon(id);
  }
}
