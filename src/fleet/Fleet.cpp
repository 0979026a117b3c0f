#include "fleet/Fleet.h"

#include <algorithm>
#include <sys/resource.h>

#include "fleet/FleetStates.h"
#include "fleet/FleetWatcher.h"

namespace AdvancedControl {

namespace {

/// Leaves files for the rest of the program. A projector must not look silent because the process
/// has no file left.
FleetPolicy WithinLimits(FleetPolicy policy) {
  rlimit files{};
  // unreachable: only a sandbox forbids it
  if (getrlimit(RLIMIT_NOFILE, &files) != 0) return policy;
  const auto most = std::max<std::size_t>(files.rlim_cur / 2, 1);
  policy.visitsAtOnce = std::min(policy.visitsAtOnce, most);
  return policy;
}

}  // namespace

Fleet::Fleet(const FleetPolicy& policy, std::function<void()> onChanges)
    : onChanges_(std::move(onChanges)),
      states_(std::make_unique<FleetStates>(clock_, policy.history)),
      watcher_(std::make_unique<FleetWatcher>(WithinLimits(policy), network_, clock_, *states_)),
      thread_([this] { Run(); }) {
  if (!policy.avoidsHeld) return;
  held_.emplace([this](const AddressHold::Address& address, bool isHeld) {
    Change([&] {
      if (isHeld) {
        watcher_->Hold(address);
      } else {
        watcher_->Release(address);
      }
    });
  });
}

Fleet::~Fleet() {
  Change([this] { ends_ = true; });
  thread_.join();
}

void Fleet::Run() {
  while (true) {
    const auto next = lock_.ForLoop([this]() -> std::optional<SessionTime> {
      if (ends_) return std::nullopt;
      network_.Pass(watcher_->Events());
      return watcher_->Tick();
    });
    if (!next) return;
    if (states_->MustNotify()) onChanges_();
    network_.Wait(*next);
  }
}

/// For what may make something due earlier.
void Fleet::Change(const auto& use) {
  lock_.ForCaller(use);
  network_.Wake();
}

void Fleet::Set(FleetTarget target) {
  Change([&] { watcher_->Set(std::move(target)); });
}
void Fleet::Remove(const std::string& id) {
  Change([&] { watcher_->Remove(id); });
}
void Fleet::SetAsking(bool asks) {
  Change([&] { watcher_->SetAsking(asks); });
}
void Fleet::SetInterval(std::chrono::milliseconds interval) {
  Change([&] { watcher_->SetInterval(interval); });
}
void Fleet::AskSoon(const std::string& id) {
  Change([&] { watcher_->AskSoon(id); });
}

std::uint16_t Fleet::ListenForNotices(const std::string& address, std::uint16_t port) {
  return lock_.ForCaller([&] { return network_.ListenForNotices(address, port); });
}

FleetTally Fleet::Tally() const {
  return lock_.ForCaller([&] { return watcher_->Tally(); });
}

void Fleet::Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
                  std::optional<PowerState> power) {
  states_->Learn(id, command, reply, power);
  network_.Wake();
}
void Fleet::LearnDrift(const std::string& id, std::optional<int> drift) {
  states_->Change(id, [&](LiveState& state) { state.drift = drift; });
  network_.Wake();
}

std::optional<LiveState> Fleet::State(const std::string& id) const { return states_->State(id); }
std::vector<std::pair<std::string, LiveState>> Fleet::States() const { return states_->States(); }
std::vector<StateChange> Fleet::History(const std::string& id) const {
  return states_->History(id);
}
FleetChanges Fleet::TakeChanges() {
  FleetChanges taken = states_->TakeChanges();
  network_.Wake();  // so that `onChanges` is called again if there are more
  return taken;
}

Fleet::Pause::Pause(Fleet& fleet, std::string id) : fleet_(fleet), id_(std::move(id)) {
  fleet_.Change([&] { fleet_.watcher_->Pause(id_); });
}

Fleet::Pause::~Pause() {
  fleet_.Change([&] { fleet_.watcher_->Resume(id_); });
}

}  // namespace AdvancedControl
