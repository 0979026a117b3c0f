#include "app/desktop/projectors/FleetWatch.h"

#include <algorithm>
#include <utility>

#include "device/ModelDataIntake.h"

namespace {

constexpr std::chrono::seconds kTending{5};
constexpr std::chrono::seconds kUse{30};

bool IsSimulated(const FleetProfile& profile) { return profile.link == ProjectorLink::Simulated; }

bool HasSameTarget(const FleetTarget& a, const FleetTarget& b) {
  return a.address == b.address && a.model == b.model;
}

}  // namespace

FleetWatch::FleetWatch(const FleetPolicy& policy, QObject* parent)
    : QObject(parent), fleet_(std::make_unique<Fleet>(policy, [this] {
        QMetaObject::invokeMethod(this, &FleetWatch::TakeChanges, Qt::QueuedConnection);
      })) {
  // With the event loop, so that the window is painted first.
  fleet_->SetAsking(false);
  QTimer::singleShot(0, this, [this] { fleet_->SetAsking(true); });
  connect(&tending_, &QTimer::timeout, this, &FleetWatch::Tend);
  tending_.start(kTending);
}

// The fleet's thread calls this object until it has ended.
FleetWatch::~FleetWatch() {
  uses_.clear();
  fleet_.reset();
}

void FleetWatch::SetProfiles(const std::vector<FleetProfile>& profiles) {
  std::unordered_map<std::string, FleetProfile> before = std::exchange(profiles_, {});
  for (const FleetProfile& profile : profiles) {
    const std::string id = FleetIdOf(profile);
    before.erase(id);
    profiles_.emplace(id, profile);
  }
  for (const auto& [id, gone] : before) {
    TakeBack(id);
    served_.erase(id);
    watched_.erase(id);
    fleet_->Remove(id);
  }
  for (const FleetProfile& profile : profiles) Watch(profile);
}

void FleetWatch::SetServed(const std::string& id, const Served& served) {
  const auto profile = profiles_.find(id);
  if (profile == profiles_.end()) return;
  served_[id] = served;
  Watch(profile->second);
}

// PJLink reports more than our own protocol: warming up, and how serious a problem is.
void FleetWatch::Watch(const FleetProfile& profile) {
  FleetTarget target = AdvancedControl::TargetOf(profile);
  if (IsSimulated(profile)) {
    const auto served = served_.find(target.id);
    if (served == served_.end()) return;
    target.address = PjLinkAddress{
        .host = served->second.host, .port = served->second.pjLinkPort, .password = {}};
    target.model = nullptr;  // PJLink has other numbers for the inputs
  }
  const auto known = watched_.find(target.id);
  if (known != watched_.end() && HasSameTarget(known->second, target)) return;
  watched_[target.id] = target;
  fleet_->Set(std::move(target));
}

FleetTarget FleetWatch::TargetOf(const FleetProfile& profile) const {
  FleetTarget target = AdvancedControl::TargetOf(profile);
  if (const auto served = served_.find(target.id); IsSimulated(profile) && served != served_.end())
    target.address = TcpAddress{.host = served->second.host, .port = served->second.wirePort};
  return target;
}

void FleetWatch::LeaveToDialog(const std::string& id) {
  open_.insert(id);
  Hold(id, kUse);
}

// Visits wait until the channel has closed its connection, see `HoldingChannel`.
void FleetWatch::TakeBack(const std::string& id) {
  open_.erase(id);
  uses_.erase(id);
}

// A simulated projector can be asked at the same time.
void FleetWatch::Hold(const std::string& id, Clock::duration time) {
  const auto profile = profiles_.find(id);
  if (profile == profiles_.end() || IsSimulated(profile->second)) return;
  Use& use = uses_[id];
  if (!use.pause) use.pause = std::make_unique<Fleet::Pause>(*fleet_, id);
  use.until = Clock::now() + time;
}

void FleetWatch::Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
                       std::optional<PowerState> power) {
  if (!reply.answered) {  // a visit finds out why
    uses_.erase(id);
    return;
  }
  Hold(id, open_.contains(id) ? Clock::duration(kUse) : Clock::duration(kTending));
  fleet_->Learn(id, command, reply, power);
  if (!uses_.contains(id) && !IsRead(command.operation)) fleet_->AskSoon(id);
}

void FleetWatch::TakeChanges() {
  std::set<std::string> ids;
  for (FleetChange& change : fleet_->TakeChanges().changes) ids.insert(std::move(change.id));
  if (!ids.empty()) Q_EMIT Changed({ids.begin(), ids.end()});
}

void FleetWatch::Tend() {
  std::erase_if(uses_, [](const auto& use) { return Clock::now() > use.second.until; });
  // These states soon end, so such projectors are asked more often.
  for (const auto& [id, state] : fleet_->States()) {
    if (state.power == PowerState::WarmingUp || state.power == PowerState::CoolingDown)
      fleet_->AskSoon(id);
  }
}
