#include "app/acctl/ValueCodes.h"

#include <algorithm>
#include <cctype>

namespace {

bool IsAsciiLetterOrDigit(unsigned char letter) { return letter < 0x80 && std::isalnum(letter); }

/// Letters and digits in lower case, with one hyphen for anything between them.
std::string WordOf(std::string_view text) {
  std::string word;
  for (const char letter : text) {
    if (IsAsciiLetterOrDigit(static_cast<unsigned char>(letter))) {
      word += static_cast<char>(std::tolower(letter));
    } else if (!word.empty() && word.back() != '-') {
      word += '-';
    }
  }
  if (word.ends_with('-')) word.pop_back();
  return word;
}

bool IsNumber(std::string_view text) {
  return !text.empty() &&
         std::ranges::all_of(text, [](unsigned char c) { return std::isdigit(c); });
}

}  // namespace

const char* CodeOf(PowerState power) {
  switch (power) {
    case PowerState::On:
      return "on";
    case PowerState::WarmingUp:
      return "warming-up";
    case PowerState::CoolingDown:
      return "cooling-down";
    default:
      return "standby";
  }
}

// Words that are numbers would be taken for device values, and those that are not unique for
// another entry.
std::string ValueTexts::EntryCode(const ModelSetting& setting, const ListEntry& entry) const {
  const std::string word = WordOf(english_.Entry(setting, entry));
  const auto count = std::ranges::count_if(setting.entries, [&](const ListEntry& other) {
    return WordOf(english_.Entry(setting, other)) == word;
  });
  const bool isUsable = !word.empty() && !IsNumber(word) && count == 1;
  return isUsable ? word : "value-" + std::to_string(entry.value);
}

std::string ValueTexts::Code(const ModelSetting& setting, int value,
                             std::optional<PowerState> power) const {
  if (setting.IsPower()) return WordOf(english_.Value(setting, value, power));
  const auto entry = std::ranges::find(setting.entries, value, &ListEntry::value);
  if (entry != setting.entries.end()) return EntryCode(setting, *entry);
  const std::string word = WordOf(english_.Value(setting, value));
  const bool isCount =
      setting.kind != ModelSetting::Kind::State || word.empty() || IsNumber(word.substr(0, 1));
  return isCount ? std::to_string(value - setting.bias) : word;
}

std::optional<TypedValue> ValueTexts::Parse(const ModelSetting& setting,
                                            std::string_view text) const {
  if (auto typed = shown_.Parse(setting, text)) return typed;
  if (setting.IsPower() && text == "off") return TypedValue{0};
  for (const ListEntry& entry : setting.entries) {
    if (EntryCode(setting, entry) == text) return TypedValue{entry.value};
  }
  return {};
}

std::string ValueTexts::ValuesWithCodes(const ModelSetting& setting) const {
  if (setting.entries.empty()) return shown_.Values(setting);
  std::string text;
  for (const ListEntry& entry : setting.entries) {
    if (setting.changeable && !setting.Allows(entry.value)) continue;
    text += (text.empty() ? "" : ", ") + shown_.Entry(setting, entry) + " (" +
            EntryCode(setting, entry) + ')';
  }
  return text;
}
