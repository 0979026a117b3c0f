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

/// A message of a table, which owns the text.
struct CatalogMessage {
  /// UTF-8, with its closing line break and unexpanded inserts.
  std::string_view text;
  /// True if expanding would not change the text: it has no % sequence, and every line break is CR
  /// LF.
  bool plain = false;
  /// True if all languages of the table have the same text for this message.
  bool sameEverywhere = false;
};

/// The messages of one module, decoded to UTF-8. It no longer needs the file. May be read from
/// several threads at once.
///
/// Reads PE32 and PE32+ modules, message tables of any resource name and any number of languages,
/// with Unicode entries and entries in the ANSI code page of their language. If several resources
/// contain the same message of a language, a numbered resource has precedence over a named one, and
/// a lower number over a higher.
class MessageTable {
 public:
  /// Reads the module at `path`. Nothing if it cannot be read, is larger than 32 MiB, is damaged in
  /// a part that leads to its messages, or contains no message.
  static std::optional<MessageTable> Read(const std::string& path);

  /// The same for a module in memory. Time and memory are bounded by its size.
  static std::optional<MessageTable> Parse(std::span<const std::byte> module);

  /// The message in exactly this language, or nothing. Its text is valid for the lifetime of the
  /// table, even if the table is moved.
  std::optional<CatalogMessage> Find(std::uint32_t languageId, std::uint32_t messageId) const;

  /// Number of messages, counting each language.
  std::size_t Count() const { return keys_.size(); }

  /// The message at a position below `Count()`, sorted by language and number.
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

  // Language in the upper half, message in the lower; sorted. Not a hash table, because a module
  // could contain keys chosen to collide.
  std::vector<std::uint64_t> keys_;
  std::vector<Place> places_;
  std::vector<char> texts_;
};

}  // namespace AdvancedControl
