#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/desktop/projectors/ProjectorSession.h"

/// The sessions of the projectors that were used: a session is made when it is asked for first. A
/// list of ten thousand projectors has few of them.
class SessionStore {
 public:
  using MakeObserver =
      std::function<LoggingChannel::Observer(const std::string& id, const FleetProfile& profile)>;

  explicit SessionStore(MakeObserver makeObserver) : makeObserver_(std::move(makeObserver)) {}

  std::shared_ptr<ProjectorSession> Get(const FleetProfile& profile);
  /// Null if there is none yet.
  std::shared_ptr<ProjectorSession> Find(const std::string& id) const;

  /// Keeps the sessions of those profiles whose name, model and connection are as before, and
  /// returns the others.
  std::vector<std::shared_ptr<ProjectorSession>> Keep(const std::vector<FleetProfile>& profiles);

 private:
  const MakeObserver makeObserver_;
  std::map<std::string, std::shared_ptr<ProjectorSession>> sessions_;
};
