#include "snapshots/SettingTexts.h"

#include <algorithm>
#include <charconv>

#include <QString>

#include "i18n/SystemLanguage.h"
#include "settings/CatalogNumbers.h"

namespace AdvancedControl {

namespace {

// Larger than any value; the sum of two such numbers does not overflow.
constexpr int kLargest = 1'000'000;
// Device values of the power state; any other is standby, too.
constexpr int kStandby = 0;
constexpr int kOn = 1;
constexpr int kCoolingDown = 2;

std::optional<int> Number(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  int number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || stop != text.data() + text.size()) return {};
  return std::clamp(number, -kLargest, kLargest);
}

QString Wide(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool SameText(std::string_view a, std::string_view b) {
  return Wide(a).compare(Wide(b).trimmed(), Qt::CaseInsensitive) == 0;
}

bool IsNameShared(const ModelSetting& setting, const ListEntry& entry) {
  return !entry.name.empty() &&
         std::ranges::any_of(setting.entries, [&entry](const ListEntry& other) {
           return other.value != entry.value && SameText(other.name, entry.name);
         });
}

/// The name of "HDMI (31)" without what makes it unique.
std::string_view PlainName(std::string_view name) {
  return name.ends_with(')') ? name.substr(0, name.rfind(" (")) : name;
}

bool HasPlainName(const ListEntry& entry, std::string_view text) {
  return !entry.text && SameText(PlainName(entry.name), text);
}

/// Caption number of "V" or "H" for a setting whose row shows it after its caption; 0 for others.
int Direction(std::string_view key) {
  if (key.ends_with("-v")) return 52;
  return key.ends_with("-h") ? 53 : 0;
}

/// The setting on the same tab whose own window has a setting such as "gamma.pattern".
const ModelSetting& OpenerOf(const ModelSettings& model, const ModelSetting& setting) {
  const std::string end = '.' + std::string(setting.key.substr(0, setting.key.find('.')));
  const auto opener = std::ranges::find_if(model.All(), [&](const ModelSetting& other) {
    return other.tab == setting.tab && other.key.ends_with(end);
  });
  // unreachable: every window has an opener
  return opener == model.All().end() ? setting : *opener;
}

/// The last part of a key in capitals: the caption of settings called the same in every language.
std::string Abbreviation(std::string_view key) {
  return Wide(key.substr(key.rfind('.') + 1)).toUpper().toStdString();
}

}  // namespace

SettingTexts::SettingTexts(std::span<const std::string> catalogFolders, std::uint32_t languageId)
    : texts_(catalogFolders),
      languageId_(languageId),
      likely_{languageId, kEnglishUnitedStates, kChineseSimplified} {
  for (const auto& [id, first] : texts_.Languages()) {
    if (id == first && std::ranges::find(likely_, id) == likely_.end()) others_.push_back(id);
  }
}

std::string SettingTexts::Text(int category, int number, int value) const {
  const CatalogInsert insert(value);
  if (auto own = texts_.Find(languageId_, category, number, {&insert, 1})) return *own;
  const auto english = texts_.Find(kEnglishUnitedStates, category, number, {&insert, 1});
  return english.value_or(std::string());
}

std::string SettingTexts::Caption(const ModelSetting& setting) const {
  const std::string text = setting.caption != 0 ? Text(kCaptionCategory, setting.caption) : "";
  return text.empty() ? Abbreviation(setting.key) : text;
}

std::string SettingTexts::Name(const ModelSettings& model, const ModelSetting& setting,
                               std::optional<int> source) const {
  const bool isShared = std::ranges::any_of(model.All(), [&](const ModelSetting& other) {
    return &other != &setting && other.tab == setting.tab && Caption(other) == Caption(setting);
  });
  std::string name = Caption(setting);
  if (isShared) {
    const int direction = Direction(setting.key);
    name += direction != 0 ? ' ' + Text(kCaptionCategory, direction)
                           : " (" + Caption(OpenerOf(model, setting)) + ')';
  }
  if (source) name += " (" + Source(model, *source) + ')';
  return name;
}

std::string SettingTexts::Source(const ModelSettings& model, int source) const {
  return Value(model.Input(), source);
}

std::string SettingTexts::Tab(const ModelSetting& setting) const {
  return Text(kCaptionCategory, setting.tab);
}

std::string SettingTexts::Entry(const ListEntry& entry) const {
  return entry.text ? Text(kListCategory, *entry.text) : std::string(entry.name);
}

std::string SettingTexts::Entry(const ModelSetting& setting, const ListEntry& entry) const {
  if (setting.IsPower() && entry.value == kStandby) {
    return Text(kListCategory, ListText::PowerStandby);
  }
  return Entry(entry) +
         (IsNameShared(setting, entry) ? " (" + std::to_string(entry.value) + ')' : std::string());
}

std::string SettingTexts::Value(const ModelSetting& setting, int value) const {
  return Value(setting, value, std::nullopt);
}

std::string SettingTexts::Value(const ModelSetting& setting, int value,
                                std::optional<PowerState> power) const {
  if (setting.IsPower() && power == PowerState::WarmingUp && value == kOn) {
    return Text(kListCategory, ListText::PowerWarmingUp);
  }
  if (setting.IsPower() && value != kOn && value != kCoolingDown) {
    return Text(kListCategory, ListText::PowerStandby);
  }
  const auto entry = std::ranges::find(setting.entries, value, &ListEntry::value);
  if (entry != setting.entries.end()) {
    if (std::string text = Entry(setting, *entry); !text.empty()) return text;
  }
  if (setting.otherwise != 0) return Text(kListCategory, setting.otherwise, value);
  return std::to_string(value - setting.bias);
}

bool SettingTexts::IsNamed(const ModelSetting& setting, int value, std::string_view text) const {
  return std::ranges::any_of(setting.entries, [&](const ListEntry& entry) {
    return entry.value == value && HasPlainName(entry, text);
  });
}

bool SettingTexts::IsShownAs(const ModelSetting& setting, int value, std::string_view text) const {
  const bool isEntry = std::ranges::any_of(setting.entries, [&](const ListEntry& entry) {
    return entry.value == value && (Is(entry, text, likely_) || Is(entry, text, others_) ||
                                    SameText(Entry(setting, entry), text));
  });
  return isEntry || Number(text) == value - setting.bias;
}

std::string SettingTexts::Values(const ModelSetting& setting) const {
  if (setting.range) {
    return std::to_string(setting.range->minimum - setting.bias) + " to " +
           std::to_string(setting.range->maximum - setting.bias);
  }
  if (setting.kind == ModelSetting::Kind::Number) return "a number";
  std::string texts;
  for (const ListEntry& entry : setting.entries) {
    if (!setting.Allows(entry.value)) continue;
    texts += (texts.empty() ? "" : ", ") + Entry(setting, entry);
  }
  return texts;
}

bool SettingTexts::Is(const ListEntry& entry, std::string_view text,
                      std::span<const std::uint32_t> languages) const {
  if (!entry.text) return SameText(entry.name, text);
  return std::ranges::any_of(languages, [&](std::uint32_t language) {
    const auto known = texts_.Find(language, kListCategory, *entry.text);
    return known && SameText(*known, text);
  });
}

std::optional<int> SettingTexts::ParseEntry(const ModelSetting& setting,
                                            std::string_view text) const {
  for (const std::span<const std::uint32_t> languages : {std::span(likely_), std::span(others_)}) {
    for (const ListEntry& entry : setting.entries) {
      const bool isIt = IsNameShared(setting, entry) ? SameText(Entry(setting, entry), text)
                                                     : Is(entry, text, languages);
      if (isIt) return entry.value;
    }
  }
  const auto isPlainName = [&](const ListEntry& entry) { return HasPlainName(entry, text); };
  if (std::ranges::count_if(setting.entries, isPlainName) == 1) {
    return std::ranges::find_if(setting.entries, isPlainName)->value;
  }
  if (setting.IsPower() && Is(ListEntry(ListText::PowerStandby), text, likely_)) return kStandby;
  return {};
}

// A step comes first, because the entries of some lists are numbers.
std::optional<TypedValue> SettingTexts::Parse(const ModelSetting& setting,
                                              std::string_view text) const {
  const bool isAbsolute = text.starts_with('=');
  if (isAbsolute) text.remove_prefix(1);
  const auto number = Number(text);
  const bool isStep = !isAbsolute && (text.starts_with('+') || text.starts_with('-'));
  if (number && isStep) return TypedValue{*number, true};
  if (const auto value = ParseEntry(setting, text)) return TypedValue{*value};
  if (!number) return {};
  return TypedValue{*number + setting.bias};
}

std::optional<int> Resolve(const ModelSetting& setting, const TypedValue& typed,
                           std::optional<int> present) {
  int value = typed.amount;
  if (typed.relative) {
    if (!present) return {};
    if (setting.kind == ModelSetting::Kind::Choice) {
      const int position = PositionOf(setting.entries, *present);
      const int wanted = position + typed.amount;
      if (position < 0 || wanted < 0 || wanted >= std::ssize(setting.entries)) return {};
      value = setting.entries[static_cast<std::size_t>(wanted)].value;
    } else {
      value = *present + typed.amount;
    }
  }
  return setting.Allows(value) ? std::optional(value) : std::nullopt;
}

}  // namespace AdvancedControl
