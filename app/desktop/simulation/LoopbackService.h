#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include <QObject>
#include <QThread>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/projectors/ProjectorSession.h"

/// Serves the simulated projectors of the window over our wire and PJLink at loopback ports, on a
/// thread of its own, so that the fleet watches and changes the same projectors that the dialogs
/// show.
class LoopbackService : public QObject {
  Q_OBJECT

 public:
  /// Each takes two ports.
  static constexpr std::size_t kMost = 200;

  explicit LoopbackService(QObject* parent = nullptr);
  ~LoopbackService() override;

  /// Serves a projector, unless there are too many. `Ready` says where.
  void Serve(const std::string& id, const ProjectorSession& session);
  void Stop(const std::string& id);
  /// Takes over the faults of the session.
  void Update(const std::string& id, const ProjectorSession& session);
  std::size_t Count() const { return count_; }

 Q_SIGNALS:
  void Ready(const std::string& id, const FleetWatch::Served& served);

 private:
  struct Service;

  void Run(std::function<void()> work);

  QThread thread_;
  QObject* context_;                                          // lives on the thread
  std::map<std::string, std::unique_ptr<Service>> services_;  // used on the thread alone
  std::size_t count_ = 0;
};
