#include "i18n/MessageCatalog.h"

#include <exception>

namespace AdvancedControl {

std::optional<MessageCatalog> MessageCatalog::Load(const std::string& path) {
  try {
    auto messages = MessageTable::Read(path);
    if (messages) return MessageCatalog(std::move(*messages));
  } catch (const std::exception&) {
    // Out of memory counts as no module.
  }
  return {};
}

}  // namespace AdvancedControl
