#include "app/bridge/ShareProfiles.h"

#include <utility>

#include "app/bridge/Topics.h"

namespace {

std::optional<std::size_t> Found(const auto& map, const std::string& key) {
  const auto found = map.find(key);
  return found == map.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

ShareProfiles::ShareProfiles(std::vector<FleetProfile> profiles, const Share& share) {
  for (FleetProfile& profile : profiles) {
    if (!share.Has(profile)) continue;
    if (profile.link == ProjectorLink::Simulated) {
      ++simulated_;
      continue;
    }
    const std::size_t index = profiles_.size();
    const std::string identity = FleetIdOf(profile);
    ids_.push_back(TopicLevel(identity));
    const auto [other, isNew] = ofId_.emplace(ids_.back().toStdString(), index);
    if (!isNew) {
      error_ = QStringLiteral("%1 and %2 would have the same topic")
                   .arg(QString::fromStdString(FleetIdOf(profiles_[other->second])),
                        QString::fromStdString(identity));
    }
    ofIdentity_.emplace(identity, index);
    ofName_.emplace(profile.name, index);
    profiles_.push_back(std::move(profile));
  }
}

std::optional<std::size_t> ShareProfiles::Find(const QByteArray& id) const {
  return Found(ofId_, id.toStdString());
}

std::optional<std::size_t> ShareProfiles::FindName(std::string_view name) const {
  return Found(ofName_, std::string(name));
}

std::optional<std::size_t> ShareProfiles::FindIdentity(const std::string& identity) const {
  return Found(ofIdentity_, identity);
}
