#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Namespace.h"
#include "i18n/ModuleImage.h"

struct UConverter;

namespace AdvancedControl {

/// Decodes the texts of a message table's entries to UTF-8. Keeps the converter of the last code
/// page. Use it from one thread.
class TextDecoder {
 public:
  /// Appends the text up to its first zero character; invalid characters become U+FFFD.
  void AppendUnicode(Bytes bytes, std::vector<char>& texts);

  /// The same for a text in the ANSI code page of its language. False if there is no converter.
  bool AppendAnsi(std::uint32_t languageId, Bytes bytes, std::vector<char>& texts);

 private:
  void AppendWithSurrogates(Bytes bytes, std::vector<char>& texts);
  // Appends the first units of `utf16_`.
  void AppendUtf16(std::size_t units, std::vector<char>& texts);

  struct CloseConverter {
    void operator()(UConverter* converter) const;
  };
  std::u16string utf16_;
  std::unique_ptr<UConverter, CloseConverter> converter_;
  const char* codePage_ = nullptr;
};

}  // namespace AdvancedControl
