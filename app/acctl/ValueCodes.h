#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "snapshots/SettingTexts.h"

/// Texts in the user's language, and the codes of values, which are the same in every language: a
/// number as shown, or a word made from the English text, such as "theater" or "warming-up".
class ValueTexts {
 public:
  /// Both must outlive this; they may be the same.
  ValueTexts(const SettingTexts& shown, const SettingTexts& english)
      : shown_(shown), english_(english) {}

  const SettingTexts& Shown() const { return shown_; }

  std::string Code(const ModelSetting& setting, int value,
                   std::optional<PowerState> power = {}) const;
  /// Parses a text as `SettingTexts::Parse` does, or a code.
  std::optional<TypedValue> Parse(const ModelSetting& setting, std::string_view text) const;
  /// The possible values with their codes: "Off (off), Theater (theater)", or as
  /// `SettingTexts::Values`.
  std::string ValuesWithCodes(const ModelSetting& setting) const;

 private:
  std::string EntryCode(const ModelSetting& setting, const ListEntry& entry) const;

  const SettingTexts& shown_;
  const SettingTexts& english_;
};

/// The code of a power state: "standby", "on", "cooling-down" or "warming-up".
const char* CodeOf(PowerState power);
