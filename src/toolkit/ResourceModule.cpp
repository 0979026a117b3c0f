#include "toolkit/ResourceModule.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace AdvancedControl {

namespace {

struct Chain {
  const ResourceModule* current = nullptr;
  std::vector<const ResourceModule*> registered;
};

// A local static, because libraries register while they are loaded, before other static objects
// exist.
Chain& TheChain() {
  static Chain chain;
  return chain;
}

}  // namespace

const DialogTemplate* ResourceModule::FindDialog(int number) const {
  const auto found = std::ranges::find(dialogs_, number, &DialogTemplate::number);
  return found == dialogs_.end() ? nullptr : *found;
}

namespace ResourceChain {

const ResourceModule* Current() { return TheChain().current; }

const ResourceModule* SetCurrent(const ResourceModule* module) {
  return std::exchange(TheChain().current, module);
}

void Register(const ResourceModule& module) {
  TheChain().registered.insert(TheChain().registered.begin(), &module);
}

void Unregister(const ResourceModule& module) {
  Chain& chain = TheChain();
  std::erase(chain.registered, &module);
  if (chain.current == &module) chain.current = nullptr;
}

const DialogTemplate* FindDialog(int number) {
  const Chain& chain = TheChain();
  if (chain.current != nullptr) {
    if (const DialogTemplate* found = chain.current->FindDialog(number)) return found;
  }
  for (const ResourceModule* module : chain.registered) {
    if (const DialogTemplate* found = module->FindDialog(number)) return found;
  }
  return nullptr;
}

}  // namespace ResourceChain

}  // namespace AdvancedControl
