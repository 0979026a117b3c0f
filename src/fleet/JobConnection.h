#pragma once

#include <chrono>
#include <string_view>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/FleetTarget.h"
#include "fleet/JobLoop.h"

namespace AdvancedControl {

/// The connection of a work in a `JobLoop`. It performs the steps of a session; while it waits,
/// other work goes on. Closed when it is destroyed.
class JobConnection final : private JobLoop::Receiver {
 public:
  /// `session` is told what happens. It and `loop` must outlive the connection.
  JobConnection(JobLoop& loop, const ProjectorAddress& address, JobLoop::Receiver& session);
  ~JobConnection() override;
  JobConnection(const JobConnection&) = delete;
  JobConnection& operator=(const JobConnection&) = delete;

  void Perform(const SessionStep& step);
  /// Takes what arrived without a request.
  void Check();
  bool IsOpen() const { return stage_ == Stage::Open; }
  void Close();

 private:
  enum class Stage : std::uint8_t { None, Connecting, Open };

  void Wait(SessionTime until);

  void Connected() override;
  void NotConnected(ConnectionState problem, SessionTime now) override;
  void Received(std::string_view bytes, SessionTime now) override { session_.Received(bytes, now); }
  void Closed(SessionTime now) override;

  JobLoop& loop_;
  const FleetTarget target_;
  JobLoop::Receiver& session_;
  const JobLoop::Peer peer_;
  Stage stage_ = Stage::None;
};

}  // namespace AdvancedControl
