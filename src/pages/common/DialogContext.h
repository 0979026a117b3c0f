#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "AdvancedControlExport.h"
#include "Namespace.h"

namespace AdvancedControl {

class WantedSettings;

/// What the dialog of a projector knows beyond its model; pages and pop-ups find it like the model
/// data. User-interface thread only.
class ADVANCED_CONTROL_EXPORT DialogContext {
 public:
  virtual ~DialogContext() = default;

  /// The projector's own name, UTF-8; empty if the host gave none.
  virtual std::string ProjectorName() const { return {}; }
  /// The settings that the projector should have; null if the host gave none.
  virtual const WantedSettings* Wanted() const { return nullptr; }
  /// The device value that a setting had when the host last saw it; nothing if that is not known.
  /// Not for settings that have a value for each input source.
  virtual std::optional<int> LastSeen(std::string_view /*key*/) const { return {}; }
};

}  // namespace AdvancedControl
