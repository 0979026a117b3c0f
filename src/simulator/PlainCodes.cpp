#include "device/CommandCode.h"
#include "simulator/SettingsTable.h"

namespace AdvancedControl {

namespace {

constexpr std::uint16_t kPlainCodes[] = {
    0x2009,
    0x200B,
    0x200E,
    0x2013,
    0x2019,
    0x201A,
    0x201B,
    0x201C,
    0x201D,
    0x201E,
    0x201F,
    0x2035,
    CommandCode::ImageStartup,
    CommandCode::Startup,
    0x3006,
    0x3007,
};

}  // namespace

std::span<const std::uint16_t> PlainCodes() { return kPlainCodes; }

}  // namespace AdvancedControl
