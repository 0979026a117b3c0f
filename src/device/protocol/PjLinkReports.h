#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkMapping.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// What a projector has just reported. It is used within a second instead of asking again, but no
/// setting is read twice from one answer. Use from one thread at a time.
class PjLinkReports {
 public:
  using Reader = decltype(PjLinkMapping::value);

  /// Keeps the answer to a command's question. `reader` has already used it; null for none.
  void Keep(std::string_view command, const std::string& parameter, Reader reader, SessionTime now);
  /// The kept answer for another reader. An answer can be taken once.
  std::optional<std::string> Take(std::string_view command, Reader reader, SessionTime now);

  /// Keeps the reported power state.
  void KeepPower(std::string_view parameter, SessionTime now);
  /// The power state that the projector reported last.
  std::optional<PowerState> Power() const { return power_; }
  /// Whether the power state was reported just now and nothing was changed since.
  bool IsPowerFresh(SessionTime now) const;

  /// A change makes everything outdated.
  void Outdate();

 private:
  struct Kept {
    std::string parameter;
    Reader reader;
    SessionTime time;
  };

  std::map<std::string_view, Kept> kept_;  ///< By command.
  std::optional<PowerState> power_;
  std::optional<SessionTime> powerAt_;  ///< When it was reported; nothing if it is outdated.
};

}  // namespace AdvancedControl
