#include "simulator/SimulatedLayout.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

namespace AdvancedControl {

namespace {

/// The setting of a command code without a known meaning, which stores any value.
constexpr Setting kPlain{.id = SettingId::Count, .name = "", .range = {0, 0xFFFF}};

std::optional<int> Number(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return std::nullopt;
  int number = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data() + start, end, number).ec != std::errc{}) return std::nullopt;
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

SimulatedProjector::Layout::Layout(SimulatedModel model) {
  slotOfSetting_.fill(-1);
  for (const Setting& setting : SettingsTable()) {
    if (Knows(setting.sets, model.pageSet) && !model.missing.contains(setting.id)) {
      Add(setting, model);
    }
  }
  // A code that has a meaning only in other page sets is plain here. That of a missing setting is
  // not.
  for (const std::uint16_t code : PlainCodes()) {
    const bool hasMeaning = std::ranges::any_of(SettingsTable(), [&](const Setting& setting) {
      return setting.code == code && Knows(setting.sets, model.pageSet);
    });
    if (hasMeaning) continue;
    slotOfCode_.emplace(code, slots.size());
    slots.push_back(
        {.setting = &kPlain, .index = slots.size(), .range = kPlain.range, .values = {}});
  }
}

void SimulatedProjector::Layout::Add(const Setting& setting, SimulatedModel& model) {
  const std::size_t index = slots.size();
  SimulatedSlot slot{.setting = &setting, .index = index, .range = setting.range, .values = {}};
  slot.values.assign(setting.values.begin(), setting.values.end());
  if (const auto own = model.ranges.find(setting.id); own != model.ranges.end()) {
    slot.range = own->second;
  }
  if (const auto own = model.values.find(setting.id);
      own != model.values.end() && !own->second.empty()) {
    slot.values = std::move(own->second);
  }
  slot.standard = setting.standard;
  if (!slot.Allows(slot.standard)) {
    slot.standard = slot.values.empty()
                        ? std::clamp(slot.standard, slot.range.minimum, slot.range.maximum)
                        : slot.values.front();
  }
  slots.push_back(std::move(slot));

  present.push_back(setting.id);
  slotOfSetting_[static_cast<std::size_t>(setting.id)] = static_cast<int>(index);
  if (setting.code != 0) slotOfCode_.emplace(setting.code, index);
  for (const Binding& binding : setting.operations) {
    if (binding.verb == Verb::None) continue;
    routes[static_cast<std::size_t>(binding.operation)].push_back({index, binding});
  }
}

const SimulatedSlot* SimulatedProjector::Layout::Find(SettingId id) const {
  const int index = slotOfSetting_[static_cast<std::size_t>(id)];
  return index < 0 ? nullptr : &slots[static_cast<std::size_t>(index)];
}

const SimulatedSlot* SimulatedProjector::Layout::FindCode(std::uint16_t code) const {
  const auto found = slotOfCode_.find(code);
  return found == slotOfCode_.end() ? nullptr : &slots[found->second];
}

std::shared_ptr<const SimulatedProjector::Layout> SimulatedProjector::MakeLayout(
    SimulatedModel model) {
  return std::make_shared<const Layout>(std::move(model));
}

}  // namespace AdvancedControl
