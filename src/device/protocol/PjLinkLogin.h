#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Namespace.h"
#include "device/ConnectionState.h"

namespace AdvancedControl {

/// The login to a projector: interprets the greeting of each connection, and proves the password.
/// Use from one thread at a time.
class PjLinkLogin {
 public:
  /// `password` is empty for a projector without one.
  explicit PjLinkLogin(std::string password) : password_(std::move(password)) {}

  /// Takes the first line of a connection. Returns why the projector cannot be used; nothing if it
  /// can.
  std::optional<ConnectionState> Take(std::string_view greeting);
  /// The proof of the password, which comes before the first request of a connection; empty after
  /// that, and if the projector requires no password.
  std::string TakeProof() { return std::exchange(proof_, {}); }
  /// Call this when the projector has refused the proof.
  void Refuse() { hasGreeted_ = false; }
  /// Whether the projector has accepted a connection, and the password, at least once.
  bool HasGreeted() const { return hasGreeted_; }

 private:
  const std::string password_;
  std::string proof_;
  bool hasGreeted_ = false;
};

}  // namespace AdvancedControl
