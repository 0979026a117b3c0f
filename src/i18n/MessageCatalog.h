#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "i18n/MessageTable.h"

namespace AdvancedControl {

/// A loaded catalog module. It no longer needs the file. May be read from several threads at once.
class MessageCatalog {
 public:
  /// Loads the module at `path` as data. Nothing if there is none or it is damaged.
  static std::optional<MessageCatalog> Load(const std::string& path);

  /// The unexpanded message of exactly this language, or nothing.
  std::optional<CatalogMessage> Find(std::uint32_t languageId, std::uint32_t messageId) const {
    return messages_.Find(languageId, messageId);
  }

  /// Where the messages of a language are, if it has any; makes lookups faster. The result of such
  /// a lookup is false if there is no message.
  std::optional<MessageTable::Part> PartOf(std::uint32_t languageId) const {
    return messages_.PartOf(languageId);
  }
  CatalogMessage Find(MessageTable::Part part, std::uint32_t messageId) const {
    return messages_.Find(part, messageId);
  }

  /// The same in language 1033.
  CatalogMessage FindEnglish(std::uint32_t messageId) const {
    return messages_.FindEnglish(messageId);
  }

  bool HasLanguage(std::uint32_t languageId) const { return messages_.HasLanguage(languageId); }

  /// The languages that it has messages in.
  std::vector<MessageTable::Language> Languages() const { return messages_.Languages(); }

 private:
  explicit MessageCatalog(MessageTable messages) : messages_(std::move(messages)) {}

  MessageTable messages_;
};

}  // namespace AdvancedControl
