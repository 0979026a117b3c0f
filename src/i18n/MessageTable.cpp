#include "i18n/MessageTable.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <numeric>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include "i18n/ModuleImage.h"

namespace AdvancedControl {

namespace {

constexpr std::size_t kMaxFileBytes = std::size_t{32} << 20;
constexpr std::size_t kMaxMessages = std::size_t{1} << 20;
// In a well-formed module no byte is read twice, except that two languages may share a table.
constexpr std::uint64_t kMaxReadsOfAByte = 2;
constexpr std::uint32_t kMessageTableType = 11;
constexpr std::uint32_t kMaxLanguage = 0xFFFF;

// The bytes of a regular file of acceptable size, otherwise none. The file is not mapped, because
// truncating a mapped file would crash the program.
std::vector<std::byte> ReadFile(const std::string& path) {
  std::vector<std::byte> bytes;
  // O_NONBLOCK, because the name may be that of a pipe, whose opening would wait for the other end.
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return bytes;
  struct stat status {};
  if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0 &&
      std::cmp_less_equal(status.st_size, kMaxFileBytes)) {
    bytes.resize(static_cast<std::size_t>(status.st_size));
    std::size_t got = 0;
    while (got < bytes.size()) {
      const ssize_t count = read(file, bytes.data() + got, bytes.size() - got);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) break;
      got += static_cast<std::size_t>(count);
    }
    bytes.resize(got);
  }
  close(file);
  return bytes;
}

// ANSI code pages of languages: whole identifiers, or primary languages (below 0x400). The first
// line that contains a language applies.
struct AnsiCodePage {
  const char* converter;
  std::array<std::uint16_t, 10> languages;
};

constexpr AnsiCodePage kAnsiCodePages[] = {
    {"windows-950", {0x0404, 0x0C04, 0x1404}},
    {"windows-936", {0x04}},
    {"windows-932", {0x11}},
    {"windows-949", {0x12}},
    {"windows-874", {0x1E}},
    // Serbian, Bosnian, Azeri and Uzbek in Cyrillic script.
    {"windows-1251", {0x0C1A, 0x1C1A, 0x201A, 0x281A, 0x301A, 0x082C, 0x0843}},
    {"windows-1250", {0x05, 0x0E, 0x15, 0x18, 0x1A, 0x1B, 0x1C, 0x24}},
    {"windows-1251", {0x02, 0x19, 0x22, 0x23, 0x2F, 0x3F, 0x40, 0x44}},
    {"windows-1253", {0x08}},
    {"windows-1254", {0x1F, 0x2C, 0x43}},
    {"windows-1255", {0x0D}},
    {"windows-1256", {0x01, 0x20, 0x29}},
    {"windows-1257", {0x25, 0x26, 0x27}},
    {"windows-1258", {0x2A}},
};

const char* AnsiConverter(std::uint32_t languageId) {
  for (const AnsiCodePage& codePage : kAnsiCodePages) {
    for (const std::uint32_t language : codePage.languages) {
      if (language != 0 && (language == languageId || language == (languageId & 0x3FF))) {
        return codePage.converter;
      }
    }
  }
  return "windows-1252";
}

// Decodes the texts of entries. Caches the converter of the last language.
class TextDecoder {
 public:
  // Appends the text up to its first zero character, as UTF-8; invalid characters become U+FFFD.
  bool AppendUnicode(Bytes bytes, std::vector<char>& texts) {
    utf16_.clear();
    for (std::size_t i = 0; i + 1 < bytes.size() && U16(bytes, i) != 0; i += 2) {
      utf16_.push_back(static_cast<char16_t>(U16(bytes, i)));
    }
    return AppendUtf16(utf16_.size(), texts);
  }

  bool AppendAnsi(std::uint32_t languageId, Bytes bytes, std::vector<char>& texts) {
    UErrorCode error = U_ZERO_ERROR;
    const char* codePage = AnsiConverter(languageId);
    if (codePage != codePage_) {
      converter_.reset(ucnv_open(codePage, &error));
      codePage_ = converter_ ? codePage : nullptr;
    }
    if (!converter_) return false;
    const auto end = std::find(bytes.begin(), bytes.end(), std::byte{0});
    const auto length = static_cast<std::int32_t>(end - bytes.begin());
    utf16_.resize(4 * static_cast<std::size_t>(length) + 8);
    const std::int32_t units =
        ucnv_toUChars(converter_.get(), utf16_.data(), static_cast<std::int32_t>(utf16_.size()),
                      reinterpret_cast<const char*>(bytes.data()), length, &error);
    return U_SUCCESS(error) && AppendUtf16(static_cast<std::size_t>(units), texts);
  }

 private:
  bool AppendUtf16(std::size_t units, std::vector<char>& texts) {
    const std::size_t start = texts.size();
    texts.resize(start + 3 * units);
    std::int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strToUTF8WithSub(texts.data() + start, static_cast<std::int32_t>(3 * units), &length,
                       utf16_.data(), static_cast<std::int32_t>(units), 0xFFFD, nullptr, &error);
    if (U_FAILURE(error)) return false;
    texts.resize(start + static_cast<std::size_t>(length));
    return true;
  }

  struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
  };
  std::u16string utf16_;
  std::unique_ptr<UConverter, CloseConverter> converter_;
  const char* codePage_ = nullptr;
};

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

struct Entry {
  std::uint64_t key;
  std::uint32_t resource;  // index of the message table; the lowest has precedence
  std::uint32_t offset;
  std::uint32_t length;
};

// Collects all messages of a module. Members return false if the module is damaged.
class TableReader {
 public:
  TableReader(Bytes file, const ModuleImage& image)
      : image_(image), budget_(kMaxReadsOfAByte * file.size()) {}

  bool ReadTypes() {
    const auto types = Directory(0);
    if (!types) return false;
    for (const DirectoryEntry& type : *types) {
      if (type.name == kMessageTableType && !(type.isDirectory && ReadResources(type.target))) {
        return false;
      }
    }
    return SortEntries();
  }

  std::vector<Entry> entries;
  std::vector<char> texts;

 private:
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
    const auto data = image_.From(U32(*leaf, 0));
    const auto table = data ? Slice(*data, 0, U32(*leaf, 4)) : std::nullopt;
    return table && ReadTable(language.name, *table);
  }

  bool ReadTable(std::uint32_t languageId, Bytes table) {
    const auto header = Slice(table, 0, 4);
    if (!header) return false;
    const std::uint64_t blockCount = U32(*header, 0);
    const auto blocks = Slice(table, 4, 12 * blockCount);
    if (!blocks || !Spend(blocks->size())) return false;
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
        const auto messageId = static_cast<std::uint32_t>(id);
        if (!AddMessage(languageId, messageId, U16(*head, 2), entry->subspan(4))) return false;
        offset += length;
      }
    }
    constexpr std::size_t kPadding = 4;
    return table.size() - offset < kPadding;
  }

  bool AddMessage(std::uint32_t languageId, std::uint32_t id, std::uint16_t flags, Bytes text) {
    if (entries.size() == kMaxMessages) return false;
    const std::size_t start = texts.size();
    const bool decoded = flags == 1   ? decoder_.AppendUnicode(text, texts)
                         : flags == 0 ? decoder_.AppendAnsi(languageId, text, texts)
                                      : false;
    if (!decoded) return false;
    entries.push_back({.key = std::uint64_t{languageId} << 32 | id,
                       .resource = resource_,
                       .offset = static_cast<std::uint32_t>(start),
                       .length = static_cast<std::uint32_t>(texts.size() - start)});
    return true;
  }

  // Sorts by key and keeps the message of the first resource. Fails if one resource has two texts
  // for the same message.
  bool SortEntries() {
    std::ranges::sort(entries, {},
                      [](const Entry& entry) { return std::pair(entry.key, entry.resource); });
    for (std::size_t i = 1; i < entries.size(); ++i) {
      if (entries[i].key == entries[i - 1].key && entries[i].resource == entries[i - 1].resource) {
        return false;
      }
    }
    const auto sameKey = [](const Entry& a, const Entry& b) { return a.key == b.key; };
    entries.erase(std::unique(entries.begin(), entries.end(), sameKey), entries.end());
    return !entries.empty();
  }

  const ModuleImage& image_;
  std::uint64_t budget_;
  std::uint32_t resource_ = 0;
  TextDecoder decoder_;
};

}  // namespace

std::optional<MessageTable> MessageTable::Read(const std::string& path) {
  return Parse(ReadFile(path));
}

std::optional<MessageTable> MessageTable::Parse(std::span<const std::byte> module) {
  if (module.size() > kMaxFileBytes) return {};
  const auto image = ModuleImage::Open(module);
  if (!image) return {};
  TableReader reader(module, *image);
  if (!reader.ReadTypes()) return {};

  MessageTable table;
  table.texts_ = std::move(reader.texts);
  table.texts_.shrink_to_fit();
  table.keys_.reserve(reader.entries.size());
  table.places_.reserve(reader.entries.size());
  for (const Entry& entry : reader.entries) {
    const std::string_view text(table.texts_.data() + entry.offset, entry.length);
    table.keys_.push_back(entry.key);
    table.places_.push_back({.offset = entry.offset,
                             .length = entry.length & 0x3FFFFFFF,
                             .plain = IsPlain(text) ? 1U : 0U,
                             .sameEverywhere = 0});
  }
  table.MarkSameEverywhere();
  return table;
}

CatalogMessage MessageTable::At(Place place) const {
  return {.text = {texts_.data() + place.offset, place.length},
          .plain = place.plain != 0,
          .sameEverywhere = place.sameEverywhere != 0};
}

void MessageTable::MarkSameEverywhere() {
  const auto messageOf = [this](std::size_t i) { return static_cast<std::uint32_t>(keys_[i]); };
  std::vector<std::size_t> byMessage(keys_.size());
  std::iota(byMessage.begin(), byMessage.end(), std::size_t{0});
  std::ranges::sort(byMessage, {}, messageOf);
  for (auto first = byMessage.begin(); first != byMessage.end();) {
    const auto last = std::find_if(
        first, byMessage.end(), [&](std::size_t i) { return messageOf(i) != messageOf(*first); });
    const bool same = std::all_of(first, last, [&](std::size_t i) {
      return At(places_[i]).text == At(places_[*first]).text;
    });
    for (; first != last; ++first) places_[*first].sameEverywhere = same ? 1 : 0;
  }
}

std::optional<CatalogMessage> MessageTable::Find(std::uint32_t languageId,
                                                 std::uint32_t messageId) const {
  const std::uint64_t key = std::uint64_t{languageId} << 32 | messageId;
  const auto found = std::ranges::lower_bound(keys_, key);
  if (found == keys_.end() || *found != key) return {};
  return At(places_[static_cast<std::size_t>(found - keys_.begin())]);
}

}  // namespace AdvancedControl
