#include "device/CommandCode.h"
#include "settings/PageTables.h"
#include "settings/setup/AudioLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr Range kZoom{80, 100};
constexpr Range kKeystone{-128, 127};
constexpr PerModel<Range> kVolume{{0, 32}, {9, 22}, {0, 48}};
// Only the projector knows its maximum volume.
constexpr Range kVolumeBounds{0, kUnbounded.maximum};

constexpr ListRules kRouting{.noEntry = NoEntry::Keeps, .refused = Refused::ReadsBack};

constexpr ResetEntry kResets[] = {
    {ListText::ElectricZoom, Op::ExecElectricZoomReset, 21048},
    {ListText::Keystone, Op::ExecKeyStoneReset, 20250},
};

// Every model has all rows. If it does not have a setting, the row is disabled.
constexpr PageRow kRows[] = {
    ValueRow{.key = "setup.electric-zoom",
             .caption = 154,
             .ids = {21049, 21048, 21050, 21118},
             .code = CommandCode::DigitalZoom,
             .rangeText = RangeIndex::ElectricZoom,
             .range = kZoom,
             .bounds = kZoom,
             .ticks = 2,
             .unit = ListText::Percent,
             .error = ErrorText::ElectricZoomRefused},
    ValueRow{.key = "setup.keystone",
             .caption = 77,
             .ids = {20249, 20250, 20251, 20252},
             .code = CommandCode::Keystone,
             .bias = CommandCode::kZeroPoint,
             .rangeText = RangeIndex::KeystoneV,
             .range = kKeystone,
             .bounds = kKeystone,
             .ticks = 16,
             .error = ErrorText::KeystoneRefused},
    ListRow{"setup.whisper",
            75,
            20242,
            WhisperEntries,
            Get(CommandCode::Whisper),
            Named(Op::SetWhisper),
            {.refused = Refused::ReadsBack, .emptyIsNotRead = true}},
    ListRow{"setup.mirror", 40, 20243, kMirrors, Named(Op::GetMirror), Named(Op::SetMirror),
            kReadBack},
    ValueRow{.key = "setup.volume",
             .caption = 1,
             .ids = {20244, 20245, 20246, 20256},
             .code = CommandCode::Volume,
             .rangeText = RangeIndex::Volume,
             .range = kVolume,
             .bounds = kVolumeBounds,
             .ticks = 4,
             .error = ErrorText::VolumeRefused,
             .ofCurrentSourceOnly = true},
    ListRow{"setup.stereo", 78, 21034, kSwitch, Get(CommandCode::Stereo), Named(Op::SetStereo)},
    CheckRow{"setup.ir-front", 81, 20247, Get(CommandCode::IrFront), Named(Op::SetIRFront)},
    CheckRow{"setup.ir-top", 83, 20248, Get(CommandCode::IrTop), Named(Op::SetIRTop)},
    ListRow{"setup.audio-rgb1", 139, 21043, kThreeAudios, Get(CommandCode::AudioRgb1),
            Named(Op::SetAudioRGB1), kRouting},
    ListRow{"setup.audio-rgb2", 140, 21044, kThreeAudios, Get(CommandCode::AudioRgb2),
            Named(Op::SetAudioRGB2), kRouting},
    ListRow{"setup.audio-video", 141, 21051, kThreeAudios, Get(CommandCode::AudioVideo),
            Named(Op::SetAudioVideo), kRouting},
    ListRow{"setup.audio-s-video", 142, 21052, kThreeAudios, Get(CommandCode::AudioSVideo),
            Named(Op::SetAudioSVideo), kRouting},
    ListRow{"setup.audio-component", 143, 21053, kThreeAudios, Get(CommandCode::AudioComponent),
            Named(Op::SetAudioComponent), kRouting},
    ResetRow{"setup.reset", 20254, 20255, kResets},
};

}  // namespace

constinit const PageTable kSetup4Rows{kRows};

}  // namespace AdvancedControl
