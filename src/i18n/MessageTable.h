#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"

namespace AdvancedControl {

/// One message as its table holds it. The text belongs to the table.
struct CatalogMessage {
  /// UTF-8, with its closing line break, inserts not expanded.
  std::string_view text;
  /// True if the text is its own result: no % sequence, and every line break is CR LF.
  bool plain = false;
  /// True if no language of the table has another text for this message.
  bool sameEverywhere = false;
};

/// The messages of one message-table module, decoded to UTF-8. Holds no reference to the file.
///
/// Reads PE32 and PE32+ modules, message tables of any resource name and any number of languages,
/// with Unicode entries and entries in the ANSI code page of their language. Where several
/// resources hold the same message of a language, a numbered resource comes before a named one, a
/// lower number before a higher.
class MessageTable {
 public:
  /// Reads the module at `path`. Nothing if it cannot be read, is larger than 32 MiB, is damaged
  /// anywhere on the way to its messages, or holds no message.
  static std::optional<MessageTable> Read(const std::string& path);

  /// The same for a module in memory. Work and memory are bounded by its size.
  static std::optional<MessageTable> Parse(std::span<const std::byte> module);

  /// The message of exactly this language, or nothing. Valid as long as the table, moved or not.
  std::optional<CatalogMessage> Find(std::uint32_t languageId, std::uint32_t messageId) const;

  /// Number of messages, each language counted.
  std::size_t Count() const { return keys_.size(); }

  /// The message at a position below `Count()`, in the order of languages and numbers.
  CatalogMessage At(std::size_t position) const { return At(places_[position]); }

 private:
  struct Place {
    std::uint32_t offset;
    std::uint32_t length : 30;
    std::uint32_t plain : 1;
    std::uint32_t sameEverywhere : 1;
  };

  CatalogMessage At(Place place) const;
  void MarkSameEverywhere();

  // Language in the upper half, message in the lower; sorted, each with the place of its text. A
  // search among sorted keys cannot be slowed down by keys chosen to collide.
  std::vector<std::uint64_t> keys_;
  std::vector<Place> places_;
  std::vector<char> texts_;
};

}  // namespace AdvancedControl
