#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include <QObject>
#include <QThread>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/projectors/ProjectorSession.h"

/// Serves the simulated projectors of the window over our wire and PJLink, on a thread of its own,
/// so that the fleet watches and changes the same projectors that the dialogs show. All are served
/// at the same two ports, each at a loopback address of its own.
class LoopbackService {
 public:
  LoopbackService();
  ~LoopbackService();
  LoopbackService(const LoopbackService&) = delete;
  LoopbackService& operator=(const LoopbackService&) = delete;

  /// Serves a projector, and returns where; nothing if the system has no ports for it.
  std::optional<FleetWatch::Served> Serve(const std::string& id, const ProjectorSession& session);
  void Stop(const std::string& id);
  /// Takes over the faults of the session.
  void Update(const std::string& id, const ProjectorSession& session);

 private:
  class Port;
  struct Service;

  bool Listen();
  void Run(std::function<void()> work);
  /// Changes the service of a projector on the thread.
  void Change(const std::string& id, std::function<void(Service&)> change);

  QThread thread_;
  QObject* context_;  // lives on the thread
  std::uint16_t wirePort_ = 0;
  std::uint16_t pjLinkPort_ = 0;
  std::unordered_map<std::string, std::uint32_t> addresses_;  // by identity
  std::uint32_t next_;                                        // address
  // Used on the thread alone.
  std::unordered_map<std::uint32_t, std::unique_ptr<Service>> services_;
};
