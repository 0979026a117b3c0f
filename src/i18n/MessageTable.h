#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "i18n/MessageIndex.h"

namespace AdvancedControl {

/// A message of a table, which owns the text.
struct CatalogMessage {
  /// UTF-8, with its closing line break and unexpanded inserts.
  std::string_view text;
  /// True if expanding would not change the text: it has no % sequence, and every line break is CR
  /// LF.
  bool plain = false;
  /// True for a message of language 1033 if no other language of the table has another text for it.
  bool sameEverywhere = false;

  /// Whether there is a message; one without text has an address too.
  explicit operator bool() const { return text.data() != nullptr; }
};

/// The messages of one module, decoded to UTF-8. It no longer needs the file. May be read from
/// several threads at once.
///
/// Reads PE32 and PE32+ modules, message tables of any resource name and any number of languages,
/// with Unicode entries and entries in the ANSI code page of their language. If several resources
/// contain the same message of a language, a numbered resource has precedence over a named one, and
/// a lower number over a higher. Texts that several languages share are kept once.
class MessageTable {
 public:
  /// Reads the module at `path`. Nothing if it cannot be read, is larger than 32 MiB, is damaged in
  /// a part that leads to its messages, or contains no message.
  static std::optional<MessageTable> Read(const std::string& path);

  /// The same for a module in memory of at most 32 MiB. Time and memory are bounded by its size.
  static std::optional<MessageTable> Parse(std::span<const std::byte> module);

  /// The message in exactly this language, or nothing. Its text is valid for the lifetime of the
  /// table, even if the table is moved.
  std::optional<CatalogMessage> Find(std::uint32_t languageId, std::uint32_t messageId) const;

  /// The positions of a language's messages among all messages. They are sorted by number.
  struct Part {
    std::uint32_t begin;
    std::uint32_t end;

    // No null pointer is written here.
    auto operator<=>(const Part&) const = default;  // NOLINT(modernize-use-nullptr)
  };
  /// Nothing if the table has no messages in the language.
  std::optional<Part> PartOf(std::uint32_t languageId) const;
  /// The message in the language that the part is of, faster; false if there is none.
  CatalogMessage Find(Part part, std::uint32_t messageId) const {
    const auto found = FindIn(part, messageId);
    return found ? At(places_[*found]) : CatalogMessage();
  }

  /// The same in language 1033.
  CatalogMessage FindEnglish(std::uint32_t messageId) const { return Find(english_, messageId); }

  bool HasLanguage(std::uint32_t languageId) const { return PartOf(languageId).has_value(); }

  /// A language of the table, and the lowest language that has the same messages: itself if it
  /// shares them with none.
  struct Language {
    std::uint32_t id;
    std::uint32_t first;
  };
  /// All languages, by identifier.
  std::vector<Language> Languages() const;

  /// Number of messages, counting each language, but shared messages once.
  std::size_t Count() const { return ids_.size(); }

  /// The message at a position below `Count()`.
  CatalogMessage At(std::size_t position) const { return At(places_[position]); }

 private:
  struct Place {
    std::uint32_t offset;
    std::uint32_t length : 30;
    std::uint32_t plain : 1;
    std::uint32_t sameEverywhere : 1;
  };

  struct LanguagePart {
    std::uint32_t languageId;
    Part part;
  };
  class Reader;

  CatalogMessage At(Place place) const {
    return {.text = {texts_.data() + place.offset, place.length},
            .plain = place.plain != 0,
            .sameEverywhere = place.sameEverywhere != 0};
  }
  std::optional<std::size_t> FindIn(Part part, std::uint32_t messageId) const {
    // Languages mostly have the same messages.
    if (const auto same = index_.Find(messageId)) {
      const std::size_t place = part.begin + *same;
      if (place < part.end && ids_[place] == messageId) return place;
    }
    return Search(part, messageId);
  }
  std::optional<std::size_t> Search(Part part, std::uint32_t messageId) const;
  void MarkSameEverywhere();

  // Sorted arrays, not hash tables, because a module could contain keys chosen to collide.
  // `ids_` and `places_` have the messages of each language one after the other.
  std::vector<LanguagePart> languages_;
  Part english_{.begin = 0, .end = 0};  // of language 1033
  MessageIndex index_;                  // of `english_`, from its beginning
  std::vector<std::uint32_t> ids_;
  std::vector<Place> places_;
  std::vector<char> texts_;
};

}  // namespace AdvancedControl
