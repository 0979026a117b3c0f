#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "ProjectorSettingsExport.h"
#include "i18n/CatalogTexts.h"
#include "settings/ModelSettings.h"

inline namespace AdvancedControl {

/// What a person typed for a setting.
struct TypedValue {
  int amount = 0;         ///< Device value, or
  bool relative = false;  ///< how far from the present value: positions of a list, else numbers.
};

/// The texts of settings in one language, and what a text in any language stands for. May be used
/// from several threads at once. Texts are UTF-8.
class PROJECTOR_SETTINGS_EXPORT SettingTexts {
 public:
  /// `languageId` is preferred; a text that it does not have is taken in English.
  SettingTexts(std::span<const std::string> catalogFolders, std::uint32_t languageId);

  /// Caption of a setting, as its label reads.
  std::string Caption(const ModelSetting& setting) const;
  /// The same with what sets it apart from others of its tab: "V" or "H", or else its key, where
  /// the caption is theirs too, and the name of the input source that it is meant for.
  std::string Name(const ModelSettings& model, const ModelSetting& setting,
                   std::optional<int> source) const;
  /// An input source as the list of inputs calls it, or else its number.
  std::string Source(const ModelSettings& model, int source) const;
  /// Caption of the tab that it stands on.
  std::string Tab(const ModelSetting& setting) const;
  /// The text of an entry; where another one has the same name, with its device value: "HDMI (31)".
  std::string Entry(const ModelSetting& setting, const ListEntry& entry) const;
  /// A device value as the dialog shows it: its entry's text, else the shown number.
  std::string Value(const ModelSetting& setting, int value) const;
  /// The same, but a projector that warms up, as `CPjtInterface::Power` tells, is not just on, and
  /// one in standby, which answers, is not just off.
  std::string Value(const ModelSetting& setting, int value, std::optional<PowerState> power) const;
  /// Whether a text is what a device value is shown as, in any language.
  bool IsShownAs(const ModelSetting& setting, int value, std::string_view text) const;
  /// What the setting takes: "-32 to 32", or the texts of its entries.
  std::string Values(const ModelSetting& setting) const;

  /// A number as it is shown, "=-3" for one below zero; "+3" or "-3" from the present value; of a
  /// list an entry's text in any language, upper or lower case, or its device value. Nothing for
  /// any other text, and for a name that several entries have.
  std::optional<TypedValue> Parse(const ModelSetting& setting, std::string_view text) const;

 private:
  std::string Text(int category, int number, int value = 0) const;
  std::string Entry(const ListEntry& entry) const;
  bool Is(const ListEntry& entry, std::string_view text) const;

  CatalogTexts texts_;
  std::uint32_t languageId_;
};

/// The device value that was typed; nothing for a step from a value that is not known or that the
/// list does not have, or to one that the setting does not take.
PROJECTOR_SETTINGS_EXPORT std::optional<int> Resolve(const ModelSetting& setting,
                                                     const TypedValue& typed,
                                                     std::optional<int> present);

}  // namespace AdvancedControl
