#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/input/InputLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr int kLastInput = 16;

constexpr auto kShortYcs = Numbered(ListText::Off, ListText::On);
constexpr ModelEntries kYcs[] = {{{16, 17}, kLegacyYcs}, {{}, kShortYcs}};
constexpr auto kPinPInputs = Numbered<1>("Video", "S-Video");
// "RGB" and "Video" are not in the catalog for this page.
constexpr auto kPlainPinPAudios = Numbered("RGB", "Video");
// "Off" has a different number on this page.
constexpr auto kInputPinPSizes =
    Numbered(ListText::InputPinPSizeOff, ListText::PinPLarge, ListText::PinPSmall);

std::vector<ListEntry> PowerUpInputs(const ModelData& model) {
  std::vector<ListEntry> entries = SourceEntries(model);
  entries.emplace(entries.begin(), ListText::LastInput, kLastInput);
  return entries;
}

constexpr PageRow kRows[] = {
    ListRow{"input.color-space", 54, 21074, kColorSpaces, Get(CommandCode::ColorSpace),
            Named(Op::SetColorSpace), kSendsPosition},
    ListRow{"input.component", 174, 21075, kComponents, Get(CommandCode::Component),
            Named(Op::SetComponent), kSendsPosition},
    VideoFormatRow(21076),
    ListRow{"input.frame-lock", 59, 21059, kSwitch, Get(CommandCode::FrameLock),
            Named(Op::SetFrameLock), kSendsPosition},
    ListRow{"input.3d-ycs", 57, 21077, kYcs, Get(CommandCode::Ycs3D), Named(Op::Set3DYCS),
            kSendsPosition},
    ListRow{"input.video-nr", 1058, 21053, kLegacyNoiseReductions, Get(CommandCode::VideoNr),
            Flagged(Op::SetVideoNR, 1), kSendsPosition},
    ListRow{"input.progressive", 60, 21060, kLegacyProgressive, Get(CommandCode::Progressive),
            Named(Op::SetProgressive), kSendsPosition},
    ListRow{"input.s2-aspect", 61, 21058, kSwitch, Get(CommandCode::S2Aspect),
            Named(Op::SetS2Aspect), kSendsPosition},
    ListRow{"input.p-in-p-input", 42, 21054, kPinPInputs, Get(CommandCode::PinPInput),
            Named(Op::SetPinPInput), kSendsPosition},
    ListRow{"input.p-in-p-position", 43, 21055, kPinPPositions, Get(CommandCode::PinPPosition),
            Named(Op::SetPinPPosition), kSendsPosition},
    ListRow{"input.p-in-p-audio", 44, 21056, kPlainPinPAudios, Get(CommandCode::PinPAudio),
            Named(Op::SetPinPAudio), kSendsPosition},
    // Intended: the size is only shown here; a choice is not sent.
    ListRow{"input.p-in-p-size", 45, 21061, kInputPinPSizes, Get(CommandCode::PinPSize)},
    ListRow{"input.power-up-input",
            62,
            ControlId::Input::PowerUpInput,
            PowerUpInputs,
            Get(CommandCode::PowerUpInput),
            Set(CommandCode::PowerUpInput),
            {.error = ErrorText::PowerUpInputRefused}},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //          Color Space     P.IN P.Input
    //          |Component      |P.IN P.Position
    //          ||Video Format  ||P.IN P.Audio
    //          |||Frame Lock   |||P.IN P.Size
    //          ||||3D-YCS      ||||Power Up Input
    //          |||||Video NR
    //          ||||||Progressive
    //          |||||||S2-Aspect
    {{1, 2},   "11101101        11111"},
    {{3},      "11101100        11111"},
    {{16, 17}, "11111111        00000"},
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows)));

}  // namespace

// An unlisted model shows every row; those that it refuses are disabled.
constinit const PageTable kInputRows{kRows, kModels, Unlisted::AllRows};

}  // namespace AdvancedControl
