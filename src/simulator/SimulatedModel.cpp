#include "simulator/SimulatedModel.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "simulator/SettingsTable.h"

namespace AdvancedControl {

namespace {

std::optional<int> Number(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  int number = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data(), end, number).ec != std::errc{}) return std::nullopt;
  return number;
}

std::optional<SettingRange> ParseRange(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const std::optional<int> minimum = Number(text.substr(0, comma));
  const std::optional<int> maximum = Number(text.substr(comma + 1));
  if (!minimum || !maximum || *minimum > *maximum) return std::nullopt;
  return SettingRange{*minimum, *maximum};
}

std::vector<int> ListValues(const CountedList& list) {
  return {list.values.begin(), list.values.begin() + list.Size()};
}

}  // namespace

SimulatedModel DescribeModel(const ModelData& data) {
  SimulatedModel model{.pageSet = data.DialogType, .ranges = {}};
  for (const Setting& setting : SettingsTable()) {
    if (setting.rangeText == Setting::kNoRangeText) continue;
    if (const auto range = ParseRange(data.RangeTexts[setting.rangeText])) {
      model.ranges[setting.id] = *range;
    }
  }
  const auto* const sources = data.MySourceList.firstValues.begin();
  model.values[SettingId::InputSource] = {sources, sources + data.MySourceList.Size()};
  model.values[SettingId::Aspect] = ListValues(data.AspectList);
  model.values[SettingId::Gamma] = ListValues(data.GammaList);
  model.values[SettingId::ColorTemp] = ListValues(data.ColorTempList);
  return model;
}

}  // namespace AdvancedControl
