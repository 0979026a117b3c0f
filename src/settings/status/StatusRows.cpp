#include "device/CommandCode.h"
#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"

namespace {

using Op = PjtOperation;

constexpr ResetEntry kResets[] = {{ListText::LampTime, Op::ExecLampTimeReset},
                                  {ListText::FilterTime, Op::ExecFilterTimeReset}};

constexpr PageRow kRows[] = {
    OwnRow{"status.power", 145, 20008, Get(CommandCode::RunningState)},
    OwnRow{"status.input-source", 146, 20009, Get(CommandCode::InputSource)},
    OwnRow{"status.error", 147, 20010, Get(CommandCode::ErrorStatus)},
    OwnRow{"status.blank", 148, 20011, Get(CommandCode::BlankState)},
    OwnRow{"status.mute", 149, 20012, Get(CommandCode::Mute)},
    OwnRow{"status.freeze", 150, 20013, Get(CommandCode::Freeze)},
    OwnRow{"status.lamp-time", 151, 20014, Get(CommandCode::LampTime)},
    OwnRow{"status.filter-time", 152, 20015, Get(CommandCode::FilterTime)},
    ResetRow{"status.reset", 20019, 20018, kResets},
};

}  // namespace

constinit const PageTable kStatusRows{.rows = kRows};
