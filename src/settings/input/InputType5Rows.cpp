#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/input/InputLists.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::InputType5;

using Op = PjtOperation;

constexpr auto kProgressive =
    Numbered(ListText::Off, ListText::ProgressiveTv, ListText::ProgressiveFilm);
// "Middle" and "Still Image" have other numbers than on the older input pages.
constexpr auto kNoiseReductions = Numbered<1>(
    ListText::NoiseReductionLow, ListText::NoiseReductionMiddle, ListText::NoiseReductionHigh);
constexpr auto kYcs = Numbered(ListText::Off, ListText::YcsMovie, ListText::YcsStillImage);
constexpr ListEntry kVideoFormats[] = {{ListText::Auto, 10}, {"NTSC", 4},     {"PAL", 5},
                                       {"SECAM", 9},         {"NTSC4.43", 2}, {"M-PAL", 8},
                                       {"N-PAL", 7}};
constexpr auto kHdmis = Numbered(ListText::HdmiAuto, ListText::HdmiNormal, ListText::HdmiEnhanced);
constexpr auto kM1Ds = Numbered(ListText::M1DNormal, ListText::M1DEnhanced);
constexpr auto kSyncOnGreen = Numbered<2>(ListText::SyncOnGreenOff, ListText::SyncOnGreenOn);
constexpr auto kAutomaticInput = Numbered<2>(ListText::SyncOnGreenOff, ListText::Auto);
constexpr ModelEntries kInputs[] = {{{37, 38, 41, 43, 51, 52, 54}, kAutomaticInput},
                                    {{}, kSyncOnGreen}};

// The RGB and the Computer row of an input are two labels of the same setting. The flag says which
// label the model has: 1 for RGB, 0 for Computer.
constexpr PageRow kRows[] = {
    ListRow{"input.progressive", 60, Id::Progressive, kProgressive, Named(Op::GetProgressive),
            Named(Op::SetProgressive), kSendsPosition},
    ListRow{"input.video-nr", 1058, Id::VideoNr, kNoiseReductions, Named(Op::GetVideoNrVal),
            Flagged(Op::SetVideoNR, 1), kSendsPosition},
    ListRow{"input.3d-ycs", 57, Id::ThreeDYcs, kYcs, Named(Op::Get3dycs), Named(Op::Set3DYCS),
            kSendsPosition},
    ListRow{"input.color-space", 54, Id::ColorSpace, kColorSpaces, Named(Op::GetColorSpace),
            Named(Op::SetColorSpace), kSendsPosition},
    ListRow{"input.component", 1055, Id::Component, kComponents, Named(Op::GetComponent),
            Named(Op::SetComponent), kSendsPosition},
    ListRow{"input.c-video-format", 1068, Id::CVideoFormat, kVideoFormats,
            Named(Op::GetVideoFormat, 1), Named(Op::SetCVideoFormat), kSendsPosition},
    ListRow{"input.s-video-format", 1069, Id::SVideoFormat, kVideoFormats,
            Named(Op::GetVideoFormat, 0), Named(Op::SetSVideoFormat), kSendsPosition},
    ListRow{"input.hdmi", 187, Id::Hdmi, kHdmis, Named(Op::GetHDMI), Named(Op::SetHDMI),
            kSendsPosition},
    ListRow{"input.m1-d", 70, Id::M1D, kM1Ds, Named(Op::GetM1d), Named(Op::SetM1D), kSendsPosition},
    ListRow{"input.frame-lock", 59, Id::FrameLock, kSwitch, Named(Op::GetFrameLock),
            Named(Op::SetFrameLock), kSendsPosition},
    ListRow{"input.frame-lock-rgb1", 1188, Id::FrameLockRgb1, kSwitch, Named(Op::GetFrameLockComp1),
            Flagged(Op::SetFrameLockComp1, 1), kSendsPosition},
    ListRow{"input.frame-lock-computer1", 185, Id::FrameLockComputer1, kSwitch,
            Named(Op::GetFrameLockComp1), Flagged(Op::SetFrameLockComp1, 0), kSendsPosition},
    ListRow{"input.frame-lock-rgb2", 1189, Id::FrameLockRgb2, kSwitch, Named(Op::GetFrameLockComp2),
            Flagged(Op::SetFrameLockComp2, 1), kSendsPosition},
    ListRow{"input.frame-lock-computer2", 186, Id::FrameLockComputer2, kSwitch,
            Named(Op::GetFrameLockComp2), Flagged(Op::SetFrameLockComp2, 0), kSendsPosition},
    ListRow{"input.frame-lock-hdmi", 1190, Id::FrameLockHdmi, kSwitch, Named(Op::GetFrameLockHDMI),
            Named(Op::SetFrameLockHDMI), kSendsPosition},
    ListRow{"input.rgb-in-1", 1071, Id::RgbIn1, kInputs, Named(Op::GetRgbIn, 1),
            Flagged(Op::SetRgbIn1, 1), kSendsPosition},
    ListRow{"input.computer-in-1", 179, Id::ComputerIn1, kInputs, Named(Op::GetRgbIn, 1),
            Flagged(Op::SetRgbIn1, 0), kSendsPosition},
    ListRow{"input.rgb-in-2", 1072, Id::RgbIn2, kInputs, Named(Op::GetRgbIn, 2),
            Flagged(Op::SetRgbIn2, 1), kSendsPosition},
    ListRow{"input.computer-in-2", 180, Id::ComputerIn2, kInputs, Named(Op::GetRgbIn, 2),
            Flagged(Op::SetRgbIn2, 0), kSendsPosition},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //                  Progressive M1-D
    //                  |Video NR   |Frame Lock
    //                  ||3D-YCS    || RGB1
    //                  |||Color    || |Computer1
    //                  |||| Space  || ||RGB2
    //                  ||||Comp.   || |||Computer2
    //                  |||||C-Video|| ||||HDMI
    //                  ||||||S-Vid.|| ||||| RGB IN-1
    //                  |||||||HDMI || ||||| |Computer in-1
    //                  ||||||||    || ||||| ||RGB IN-2
    //                  ||||||||    || ||||| |||Computer in-2
    {{30, 31}, "11111110    11 00000 1010"},
    {{32, 33, 36}, "11011110    01 00000 1010"},
    {{37}, "11010110    01 00000 0101"},
    {{38}, "11010110    01 00000 0100"},
    {{39, 45}, "11011110    01 00000 0101"},
    {{40, 44, 49, 50}, "11011110    00 01010 0101"},
    {{41, 43, 51, 54}, "11111111    00 10101 1010"},
    {{42, 53}, "11011111    00 01011 0101"},
    {{46}, "11111110    01 00000 1010"},
    {{52}, "11111110    00 10100 1010"},
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows)));

}  // namespace

// Captions of rows that the present signal lacks are not greyed.
constinit const PageTable kInputType5Rows{
    .rows = kRows, .models = kModels, .unlisted = Unlisted::Template, .captionsStay = true};

}  // namespace AdvancedControl
