#include "app/desktop/projectors/SessionStore.h"

namespace {

/// Whether a session of one profile can serve the other.
bool IsAsBefore(const FleetProfile& one, const FleetProfile& other) {
  const bool isOneModel = one.model == other.model || (one.model->info == other.model->info &&
                                                       one.model->lacks == other.model->lacks);
  return isOneModel && one.name == other.name && one.link == other.link &&
         one.connection == other.connection;
}

}  // namespace

std::shared_ptr<ProjectorSession> SessionStore::Get(const FleetProfile& profile) {
  const std::string id = FleetIdOf(profile);
  std::shared_ptr<ProjectorSession>& session = sessions_[id];
  if (!session) {
    session = std::make_shared<ProjectorSession>(profile, makeObserver_(id, profile));
  }
  return session;
}

std::shared_ptr<ProjectorSession> SessionStore::Find(const std::string& id) const {
  const auto found = sessions_.find(id);
  return found == sessions_.end() ? nullptr : found->second;
}

std::vector<std::shared_ptr<ProjectorSession>> SessionStore::Keep(
    const std::vector<FleetProfile>& profiles) {
  std::map<std::string, const FleetProfile*> present;
  for (const FleetProfile& profile : profiles) present.emplace(FleetIdOf(profile), &profile);
  std::vector<std::shared_ptr<ProjectorSession>> others;
  for (auto session = sessions_.begin(); session != sessions_.end();) {
    const auto profile = present.find(session->first);
    if (profile != present.end() && IsAsBefore(*profile->second, session->second->Profile())) {
      session->second->SetProfile(*profile->second);
      ++session;
      continue;
    }
    others.push_back(std::move(session->second));
    session = sessions_.erase(session);
  }
  return others;
}
