#include "settings/PageTables.h"
#include "settings/SharedRows.h"
#include "settings/input/InputLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kBncs = Numbered("RGB", "Component");
constexpr auto kSyncOnGreen = Numbered(ListText::SwitchOn, ListText::SwitchOff);
constexpr auto kPinPInputs = Numbered<1>(ListText::PinPInputVideo, ListText::PinPInputSVideo);

constexpr PageRow kRows[] = {
    ListRow{"input.bnc", 63, 20046, kBncs, Get(CommandCode::Bnc), Named(Op::SetBNC),
            kSendsPosition},
    VideoFormatRow(20055),
    ListRow{"input.hdtv", 64, 20047, kHdtvs, Get(CommandCode::Hdtv), Named(Op::SetHDTV),
            kSendsPosition},
    ListRow{"input.sync-on-green", 65, 20048, kSyncOnGreen, Get(CommandCode::SyncOnGreen),
            Named(Op::SetSyncOnG), kSendsPosition},
    shared::AutoAdjust("input.auto-adjust", 20049),
    ListRow{"input.p-in-p-input", 42, 20050, kPinPInputs, Get(CommandCode::PinPInput),
            Named(Op::SetPinPInput), kSendsPosition},
    ListRow{"input.p-in-p-position", 43, 20051, kPinPPositions, Get(CommandCode::PinPPosition),
            Named(Op::SetPinPPosition), kSendsPosition},
    ListRow{"input.p-in-p-audio", 44, 20052, kPinPAudios, Get(CommandCode::PinPAudio),
            Named(Op::SetPinPAudio), kSendsPosition},
    ListRow{"input.p-in-p-size", 45, 20053, kPinPSizes, Get(CommandCode::PinPSize),
            Named(Op::SetPinPSize), kSendsPosition},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //              BNC           P.IN P.Input
    //              |Video Format |P.IN P.Position
    //              ||HDTV        ||P.IN P.Audio
    //              |||Sync On G  |||P.IN P.Size
    //              ||||Auto Adjust
    {{6, 7},       "11110         1111"},
    {{14, 15},     "01111         1110"},
    {{18, 19, 20}, "01011         1110"},
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows)));

}  // namespace

// An unlisted model shows every row; those that it refuses are disabled.
constinit const PageTable kInput2Rows{kRows, kModels, Unlisted::AllRows};

}  // namespace AdvancedControl
