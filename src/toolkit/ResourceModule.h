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

/// The modules that are searched for resources: the current one first, then all registered ones,
/// newest first. Process-wide; user-interface thread only.
namespace ResourceChain {

/// The current module; null if there is none.
const ResourceModule* Current();
/// Makes `module` (null for none) the current one and returns the previous one.
const ResourceModule* SetCurrent(const ResourceModule* module);

/// Adds a module to the chain. It must stay valid until `Unregister`.
void Register(const ResourceModule& module);
/// Removes a module. If it is the current one, no module is current afterwards.
void Unregister(const ResourceModule& module);

/// The first template with this number in the chain, or null.
const DialogTemplate* FindDialog(int number);

}  // namespace ResourceChain

}  // namespace AdvancedControl
