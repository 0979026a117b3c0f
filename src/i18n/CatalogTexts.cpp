#include "i18n/CatalogTexts.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

#include "i18n/Catalog.h"

namespace AdvancedControl {

CatalogTexts::CatalogTexts(std::span<const std::string> folders) {
  for (const char* module : {"mcdll.dll", "mcschn.dll"}) {
    for (const std::string& folder : folders) {
      const std::filesystem::path path = std::filesystem::path(folder) / module;
      std::error_code error;
      if (!std::filesystem::is_regular_file(path, error)) continue;
      if (auto loaded = MessageCatalog::Load(path.string())) {
        modules_.push_back(std::move(*loaded));
      } else if (problem_.empty()) {
        problem_ = path.string() + " is damaged or cannot be read; its texts are missing";
      }
      break;
    }
  }
}

std::optional<std::string> CatalogTexts::Find(std::uint32_t languageId, int category, int number,
                                              std::span<const CatalogInsert> inserts) const {
  for (const MessageCatalog& module : modules_) {
    const auto message = module.Find(languageId, MessageId(category, number));
    if (!message) continue;
    auto text = message->plain ? std::optional<std::string>(message->text)
                               : ExpandMessage(message->text, inserts);
    if (!text) return {};
    while (text->ends_with('\n') || text->ends_with('\r')) text->pop_back();
    return text;
  }
  return {};
}

std::vector<MessageTable::Language> CatalogTexts::Languages() const {
  std::vector<MessageTable::Language> all;
  for (const MessageCatalog& module : modules_) {
    std::map<std::uint32_t, std::uint32_t> firsts;  // the Chinese module has 1033 too
    for (const auto& [id, first] : module.Languages()) {
      if (std::ranges::find(all, id, &MessageTable::Language::id) != all.end()) continue;
      all.push_back({.id = id, .first = firsts.emplace(first, id).first->second});
    }
  }
  return all;
}

}  // namespace AdvancedControl
