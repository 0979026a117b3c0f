#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QObject>
#include <QPointer>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/projectors/SessionStore.h"
#include "app/desktop/simulation/LoopbackService.h"

/// The projectors of the profile file as the window uses them: watched by the fleet, each with a
/// session once it is used. Simulated ones are served to the fleet, so that dialogs, list and jobs
/// work with the same projector.
class LiveProjectors : public QObject {
  Q_OBJECT

 public:
  /// Called for every command of a dialog.
  using Observer = std::function<void(const FleetProfile& profile, const PjtCommand& command,
                                      const PjtReply& reply, std::chrono::microseconds elapsed)>;

  LiveProjectors(const FleetPolicy& policy, Observer observer, QObject* parent);

  /// A projector whose name, model and connection have not changed keeps its session, which takes
  /// over its new profile. Returns the sessions of the others.
  std::vector<std::shared_ptr<ProjectorSession>> SetProfiles(
      const std::vector<FleetProfile>& profiles);

  std::shared_ptr<ProjectorSession> Session(const FleetProfile& profile) {
    return sessions_.Get(profile);
  }
  FleetWatch& Watch() { return watch_; }
  /// Takes over the faults and states of a simulation that were changed.
  void TakeSimulation(const ProjectorSession& session);

 Q_SIGNALS:
  /// What is known of these projectors has changed.
  void Changed(const std::vector<std::string>& ids);

 private:
  LoggingChannel::Observer MakeObserver(const std::string& id, const FleetProfile& profile);

  const Observer observer_;
  FleetWatch watch_;
  LoopbackService service_;
  SessionStore sessions_;
  std::map<std::string, std::shared_ptr<ProjectorSession>> served_;
};
