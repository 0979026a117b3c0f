#pragma once

#include <span>

#include "Namespace.h"
#include "toolkit/DialogTemplate.h"

namespace AdvancedControl {

/// The resources of one library or program. A module is constant data and outlives its users.
class ResourceModule {
 public:
  constexpr explicit ResourceModule(std::span<const DialogTemplate* const> dialogs)
      : dialogs_(dialogs) {}

  /// The dialog template with this number, or null.
  const DialogTemplate* FindDialog(int number) const;

 private:
  std::span<const DialogTemplate* const> dialogs_;
};

/// Where resources are looked for: the current module first, then every registered module, newest
/// first. Process-wide; used from the user-interface thread.
namespace ResourceChain {

/// The current module; null when none was ever set.
const ResourceModule* Current();
/// Makes `module` (null for none) the current one and returns the one before.
const ResourceModule* SetCurrent(const ResourceModule* module);

/// Adds a module to the chain, so that searches of other modules also find its resources.
void Register(const ResourceModule& module);
/// Takes a module out; if it is the current one, there is none any more.
void Unregister(const ResourceModule& module);

/// The template with this number along the chain, or null.
const DialogTemplate* FindDialog(int number);

}  // namespace ResourceChain

}  // namespace AdvancedControl
