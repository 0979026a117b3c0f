#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "i18n/MessageFormat.h"
#include "i18n/MessageTable.h"

/// A loaded catalog module. Movable; independent of the file once loaded.
class MessageCatalog {
 public:
  /// Loads the module at `path` as data. Nothing if there is none or it is damaged.
  static std::optional<MessageCatalog> Load(const std::string& path);

  /// The unexpanded message of exactly this language, or nothing.
  std::optional<CatalogMessage> Find(std::uint32_t languageId, std::uint32_t messageId) const {
    return messages_.Find(languageId, messageId);
  }

  /// The message of exactly this language with its inserts expanded (`ExpandMessage`), closing line
  /// break included. Nothing if it is missing or cannot be expanded.
  std::optional<std::string> Format(std::uint32_t languageId, std::uint32_t messageId,
                                    std::span<const CatalogInsert> inserts = {}) const;

 private:
  explicit MessageCatalog(MessageTable messages) : messages_(std::move(messages)) {}

  MessageTable messages_;
};
