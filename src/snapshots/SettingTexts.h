#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "i18n/CatalogTexts.h"
#include "settings/ModelSettings.h"

namespace AdvancedControl {

/// A value as the user typed it.
struct TypedValue {
  int amount = 0;         ///< Device value; if `relative`, the distance from the present value.
  bool relative = false;  ///< The distance counts entries for a list, otherwise numbers.
};

/// Shows settings as texts in one language, and parses texts in any language. May be used from
/// several threads at once. Texts are UTF-8.
class PROJECTOR_SETTINGS_EXPORT SettingTexts {
 public:
  /// Texts missing in the language `languageId` are in English.
  SettingTexts(std::span<const std::string> catalogFolders, std::uint32_t languageId);

  /// As `CatalogTexts::Problem`.
  const std::string& Problem() const { return texts_.Problem(); }

  /// The caption of a setting, as on its label.
  std::string Caption(const ModelSetting& setting) const;
  /// The same, but unique on its tab: if others have that caption, followed by "V" or "H" or the
  /// caption of the setting whose window it is in; then by the name of the source, if one is given.
  std::string Name(const ModelSettings& model, const ModelSetting& setting,
                   std::optional<int> source) const;
  /// The name of an input source in the list of inputs, or else its number.
  std::string Source(const ModelSettings& model, int source) const;
  /// The caption of the setting's tab.
  std::string Tab(const ModelSetting& setting) const;
  /// The text of an entry; followed by its device value if another entry has the same name:
  /// "HDMI (31)".
  std::string Entry(const ModelSetting& setting, const ListEntry& entry) const;
  /// A device value as the dialog shows it: its entry's text, else the shown number. A projector in
  /// standby is not shown as off.
  std::string Value(const ModelSetting& setting, int value) const;
  /// The same, but with the exact power state that `CPjtInterface::Power` returns: a projector that
  /// is warming up is not shown as on.
  std::string Value(const ModelSetting& setting, int value, std::optional<PowerState> power) const;
  /// Whether a text is the name of the entry with a device value, without the number in parentheses
  /// that makes it unique. Several entries may have it.
  bool IsNamed(const ModelSetting& setting, int value, std::string_view text) const;
  /// Whether a text is the text of a device value in any language.
  bool IsShownAs(const ModelSetting& setting, int value, std::string_view text) const;
  /// The values that the setting allows: "-32 to 32", or the texts of its entries.
  std::string Values(const ModelSetting& setting) const;

  /// Parses what the user typed: a number as it is shown, "=-3" for one below zero; a step, "+3" or
  /// "-3"; or an entry of a list, "=-3" if it is a number below zero. An entry is given by its text
  /// in any language and case, by that text without the number in parentheses that makes it unique,
  /// or by its device value. If a text means different entries in different languages, this
  /// language, English and Chinese have precedence. Nothing for any other text, or for a name that
  /// several entries have.
  std::optional<TypedValue> Parse(const ModelSetting& setting, std::string_view text) const;

 private:
  std::string Text(int category, int number, int value = 0) const;
  std::string Entry(const ListEntry& entry) const;
  /// The device value of the entry that a text means.
  std::optional<int> ParseEntry(const ModelSetting& setting, std::string_view text) const;
  bool Is(const ListEntry& entry, std::string_view text,
          std::span<const std::uint32_t> languages) const;

  CatalogTexts texts_;
  std::uint32_t languageId_;
  std::vector<std::uint32_t> likely_;  // languages that a typed text is probably in
  std::vector<std::uint32_t> others_;
};

/// The device value that was typed. Nothing for a step from a value that is unknown or not in the
/// list, or to a value that the setting does not allow. Any thread.
PROJECTOR_SETTINGS_EXPORT std::optional<int> Resolve(const ModelSetting& setting,
                                                     const TypedValue& typed,
                                                     std::optional<int> present);

}  // namespace AdvancedControl
