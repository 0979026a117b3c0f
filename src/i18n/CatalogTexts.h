#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Namespace.h"
#include "i18n/MessageCatalog.h"
#include "i18n/MessageFormat.h"

namespace AdvancedControl {

/// The texts of all catalog modules in all languages. Unlike the process-wide catalog, it has no
/// shared state and may be read from several threads at once.
class CatalogTexts {
 public:
  /// Loads each module from the first of `folders` that contains it; skips damaged modules.
  explicit CatalogTexts(std::span<const std::string> folders);

  /// One line about the first module that is there but could not be loaded; empty if there is none.
  const std::string& Problem() const { return problem_; }

  /// The text in exactly this language, without its closing line break; nothing if there is none or
  /// the inserts do not fit.
  std::optional<std::string> Find(std::uint32_t languageId, int category, int number,
                                  std::span<const CatalogInsert> inserts = {}) const;

  /// The languages of all modules. A language in two modules is listed once, as in the first one.
  std::vector<MessageTable::Language> Languages() const;

 private:
  std::vector<MessageCatalog> modules_;
  std::string problem_;
};

}  // namespace AdvancedControl
