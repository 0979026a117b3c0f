#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Namespace.h"
#include "device/ConnectionState.h"
#include "device/protocol/SessionStep.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// The connection of a `WireSession`: hello and welcome, the bytes to send, and the frames that
/// have arrived. After it ended, it can be started again. Use from one thread at a time.
class WireConnection {
 public:
  /// Starts a new connection, of which nothing is open yet. The welcome must come by `welcomeBy`.
  void Start(SessionTime welcomeBy);
  /// The driver has connected. `hello` is the sequence number of the hello, which is sent first.
  void Opened(std::uint16_t hello);
  /// The driver reports that the connection ended.
  void Closed() { isOpen_ = false; }
  /// Has the driver close the connection; what is not sent yet is dropped.
  void Drop();
  /// Whether the driver has to close the connection. True once for each `Drop`.
  bool TakeDrop() { return std::exchange(isDropped_, false); }
  bool IsOpen() const { return isOpen_; }

  ConnectionState State() const { return state_; }
  void SetState(ConnectionState state) { state_ = state; }

  SessionTime WelcomeBy() const { return welcomeBy_; }
  /// The answer to the hello, once it has come.
  const std::optional<Wire::Welcome>& Welcome() const { return welcome_; }

  /// Bytes to append to, for the next step.
  std::string& Unsent() { return unsent_; }
  const std::string& Unsent() const { return unsent_; }

  void Receive(std::string_view bytes) { decoder_.Add(bytes); }
  /// The next frame that is not the welcome; nothing if none is complete yet.
  std::optional<Wire::Frame> NextFrame();
  /// Whether bytes have arrived that are not part of a frame.
  bool HasNoise() const { return decoder_.Skipped() > 0; }

 private:
  ConnectionState state_ = ConnectionState::Unused;
  bool isOpen_ = false;  ///< As far as the driver has reported.
  bool isDropped_ = false;
  SessionTime welcomeBy_{};
  std::uint16_t hello_ = 0;
  std::optional<Wire::Welcome> welcome_;
  Wire::Decoder decoder_;
  std::string unsent_;
};

}  // namespace AdvancedControl
