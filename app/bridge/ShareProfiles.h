#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <QByteArray>
#include <QString>

#include "app/bridge/Share.h"
#include "fleet/FleetProfile.h"

/// The projectors of a share, by numbers from 0 on. Simulated ones are left out.
class ShareProfiles {
 public:
  ShareProfiles(std::vector<FleetProfile> profiles, const Share& share);

  /// An error about two projectors whose identities have the same topic; empty if there is none.
  const QString& Error() const { return error_; }
  std::size_t Count() const { return profiles_.size(); }
  /// How many were left out.
  std::size_t Simulated() const { return simulated_; }
  const std::vector<FleetProfile>& All() const { return profiles_; }
  const FleetProfile& Profile(std::size_t projector) const { return profiles_[projector]; }
  /// The identity as a level of a topic.
  const QByteArray& Id(std::size_t projector) const { return ids_[projector]; }
  std::optional<std::size_t> Find(const QByteArray& id) const;
  std::optional<std::size_t> FindName(std::string_view name) const;
  std::optional<std::size_t> FindIdentity(const std::string& identity) const;

 private:
  QString error_;
  std::size_t simulated_ = 0;
  std::vector<FleetProfile> profiles_;
  std::vector<QByteArray> ids_;
  std::unordered_map<std::string, std::size_t> ofIdentity_;
  std::unordered_map<std::string, std::size_t> ofName_;
  std::unordered_map<std::string, std::size_t> ofId_;
};
