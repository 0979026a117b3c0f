#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/protocol/PjLinkReader.h"
#include "simulator/PjLinkResponder.h"

namespace AdvancedControl {

/// The projector's end of one PJLink session, without a socket: greeting, password, requests.
class PROJECTOR_COMMON_EXPORT PjLinkProjectorSession {
 public:
  /// `responder` must outlive this. `password` is empty for a projector without one.
  PjLinkProjectorSession(PjLinkResponder& responder, std::string_view password);

  /// What the projector sends first, with its end.
  const std::string& Greeting() const { return greeting_; }

  void Add(std::string_view bytes);

  struct Exchange {
    std::string request;  ///< Without its end and without what proves the password.
    std::string reply;    ///< With its end; empty if there is none.
  };
  /// Answers the next request; nothing until one is complete, or when the session is over.
  std::optional<Exchange> Next();

  /// Whether the projector closes the connection once its replies are sent.
  bool IsOver() const { return isOver_; }

 private:
  PjLinkResponder& responder_;
  PjLinkReader reader_;
  std::string greeting_;
  std::string wantedProof_;  ///< Must precede the next request; empty if nothing must.
  bool isOver_ = false;
};

}  // namespace AdvancedControl
