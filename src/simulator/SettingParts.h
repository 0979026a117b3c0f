#pragma once

#include "Namespace.h"
#include "device/CommandCode.h"
#include "device/ModelData.h"
#include "simulator/Setting.h"

namespace AdvancedControl {

/// Building blocks for the lines of the settings table.
namespace setting_parts {

using Id = SettingId;
using Op = PjtOperation;
using Operations = std::array<Binding, Setting::kOperations>;

constexpr Binding Read(Op operation, int selector = Binding::kAny) {
  return {.operation = operation, .verb = Verb::Read, .selector = selector};
}
constexpr Binding Write(Op operation, ValueForm form = ValueForm::Device) {
  return {.operation = operation, .verb = Verb::Write, .form = form};
}
constexpr Binding Up(Op operation) { return {.operation = operation, .verb = Verb::StepUp}; }
constexpr Binding Down(Op operation) { return {.operation = operation, .verb = Verb::StepDown}; }
constexpr Binding Reset(Op operation, int selector = Binding::kAny) {
  return {.operation = operation, .verb = Verb::Reset, .selector = selector};
}
constexpr Binding TurnTo(Op operation, int value) {
  return {.operation = operation, .verb = Verb::TurnTo, .turnTo = value};
}

constexpr SettingRange kSwitch{0, 1};
constexpr SettingRange kWord{0, 0xFFFF};

constexpr Setting GammaPoint(int point, std::string_view name) {
  const auto offset = static_cast<std::size_t>(point - 1);
  return {
      .id = static_cast<Id>(static_cast<std::size_t>(Id::GammaPoint1) + offset),
      .name = name,
      .code = static_cast<std::uint16_t>(CommandCode::UserGammaPoint1 + offset),
      .range = {112, 144},
      .standard = CommandCode::kZeroPoint,
      .inMemory = true,
      .rangeText = RangeIndex::GammaPoint + offset,
      .operations = {Read(Op::GetUserGammaPoint, point), Reset(Op::ExecUserGammaPReset, point)}};
}

/// A gain or offset; its steppers name the channel and exchange shown values.
constexpr Setting ColorTempAdjust(Id id, std::string_view name, std::uint16_t code, int channel,
                                  std::size_t rangeText, Op read, Op up, Op down, Op reset) {
  return {.id = id,
          .name = name,
          .code = code,
          .standard = CommandCode::kZeroPoint,
          .inMemory = true,
          .rangeText = rangeText,
          .operations = {Read(read),
                         {up, Verb::StepUp, ValueForm::Shown, channel},
                         {down, Verb::StepDown, ValueForm::Shown, channel},
                         Reset(reset)}};
}

constexpr Setting Gain(Id id, std::string_view name, int channel, Op read, Op reset) {
  const auto offset = static_cast<std::size_t>(channel);
  return ColorTempAdjust(id, name,
                         static_cast<std::uint16_t>(CommandCode::ColorTempGainR + channel), channel,
                         RangeIndex::ColorTempAdjust + offset, read, Op::IncrementColorTempGain,
                         Op::DecrementColorTempGain, reset);
}

constexpr Setting Offset(Id id, std::string_view name, int channel, Op read, Op reset) {
  const auto offset = static_cast<std::size_t>(channel);
  return ColorTempAdjust(id, name,
                         static_cast<std::uint16_t>(CommandCode::ColorTempOffsetR + channel),
                         channel, RangeIndex::ColorTempAdjust + 3 + offset, read,
                         Op::IncrementColorTempOffset, Op::DecrementColorTempOffset, reset);
}

/// A value around the zero point, which the projector stores as −128 to 127.
constexpr Setting Balance(Id id, std::string_view name, std::uint16_t code, SettingRange range,
                          std::size_t rangeText, Operations operations) {
  return {.id = id,
          .name = name,
          .code = code,
          .range = range,
          .standard = CommandCode::kZeroPoint,
          .inMemory = true,
          .rangeText = rangeText,
          .operations = operations};
}

constexpr Setting Plain(Id id, std::string_view name, SettingRange range, Operations operations,
                        int standard = 0) {
  return {.id = id, .name = name, .range = range, .standard = standard, .operations = operations};
}

constexpr Setting Coded(Id id, std::string_view name, std::uint16_t code, SettingRange range,
                        Operations operations, int standard = 0) {
  return {.id = id,
          .name = name,
          .code = code,
          .range = range,
          .standard = standard,
          .operations = operations};
}

constexpr Setting Ranged(std::size_t rangeText, Setting setting) {
  setting.rangeText = rangeText;
  return setting;
}

constexpr Setting OneOf(Id id, std::string_view name, std::uint16_t code,
                        std::span<const int> values, Operations operations) {
  return {.id = id,
          .name = name,
          .code = code,
          .values = values,
          .standard = values.front(),
          .operations = operations};
}

constexpr Setting ForSets(PageSets sets, Setting setting) {
  setting.sets = sets;
  return setting;
}

constexpr Setting InMemory(Setting setting) {
  setting.inMemory = true;
  return setting;
}

constexpr Setting PerSource(Setting setting) {
  setting.perSource = true;
  return setting;
}

constexpr Setting ColorTemp(std::uint16_t alsoSetBy = 0) {
  return {.id = Id::ColorTemp,
          .name = "Color temperature",
          .code = CommandCode::ColorTemp,
          .alsoSetBy = alsoSetBy,
          .inMemory = true};
}

}  // namespace setting_parts

}  // namespace AdvancedControl
