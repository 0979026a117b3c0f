#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Status;

using Op = PjtOperation;

constexpr ListEntry kErrors[] = {
    {ListText::ErrorNone, 0},      {ListText::ErrorCover, 1},       {ListText::ErrorFan, 2},
    {ListText::ErrorLamp, 3},      {ListText::ErrorTemperature, 4}, {ListText::ErrorAirFlow, 5},
    {ListText::ErrorLampTime, 6},  {ListText::ErrorCool, 7},        {ListText::ErrorFilter, 8},
    {ListText::ErrorStatus12, 12},
};
constexpr ListEntry kOn[] = {{ListText::On, 1}};
constexpr ListEntry kFreeze[] = {{ListText::Freeze, 1}};

// Searches every slot, even beyond the list's count: hosts leave sources there that the projector
// may still report.
std::vector<ListEntry> SourcesInAnySlot(const ModelData& model) {
  const SourceList& sources = model.MySourceList;
  std::vector<ListEntry> entries;
  for (std::size_t i = 0; i < sources.names.size(); ++i) {
    entries.emplace_back(NameText(sources.names[i]), sources.firstValues[i]);
  }
  return entries;
}

constexpr StateRow State(std::string_view key, int caption, int label, std::uint16_t code,
                         Entries texts, int otherwise) {
  return {.key = key,
          .caption = caption,
          .control = label,
          .read = Get(code),
          .texts = texts,
          .otherwise = otherwise,
          .frame = ListText::StatusValue};
}

constexpr ResetEntry kResets[] = {{ListText::LampTime, Op::ExecLampTimeReset, Id::LampTime},
                                  {ListText::FilterTime, Op::ExecFilterTimeReset, 20015}};

constexpr PageRow kRows[] = {
    State("status.power", 145, Id::Power, CommandCode::RunningState, shared::kPowers,
          ListText::Off),
    State("status.input-source", 146, 20009, CommandCode::InputSource, SourcesInAnySlot, 0),
    State("status.error", 147, Id::Error, CommandCode::ErrorStatus, kErrors, ListText::ErrorOther),
    State("status.blank", 148, 20011, CommandCode::BlankState, kOn, ListText::Off),
    State("status.mute", 149, 20012, CommandCode::Mute, kOn, ListText::Off),
    State("status.freeze", 150, 20013, CommandCode::Freeze, kFreeze, ListText::FreezeNormal),
    State("status.lamp-time", 151, Id::LampTime, CommandCode::LampTime, {}, ListText::Hours),
    State("status.filter-time", 152, 20015, CommandCode::FilterTime, {}, ListText::Hours),
    ResetRow{"status.reset", Id::Reset, 20018, kResets},
};

}  // namespace

constinit const PageTable kStatusRows{.rows = kRows};

}  // namespace AdvancedControl
