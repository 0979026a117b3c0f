#pragma once

#include <optional>
#include <vector>

#include <QJsonArray>

#include "app/acctl/Commands.h"
#include "app/profiles/Table.h"

/// Settings with their values, for people and for scripts.
class Values {
 public:
  explicit Values(const SettingTexts& texts) : texts_(texts) {}

  void Add(const ModelSetting& setting, int value, std::optional<PowerState> power);
  void PutInto(Report& report) const;

 private:
  const SettingTexts& texts_;
  Table table_;
  QJsonArray json_;
};

/// Key, caption and text.
std::vector<std::string> Cells(const SettingTexts& texts, const ModelSetting& setting, int value,
                               std::optional<PowerState> power);

/// What the projector does, which is asked; nothing where it does not say.
std::optional<PowerState> AskPower(ProjectorAccess& projector);

/// Why a healthy projector cannot tell or do something now: "in standby", "warming up", "cooling
/// down"; null for one that is on, or does not say.
const char* RestOf(std::optional<PowerState> power);

/// Returns which settings were not read, though the projector has answered. Of one that rests that
/// is no error, and one line.
void TellUnread(const std::vector<std::string>& keys, std::optional<PowerState> power,
                const char* what, Report& report);

/// Reads settings into the report; once the projector is gone no other is asked. What it does not
/// offer is refused where it was asked for by its key, and told where a pattern means it.
void ReadInto(const Work& work, ProjectorAccess& projector,
              const std::vector<const ModelSetting*>& settings, Report& report);
