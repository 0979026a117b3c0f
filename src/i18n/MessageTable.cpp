#include "i18n/MessageTable.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "i18n/ModuleImage.h"
#include "i18n/SystemLanguage.h"
#include "i18n/TextDecoder.h"

namespace AdvancedControl {

namespace {

constexpr std::size_t kMaxMessages = std::size_t{1} << 18;
// No byte of a well-formed module is read twice, except that two languages may share an ANSI table.
constexpr std::uint64_t kMaxReadsOfAByte = 2;
constexpr std::size_t kUsualEntryBytes = 24;
constexpr std::uint32_t kMessageTableType = 11;
constexpr std::uint32_t kMaxLanguage = 0xFFFF;

bool IsPlain(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' || text[i] == '\n') return false;
    if (text[i] == '\r') {
      if (i + 1 == text.size() || text[i + 1] != '\n') return false;
      ++i;
    }
  }
  return true;
}

}  // namespace

// Collects all messages of a module. Members return false if the module is damaged.
class MessageTable::Reader {
 public:
  Reader(Bytes file, const ModuleImage& image, MessageTable& table)
      : image_(image), table_(table), budget_(kMaxReadsOfAByte * file.size()) {}

  bool ReadTypes() {
    const auto types = Directory(0);
    if (!types) return false;
    for (const DirectoryEntry& type : *types) {
      if (type.name == kMessageTableType && !(type.isDirectory && ReadResources(type.target))) {
        return false;
      }
    }
    return JoinTables() && !table_.ids_.empty();
  }

 private:
  // A table that was read. ANSI texts are read again for each language, because their code page
  // depends on it.
  struct ReadTable {
    Part part;
    bool isShareable = true;
  };
  // A language of a resource; the lowest resource has precedence.
  struct Use {
    std::uint32_t languageId;
    std::uint32_t resource;
    Part part;
  };

  struct DirectoryEntry {
    std::uint32_t name;  // a number, or the offset of a string if the highest bit is set
    bool isDirectory;
    std::uint32_t target;

    bool HasNumber() const { return (name & 0x80000000) == 0; }
  };

  // Whether `bytes` more may be read. The budget bounds the work for a module whose parts overlap.
  bool Spend(std::uint64_t bytes) {
    if (bytes > budget_) return false;
    budget_ -= bytes;
    return true;
  }

  // The entries of a resource directory, numbered entries first.
  std::optional<std::vector<DirectoryEntry>> Directory(std::uint32_t offset) {
    const auto header = Slice(image_.Resources(), offset, 16);
    if (!header) return {};
    const std::size_t named = U16(*header, 12);
    const std::size_t count = named + U16(*header, 14);
    const auto table = Slice(image_.Resources(), std::uint64_t{offset} + 16, 8 * count);
    if (!table || !Spend(16 + 8 * count)) return {};
    std::vector<DirectoryEntry> result;
    result.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint32_t target = U32(*table, 8 * i + 4);
      const DirectoryEntry entry{.name = U32(*table, 8 * i),
                                 .isDirectory = (target & 0x80000000) != 0,
                                 .target = target & 0x7FFFFFFF};
      if (entry.HasNumber() == (i < named)) return {};
      result.push_back(entry);
    }
    std::rotate(result.begin(), result.begin() + static_cast<std::ptrdiff_t>(named), result.end());
    return result;
  }

  bool ReadResources(std::uint32_t offset) {
    const auto resources = Directory(offset);
    if (!resources) return false;
    for (const DirectoryEntry& resource : *resources) {
      const auto languages =
          resource.isDirectory ? Directory(resource.target) : decltype(resources){};
      if (!languages) return false;
      for (const DirectoryEntry& language : *languages) {
        if (language.isDirectory || language.name > kMaxLanguage || !ReadLeaf(language)) {
          return false;
        }
      }
      ++resource_;
    }
    return true;
  }

  bool ReadLeaf(const DirectoryEntry& language) {
    const auto leaf = Slice(image_.Resources(), language.target, 16);
    if (!leaf) return false;
    const std::pair place(U32(*leaf, 0), U32(*leaf, 4));
    const auto known = tables_.find(place);
    if (known != tables_.end() && known->second.isShareable) {
      uses_.push_back({language.name, resource_, known->second.part});
      return true;
    }
    const auto data = image_.From(place.first);
    const auto table = data ? Slice(*data, 0, place.second) : std::nullopt;
    ReadTable read{.part = {.begin = Size(), .end = Size()}};
    if (!table || !Read(language.name, *table, read)) return false;
    read.part.end = Size();
    tables_.insert_or_assign(place, read);
    uses_.push_back({language.name, resource_, read.part});
    return true;
  }

  bool Read(std::uint32_t languageId, Bytes table, ReadTable& read) {
    const auto header = Slice(table, 0, 4);
    if (!header) return false;
    const std::uint64_t blockCount = U32(*header, 0);
    const auto blocks = Slice(table, 4, 12 * blockCount);
    if (!blocks) return false;
    // The texts must follow the blocks without overlap or gap, and the identifiers must ascend.
    // Otherwise a damaged number could assign a text to the wrong message.
    std::uint64_t offset = 4 + blocks->size();
    std::int64_t last = -1;
    for (std::size_t at = 0; at < blocks->size(); at += 12) {
      const std::uint32_t low = U32(*blocks, at);
      const std::uint32_t high = U32(*blocks, at + 4);
      if (low > high || std::cmp_less_equal(low, last) || U32(*blocks, at + 8) != offset) {
        return false;
      }
      last = high;
      for (std::uint64_t id = low; id <= high; ++id) {
        const auto head = Slice(table, offset, 4);
        const std::size_t length = head ? U16(*head, 0) : 0;
        const auto entry = Slice(table, offset, length);
        if (length < 4 || length % 4 != 0 || !entry || !Spend(length)) return false;
        const std::uint16_t flags = U16(*head, 2);
        read.isShareable &= flags == 1;
        const auto messageId = static_cast<std::uint32_t>(id);
        if (!AddMessage(languageId, messageId, flags, entry->subspan(4))) return false;
        offset += length;
      }
    }
    constexpr std::size_t kPadding = 4;
    return table.size() - offset < kPadding;
  }

  bool AddMessage(std::uint32_t languageId, std::uint32_t id, std::uint16_t flags, Bytes text) {
    if (table_.ids_.size() == kMaxMessages) return false;
    std::vector<char>& texts = table_.texts_;
    const std::size_t start = texts.size();
    bool isDecoded = flags == 1;
    if (flags == 1) decoder_.AppendUnicode(text, texts);
    if (flags == 0) isDecoded = decoder_.AppendAnsi(languageId, text, texts);
    if (!isDecoded) return false;
    const std::size_t length = texts.size() - start;
    table_.ids_.push_back(id);
    table_.places_.push_back({.offset = static_cast<std::uint32_t>(start),
                              .length = static_cast<std::uint32_t>(length) & 0x3FFFFFFF,
                              .plain = IsPlain({texts.data() + start, length}) ? 1U : 0U,
                              .sameEverywhere = 0});
    return true;
  }

  // Gives each language its messages. Fails if one resource has two texts for the same message.
  bool JoinTables() {
    std::ranges::sort(uses_, {}, [](const Use& use) {
      return std::tuple(use.languageId, use.resource, use.part.begin);
    });
    for (auto first = uses_.begin(); first != uses_.end();) {
      const auto last = std::find_if(
          first, uses_.end(), [&](const Use& use) { return use.languageId != first->languageId; });
      Part part = first->part;
      if (last - first > 1 && !Merge({first, last}, part)) return false;
      table_.languages_.push_back({first->languageId, part});
      first = last;
    }
    return true;
  }

  // The messages of all resources of a language, each from the first resource that has it.
  bool Merge(std::span<const Use> uses, Part& part) {
    struct Entry {
      std::uint32_t id;
      std::uint32_t resource;
      Place place;
    };
    std::vector<Entry> entries;
    for (const Use& use : uses) {
      merged_ += use.part.end - use.part.begin;
      if (merged_ > kMaxMessages) return false;
      for (std::uint32_t i = use.part.begin; i < use.part.end; ++i) {
        entries.push_back({table_.ids_[i], use.resource, table_.places_[i]});
      }
    }
    std::ranges::sort(entries, {}, [](const Entry& e) { return std::pair(e.id, e.resource); });
    part = {.begin = Size(), .end = Size()};
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (i > 0 && entries[i].id == entries[i - 1].id) {
        if (entries[i].resource == entries[i - 1].resource) return false;
        continue;
      }
      table_.ids_.push_back(entries[i].id);
      table_.places_.push_back(entries[i].place);
    }
    part.end = Size();
    return true;
  }

  std::uint32_t Size() const { return static_cast<std::uint32_t>(table_.ids_.size()); }

  const ModuleImage& image_;
  MessageTable& table_;
  std::uint64_t budget_;
  std::uint32_t resource_ = 0;
  std::size_t merged_ = 0;
  std::map<std::pair<std::uint32_t, std::uint32_t>, ReadTable> tables_;  // by address and size
  std::vector<Use> uses_;
  TextDecoder decoder_;
};

std::optional<MessageTable> MessageTable::Read(const std::string& path) {
  return Parse(ReadModule(path));
}

std::optional<MessageTable> MessageTable::Parse(std::span<const std::byte> module) {
  const auto image = ModuleImage::Open(module);
  if (!image) return {};
  MessageTable table;
  // More than is needed: memory that is reserved but not used costs nothing.
  table.texts_.reserve(module.size());
  table.ids_.reserve(module.size() / kUsualEntryBytes);
  table.places_.reserve(module.size() / kUsualEntryBytes);
  if (!Reader(module, *image, table).ReadTypes()) return {};
  table.MarkSameEverywhere();
  return table;
}

std::optional<MessageTable::Part> MessageTable::PartOf(std::uint32_t languageId) const {
  const auto found =
      std::ranges::lower_bound(languages_, languageId, {}, &LanguagePart::languageId);
  const bool isKnown = found != languages_.end() && found->languageId == languageId;
  return isKnown ? std::optional(found->part) : std::nullopt;
}

std::optional<std::size_t> MessageTable::Search(Part part, std::uint32_t messageId) const {
  const std::span ids = std::span(ids_).subspan(part.begin, part.end - part.begin);
  const auto found = std::ranges::lower_bound(ids, messageId);
  if (found == ids.end() || *found != messageId) return {};
  return part.begin + static_cast<std::size_t>(found - ids.begin());
}

void MessageTable::MarkSameEverywhere() {
  const auto english = PartOf(kEnglishUnitedStates);
  if (!english) return;
  const Part own = *english;
  english_ = own;
  index_.Build(std::span(ids_).subspan(own.begin, own.end - own.begin));
  for (std::uint32_t i = own.begin; i < own.end; ++i) places_[i].sameEverywhere = 1;
  std::vector<Part> others;
  for (const LanguagePart& language : languages_) others.push_back(language.part);
  std::ranges::sort(others);
  // Not ranges::unique: clang 14 cannot use its result with this standard library.
  others.erase(std::unique(others.begin(), others.end()), others.end());
  for (const Part other : others) {
    if (other == own) continue;
    std::uint32_t next = own.begin;  // Languages mostly have the same messages.
    for (std::uint32_t i = other.begin; i < other.end; ++i, ++next) {
      if (next >= own.end || ids_[next] != ids_[i]) {
        const auto found = FindIn(own, ids_[i]);
        if (!found) continue;
        next = static_cast<std::uint32_t>(*found);
      }
      if (At(places_[i]).text != At(places_[next]).text) places_[next].sameEverywhere = 0;
    }
  }
}

std::optional<CatalogMessage> MessageTable::Find(std::uint32_t languageId,
                                                 std::uint32_t messageId) const {
  const auto part = PartOf(languageId);
  const CatalogMessage message = part ? Find(*part, messageId) : CatalogMessage();
  return message ? std::optional(message) : std::nullopt;
}

std::vector<MessageTable::Language> MessageTable::Languages() const {
  std::map<Part, std::uint32_t> firsts;
  std::vector<Language> languages;
  for (const LanguagePart& language : languages_) {
    const auto first = firsts.emplace(language.part, language.languageId).first;
    languages.push_back({language.languageId, first->second});
  }
  return languages;
}

}  // namespace AdvancedControl
