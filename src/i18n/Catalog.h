#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "i18n/MessageFormat.h"

namespace AdvancedControl {

// The process-wide message catalog. User-interface thread only; the library loads and unloads it
// while it is itself loaded and unloaded.

/// The identifier of a message: the category plus 256 in the upper 16 bits, the number in the lower
/// ones. Both must fit.
constexpr std::uint32_t MessageId(int category, int number) {
  return (static_cast<std::uint32_t>(category) + 256U) << 16 | static_cast<std::uint32_t>(number);
}

/// Loads the catalog module of the system language in place of any loaded before: "mcschn.dll" for
/// Simplified Chinese (2052 and 4100) or if the current directory contains a file "GETSCH", else
/// "mcdll.dll".
///
/// The module is the first file of that name beside this library, beside the application, in
/// "../share/advanced-control" or "../../share/advanced-control" from this library, in the
/// installed data folder, or in the current directory. If that file is damaged, no other is tried.
/// Returns 0, or −1 if no catalog could be loaded.
PROJECTOR_SETTINGS_EXPORT int LoadCatalog();

/// The same, but searches `folders` in their order; an empty name is the current directory.
PROJECTOR_SETTINGS_EXPORT int LoadCatalog(std::span<const std::string> folders);

/// The folders that the form without arguments searches.
PROJECTOR_SETTINGS_EXPORT std::vector<std::string> CatalogFolders();

/// Releases the loaded module, if any.
PROJECTOR_SETTINGS_EXPORT void ReleaseCatalog();

/// Why no catalog is loaded: which module was refused and why, or where none was found. Empty if a
/// catalog is loaded. Each failed `LoadCatalog` also logs it, as a warning of the category
/// "advancedcontrol.catalog".
PROJECTOR_SETTINGS_EXPORT std::string CatalogProblem();

/// Whether a module is loaded; without one every text is "No Message Catalog".
PROJECTOR_SETTINGS_EXPORT bool IsCatalogLoaded();

/// The language whose texts are shown now: the system language if the loaded module lists it and
/// there is no marker file. Otherwise the entries of 1033 are shown; the result is then 2052 for
/// the Chinese module, whose entries of 1033 are Chinese, and 1033 for the other one.
PROJECTOR_SETTINGS_EXPORT std::uint32_t ShownLanguageId();

/// `GetCatalogText` with the inserts in an array.
PROJECTOR_SETTINGS_EXPORT void GetCatalogTextV(int category, int number, int bufferSize,
                                               char* buffer,
                                               std::span<const CatalogInsert> inserts);

/// Writes a catalog text, UTF-8, without its closing line break, to `buffer`.
///
/// `bufferSize` is the buffer's size in bytes with the closing zero, which is always written; a
/// longer text is cut before the character that does not fit. With a size of 0 or less, or a null
/// buffer, nothing happens. `inserts` (texts and integers) fill the message's %1, %2 ...
///
/// The text is that of the system language, or else that of language 1033. With a file "GETENG" or
/// "GETSCH" in the current directory it is always that of 1033. Each call looks at the files and
/// the environment again. If there is no text, or it cannot be formatted, the result is "No Message
/// Catalog".
PROJECTOR_SETTINGS_EXPORT void GetCatalogText(int category, int number, int bufferSize,
                                              char* buffer);
template <class... Inserts>
requires(sizeof...(Inserts) > 0) void GetCatalogText(int category, int number, int bufferSize,
                                                     char* buffer, const Inserts&... inserts) {
  const std::array<CatalogInsert, sizeof...(Inserts)> list{CatalogInsert(inserts)...};
  GetCatalogTextV(category, number, bufferSize, buffer, list);
}

/// Speeds up getting many texts: while one exists, the language and the marker files are looked up
/// only once. Batches may be nested. The event loop must not run meanwhile.
class PROJECTOR_SETTINGS_EXPORT CatalogBatch {
 public:
  CatalogBatch();
  ~CatalogBatch();
  CatalogBatch(const CatalogBatch&) = delete;
  CatalogBatch& operator=(const CatalogBatch&) = delete;
};

/// The text that `GetCatalogText` writes to a buffer of `bufferSize` bytes.
template <int bufferSize = 1024, class... Inserts>
std::string CatalogText(int category, int number, const Inserts&... inserts) {
  std::array<char, static_cast<std::size_t>(bufferSize)> buffer;
  GetCatalogText(category, number, bufferSize, buffer.data(), inserts...);
  return buffer.data();
}

}  // namespace AdvancedControl
