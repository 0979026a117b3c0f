#pragma once

#include <string>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// The projector's end of one connection, without the connection: turns received bytes into bytes
/// to send.
class PROJECTOR_COMMON_EXPORT WireResponder {
 public:
  explicit WireResponder(ProjectorChannel& projector) : projector_(projector) {}

  /// Takes received bytes, which may end inside a frame. Executes all complete requests and returns
  /// the frames that answer them.
  std::string Receive(std::string_view bytes);

  /// Whether the peer has sent a hello with a supported version.
  bool IsGreeted() const { return greeted_; }

 private:
  Wire::Reply Answer(const Wire::Request& request);

  ProjectorChannel& projector_;
  Wire::Decoder decoder_;
  bool greeted_ = false;
};

}  // namespace AdvancedControl
