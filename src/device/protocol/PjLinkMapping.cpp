#include "device/protocol/PjLinkMapping.h"

#include <algorithm>

#include "device/CommandCode.h"
#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;
using Parameter = std::optional<std::string>;
using enum PjLinkClass;

template <char on, char off>
Parameter OneOf(int value) {
  return value == 0 ? Parameter{{off}} : value == 1 ? Parameter{{on}} : std::nullopt;
}

template <char part>
Parameter PartMuted(int value) {
  const Parameter state = OneOf<'1', '0'>(value);
  return state ? Parameter{part + *state} : std::nullopt;
}

Parameter Query(int) { return std::string(PjLink::kQuery); }
Parameter On(int) { return "1"; }
Parameter Off(int) { return "0"; }

constexpr auto kFreezeOrRun = OneOf<'1', '0'>;
constexpr auto kPictureMuted = PartMuted<'1'>;
constexpr auto kSoundMuted = PartMuted<'2'>;

// A projector that is warming up or cooling down has accepted the change.
std::optional<int> PowerTarget(std::string_view parameter) {
  const auto power = PjLink::Power(parameter);
  if (!power) return std::nullopt;
  return power == PowerState::On || power == PowerState::WarmingUp ? 1 : 0;
}

constexpr PjLinkMapping kMappings[] = {
    {Op::Get, CommandCode::RunningState, "POWR", First, Query, PjLink::PowerStatus},
    {Op::SetPowerOn, 0, "POWR", First, On, PowerTarget},
    {Op::SetPowerOff, 0, "POWR", First, Off, PowerTarget},
    {Op::Get, CommandCode::InputSource, "INPT", Either, Query, PjLink::InputNumber},
    {Op::GetInputSource, 0, "INPT", Either, Query, PjLink::InputNumber},
    {Op::Set, CommandCode::InputSource, "INPT", Either, PjLink::InputCode, PjLink::InputNumber},
    {Op::Get, CommandCode::ErrorStatus, "ERST", First, Query, PjLink::ErrorStatus},
    {Op::Get, CommandCode::BlankState, "AVMT", First, Query, PjLink::Blank},
    {Op::SetBlank, 0, "AVMT", First, kPictureMuted, PjLink::Blank},
    {Op::Set, CommandCode::BlankState, "AVMT", First, kPictureMuted, PjLink::Blank},
    {Op::Get, CommandCode::Mute, "AVMT", First, Query, PjLink::Mute},
    {Op::SetMute, 0, "AVMT", First, kSoundMuted, PjLink::Mute},
    {Op::Set, CommandCode::Mute, "AVMT", First, kSoundMuted, PjLink::Mute},
    {Op::Get, CommandCode::Freeze, "FREZ", Second, Query, PjLink::Switch},
    {Op::SetFreeze, 0, "FREZ", Second, kFreezeOrRun, PjLink::Switch},
    {Op::Set, CommandCode::Freeze, "FREZ", Second, kFreezeOrRun, PjLink::Switch},
    {Op::Inc, CommandCode::Volume, "SVOL", Second, On},
    {Op::Dec, CommandCode::Volume, "SVOL", Second, Off},
    {Op::Get, CommandCode::LampTime, "LAMP", First, Query, PjLink::LampHours},
    {Op::Get, CommandCode::FilterTime, "FILT", Second, Query, PjLink::Hours},
};

}  // namespace

const PjLinkMapping* PjLinkMapping::Find(const PjtCommand& command) {
  const auto* const found = std::ranges::find_if(kMappings, [&](const PjLinkMapping& mapping) {
    return mapping.operation == command.operation && mapping.code == command.code;
  });
  return found == std::end(kMappings) ? nullptr : found;
}

int PjLinkTarget(const PjtCommand& change) {
  return change.operation == Op::SetPowerOn ? 1 : change.first;
}

}  // namespace AdvancedControl
