#include "i18n/TextDecoder.h"

#include <algorithm>
#include <array>

#include <unicode/ucnv.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

namespace AdvancedControl {

namespace {

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

}  // namespace

void TextDecoder::CloseConverter::operator()(UConverter* converter) const { ucnv_close(converter); }

void TextDecoder::AppendUnicode(Bytes bytes, std::vector<char>& texts) {
  // Nearly all texts have no surrogates, and a module may have ten thousand texts.
  const std::size_t start = texts.size();
  texts.resize(start + 3 * (bytes.size() / 2));
  char* out = texts.data() + start;
  const auto put = [&out](unsigned byte) { *out++ = static_cast<char>(byte); };
  bool isSimple = true;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const unsigned unit = U16(bytes, i);
    if (unit == 0) break;
    isSimple = !U16_IS_SURROGATE(unit);
    if (!isSimple) break;
    if (unit < 0x80) {
      put(unit);
    } else if (unit < 0x800) {
      put(0xC0 | unit >> 6);
      put(0x80 | (unit & 0x3F));
    } else {
      put(0xE0 | unit >> 12);
      put(0x80 | (unit >> 6 & 0x3F));
      put(0x80 | (unit & 0x3F));
    }
  }
  texts.resize(isSimple ? static_cast<std::size_t>(out - texts.data()) : start);
  if (!isSimple) AppendWithSurrogates(bytes, texts);
}

void TextDecoder::AppendWithSurrogates(Bytes bytes, std::vector<char>& texts) {
  utf16_.clear();
  for (std::size_t i = 0; i + 1 < bytes.size() && U16(bytes, i) != 0; i += 2) {
    utf16_.push_back(static_cast<char16_t>(U16(bytes, i)));
  }
  AppendUtf16(utf16_.size(), texts);
}

bool TextDecoder::AppendAnsi(std::uint32_t languageId, Bytes bytes, std::vector<char>& texts) {
  UErrorCode error = U_ZERO_ERROR;
  const char* codePage = AnsiConverter(languageId);
  if (codePage != codePage_) {
    converter_.reset(ucnv_open(codePage, &error));
    codePage_ = codePage;
  }
  const auto end = std::find(bytes.begin(), bytes.end(), std::byte{0});
  const auto length = static_cast<std::int32_t>(end - bytes.begin());
  utf16_.resize(4 * static_cast<std::size_t>(length) + 8);
  const std::int32_t units =
      ucnv_toUChars(converter_.get(), utf16_.data(), static_cast<std::int32_t>(utf16_.size()),
                    reinterpret_cast<const char*>(bytes.data()), length, &error);
  AppendUtf16(static_cast<std::size_t>(units), texts);
  return U_SUCCESS(error);
}

void TextDecoder::AppendUtf16(std::size_t units, std::vector<char>& texts) {
  const std::size_t start = texts.size();
  texts.resize(start + 3 * units);
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF8WithSub(texts.data() + start, static_cast<std::int32_t>(3 * units), &length,
                     utf16_.data(), static_cast<std::int32_t>(units), 0xFFFD, nullptr, &error);
  texts.resize(start + static_cast<std::size_t>(length));
}

}  // namespace AdvancedControl
