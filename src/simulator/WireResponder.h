#pragma once

#include <string>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// The projector's end of one connection: takes the bytes that come in and makes those that go out.
class PROJECTOR_COMMON_EXPORT WireResponder {
 public:
  explicit WireResponder(ProjectorChannel& projector) : projector_(projector) {}

  /// The frames that answer what is complete by now; empty when nothing is.
  std::string Receive(std::string_view bytes);

  /// Whether a program has said hello in a version that we speak.
  bool IsGreeted() const { return greeted_; }

 private:
  Wire::Reply Answer(const Wire::Request& request);

  ProjectorChannel& projector_;
  Wire::Decoder decoder_;
  bool greeted_ = false;
};

}  // namespace AdvancedControl
