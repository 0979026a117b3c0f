#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Namespace.h"
#include "i18n/MessageCatalog.h"
#include "i18n/MessageFormat.h"

namespace AdvancedControl {

/// The texts of all catalog modules at once, each asked for by its language. Unlike the
/// process-wide catalog it holds no state but its own, and may be read from several threads.
class CatalogTexts {
 public:
  /// Loads every module that the first of `folders` has that has it; a damaged one is as none.
  explicit CatalogTexts(std::span<const std::string> folders);

  /// A text in exactly this language, without its closing line break; nothing where there is none
  /// or the inserts do not fit.
  std::optional<std::string> Find(std::uint32_t languageId, int category, int number,
                                  std::span<const CatalogInsert> inserts = {}) const;

 private:
  std::vector<MessageCatalog> modules_;
};

}  // namespace AdvancedControl
