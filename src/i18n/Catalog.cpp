#include "i18n/Catalog.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dlfcn.h>
#include <exception>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

#include <QLoggingCategory>

#include "i18n/MessageCatalog.h"
#include "i18n/SystemLanguage.h"

namespace AdvancedControl {

namespace {

namespace fs = std::filesystem;

constexpr const char* kEnglishMarker = "GETENG";
constexpr const char* kChineseMarker = "GETSCH";
constexpr std::string_view kNoCatalog = "No Message Catalog";

// A local static, because it may be used before main and from other static objects.
std::optional<MessageCatalog>& LoadedCatalog() {
  static std::optional<MessageCatalog> catalog;
  return catalog;
}

// The reason why no catalog is loaded.
std::string& Problem() {
  static std::string problem;
  return problem;
}

int Fail(std::string problem) {
  Problem() = std::move(problem);
  static const QLoggingCategory category("advancedcontrol.catalog");
  qCWarning(category, "%s", Problem().c_str());
  return -1;
}

// Whether the current directory contains this name.
bool MarkerExists(const char* name) { return access(name, F_OK) == 0; }

// Whether a marker selects the text of 1033; either does.
bool HasMarker() { return MarkerExists(kChineseMarker) || MarkerExists(kEnglishMarker); }

// Expands a text into `storage`. Its data is null if that fails.
std::string_view Expanded(std::string_view text, std::span<const CatalogInsert> inserts,
                          std::string& storage) {
  auto expanded = ExpandMessage(text, inserts);
  if (!expanded) return {};
  storage = std::move(*expanded);
  return storage;
}

// The text of a message. If it has % sequences, it is expanded into `storage`.
inline std::string_view TextOf(CatalogMessage message, std::span<const CatalogInsert> inserts,
                               std::string& storage) {
  return message.plain ? message.text : Expanded(message.text, inserts, storage);
}

inline std::string_view TextIn(const MessageCatalog& catalog, MessageTable::Part part,
                               std::uint32_t id, std::span<const CatalogInsert> inserts,
                               std::string& storage) {
  const CatalogMessage message = catalog.Find(part, id);
  return message ? TextOf(message, inserts, storage) : std::string_view();
}

/// The messages of the system's language, which have precedence over those of 1033; nothing if
/// only those of 1033 are shown.
std::optional<MessageTable::Part> OwnPart(const MessageCatalog& catalog) {
  const std::uint32_t language = SystemLanguageId();
  if (language == kEnglishUnitedStates) return {};
  const auto own = catalog.PartOf(language);
  return own && !HasMarker() ? own : std::nullopt;
}

/// What the outermost batch has found.
struct Batch {
  int depth = 0;
  bool isCurrent = false;  // nobody has loaded another catalog since
  std::optional<MessageTable::Part> own;
};
Batch& PresentBatch() {
  static Batch batch;
  return batch;
}

// The data is null if there is no text.
std::string_view FindText(int category, int number, std::span<const CatalogInsert> inserts,
                          std::string& storage) {
  const auto& catalog = LoadedCatalog();
  if (!catalog || number < 0 || number > 0xFFFF || category < -256 || category > 0xFEFF) return {};
  const std::uint32_t id = MessageId(category, number);
  const Batch& batch = PresentBatch();
  if (batch.isCurrent && batch.own) {
    const std::string_view text = TextIn(*catalog, *batch.own, id, inserts, storage);
    if (text.data() != nullptr) return text;
  }
  const CatalogMessage english = catalog->FindEnglish(id);
  // Skips the query for language and markers, which would take longer than everything else.
  const bool isEnglish = batch.isCurrent || english.sameEverywhere;
  if (const auto part = isEnglish ? std::nullopt : OwnPart(*catalog)) {
    const std::string_view text = TextIn(*catalog, *part, id, inserts, storage);
    if (text.data() != nullptr) return text;
  }
  return english ? TextOf(english, inserts, storage) : std::string_view();
}

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

std::string_view WithoutLastCharacter(std::string_view text) {
  while (!text.empty() && ContinuesCharacter(text.back())) text.remove_suffix(1);
  if (!text.empty()) text.remove_suffix(1);
  return text;
}

void CopyText(std::string_view text, int bufferSize, char* buffer) {
  const auto room = static_cast<std::size_t>(bufferSize) - 1;
  std::size_t length = std::min(text.size(), room);
  if (length < text.size()) {
    while (length > 0 && ContinuesCharacter(text[length])) --length;
  }
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
}

}  // namespace

std::vector<std::string> CatalogFolders() {
  Dl_info library{};
  fs::path libraryFolder;
  // unreachable: no library; the tests load one that is a file
  if (dladdr(reinterpret_cast<const void*>(&IsCatalogLoaded), &library) != 0 && library.dli_fname) {
    libraryFolder = fs::path(library.dli_fname).parent_path();
  }
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);

  std::vector<std::string> folders;
  // unreachable: no folder; only a library that is part of a program may have none
  if (!libraryFolder.empty()) folders.push_back(libraryFolder.string());
  // unreachable: no program; there is a /proc
  if (!program.empty()) folders.push_back(program.parent_path().string());
  // unreachable: the same
  if (!libraryFolder.empty()) {
    folders.push_back((libraryFolder / "../share/advanced-control").string());
    // For a library in a folder named after its architecture.
    folders.push_back((libraryFolder / "../../share/advanced-control").string());
  }
#ifdef ADVANCEDCONTROL_DATADIR
  folders.emplace_back(ADVANCEDCONTROL_DATADIR);
#endif
  folders.emplace_back();
  return folders;
}

int LoadCatalog() {
  try {
    return LoadCatalog(CatalogFolders());
  } catch (const std::exception&) {
    ReleaseCatalog();
    return -1;
  }
}

int LoadCatalog(std::span<const std::string> folders) {
  ReleaseCatalog();
  const std::uint32_t language = SystemLanguageId();
  const bool chinese = language == kChineseSimplified || language == kChineseSingapore ||
                       MarkerExists(kChineseMarker);
  const char* module = chinese ? "mcschn.dll" : "mcdll.dll";
  Problem().clear();
  std::string looked;
  for (const std::string& folder : folders) {
    const fs::path path = fs::path(folder) / module;
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
      looked += (looked.empty() ? "" : ", ") + (folder.empty() ? std::string(".") : folder);
      continue;
    }
    LoadedCatalog() = MessageCatalog::Load(path.string());
    if (IsCatalogLoaded()) return 0;
    const char* const reason = access(path.c_str(), R_OK) == 0
                                   ? "it is no message module, or a damaged one"
                                   : std::strerror(errno);
    return Fail(path.string() + " is refused: " + reason);
  }
  return Fail(std::string(module) + " is not found in " + looked);
}

std::string CatalogProblem() { return Problem(); }

void ReleaseCatalog() {
  PresentBatch().isCurrent = false;
  LoadedCatalog().reset();
}

CatalogBatch::CatalogBatch() {
  Batch& batch = PresentBatch();
  if (batch.depth++ > 0 || !IsCatalogLoaded()) return;
  batch.own = OwnPart(*LoadedCatalog());
  batch.isCurrent = true;
}

CatalogBatch::~CatalogBatch() {
  Batch& batch = PresentBatch();
  if (--batch.depth == 0) batch.isCurrent = false;
}

bool IsCatalogLoaded() { return LoadedCatalog().has_value(); }

std::uint32_t ShownLanguageId() {
  const auto& catalog = LoadedCatalog();
  if (!catalog) return kEnglishUnitedStates;
  const std::uint32_t language = SystemLanguageId();
  if (catalog->HasLanguage(language) && !HasMarker()) return language;
  return catalog->HasLanguage(kChineseSimplified) ? kChineseSimplified : kEnglishUnitedStates;
}

void GetCatalogText(int category, int number, int bufferSize, char* buffer) {
  GetCatalogTextV(category, number, bufferSize, buffer, {});
}

void GetCatalogTextV(int category, int number, int bufferSize, char* buffer,
                     std::span<const CatalogInsert> inserts) {
  if (bufferSize <= 0 || !buffer) return;
  std::string storage;
  const std::string_view text = FindText(category, number, inserts, storage);
  // Removes the line break that ends every entry.
  CopyText(text.data() != nullptr ? WithoutLastCharacter(WithoutLastCharacter(text)) : kNoCatalog,
           bufferSize, buffer);
}

}  // namespace AdvancedControl
