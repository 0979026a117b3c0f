#include "device/CommandCode.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/setup/AudioLists.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::SetupType5;

using Op = PjtOperation;

// Audio routing.
constexpr auto kTwoAudios = Numbered(ListText::Off, ListText::Audio1, ListText::Audio2);
constexpr ModelEntries kAudios[] = {{{37}, kTwoAudios}, {{}, kThreeAudios}};
constexpr ListEntry kAudioHdmi[] = {{ListText::Off, 0},
                                    {ListText::Audio1, 1},
                                    {ListText::Audio2, 2},
                                    {ListText::Audio3, 3},
                                    {ListText::AudioHDMI, kHdmiInput}};
constexpr ListEntry kMiuOf38[] = {
    {ListText::Off, 0}, {ListText::AudioOnly, 1}, {ListText::AudioMIU, kMiuInput}};
constexpr ListEntry kMiuOfOthers[] = {{ListText::Off, 0},
                                      {ListText::Audio1, 1},
                                      {ListText::Audio2, 2},
                                      {ListText::Audio3, 3},
                                      {ListText::AudioMIU, kMiuInput}};
constexpr ModelEntries kAudioMiu[] = {{{38}, kMiuOf38}, {{}, kMiuOfOthers}};
constexpr auto kStandbys = Numbered(ListText::StandbyNormal, ListText::StandbySaving);

// Monitor out: 255 is off, 0 the first computer input, 4 the second.
constexpr ListEntry kOutOff{ListText::Off, 255};
constexpr ListEntry kOutComputer1[] = {kOutOff, {"Computer1", 0}};
constexpr ListEntry kOutComputer2[] = {kOutOff, {"Computer2", 4}};
constexpr ListEntry kOutComputers[] = {kOutOff, {"Computer1", 0}, {"Computer2", 4}};
constexpr ListEntry kOutRgb1[] = {kOutOff, {"RGB1", 0}};
constexpr ListEntry kOutRgb2[] = {kOutOff, {"RGB2", 4}};
constexpr ListEntry kOutRgbs[] = {kOutOff, {"RGB1", 0}, {"RGB2", 4}};
constexpr ModelEntries kMonitorRgb1[] = {{{54}, kOutRgb1}, {{}, kOutRgbs}};
constexpr ModelEntries kMonitorRgb2[] = {{{54}, kOutRgb2}, {{}, kOutRgbs}};
constexpr ModelEntries kMonitors[] = {{{51, 54}, kOutRgbs}, {{}, kOutComputers}};

constexpr ListRules kReadBackWithText{.refused = Refused::ReadsBack, .sendsText = true};
// A value without an entry does not change the selection of a routing list.
constexpr ListRules kRouting{.noEntry = NoEntry::Keeps, .refused = Refused::ReadsBack};
constexpr ListRules kRoutingWithText{
    .noEntry = NoEntry::Keeps, .refused = Refused::ReadsBack, .sendsText = true};

// Ticks at eighths. After a refused position the slider returns to the remembered value, without a
// message.
constexpr ValueRow Keystone(std::string_view key, int caption, const ValueIds& ids,
                            const ValueOps& ops, int rangeText) {
  ValueRow row = NamedSlider(key, caption, ids, ops, rangeText, {-128, 127}, 0);
  row.bias = CommandCode::kZeroPoint;
  row.refusedDrag = RefusedDrag::GoesBack;
  row.greysField = true;
  row.deviceMemory = DeviceMemory::OfStepsAndReads;
  return row;
}

constexpr ValueRow Volume() {
  ValueRow row =
      NamedSlider("setup.volume", 1, {Id::VolumeMinus, Id::Volume, Id::VolumePlus, Id::VolumeField},
                  {Op::GetInputSrcVolume, Op::SetVolumeEachSrc, Op::DecrementInputSrcVol,
                   Op::IncrementInputSrcVol},
                  RangeIndex::Volume, {0, 32}, 0);
  row.refusedDrag = RefusedDrag::GoesBack;
  row.of = OfSource::Current;
  return row;
}

// One direction of the digital shift. Any result but 0 is a success. Only the projector limits it.
constexpr ValueRow Shift(std::string_view key, const ValueIds& ids, std::uint16_t code) {
  return {.key = key,
          .caption = 195,
          .ids = ids,
          .code = code,
          .read = AnyResult(Get(code)),
          .down = AnyResult(Dec(code)),
          .up = AnyResult(Inc(code)),
          .bias = CommandCode::kZeroPoint,
          .stepsOnly = true,
          .error = ErrorText::DShiftRefused};
}

constexpr ResetEntry kResets[] = {
    {ListText::KeystoneV, Op::ExecKeyStoneVReset, Id::KeystoneV},
    {ListText::KeystoneH, Op::ExecKeyStoneHReset, Id::KeystoneH},
    {ListText::DZoom, Op::ExecDZoomReset, Id::DZoom},
    {ListText::DShiftV, Op::ExecDShiftVReset, Id::DShiftVField},
    {ListText::DShiftH, Op::ExecDShiftHReset, Id::DShiftHField},
};

// A Computer row is the RGB input under its newer name. The projector reports both in the same way.
constexpr PageRow kRows[] = {
    ActionRow{"setup.auto-keystone", 18, Id::AutoKeystone, Named(Op::ExecAutoKeyStone)},
    Keystone("setup.keystone-v", 137,
             {Id::KeystoneVMinus, Id::KeystoneV, Id::KeystoneVPlus, Id::KeystoneVField},
             {Op::GetKeystoneV, Op::SetKeystoneV, Op::DecrementKeystoneV, Op::IncrementKeystoneV},
             RangeIndex::KeystoneV),
    Keystone("setup.keystone-h", 138,
             {Id::KeystoneHMinus, Id::KeystoneH, Id::KeystoneHPlus, Id::KeystoneHField},
             {Op::GetKeystoneH, Op::SetKeystoneH, Op::DecrementKeystoneH, Op::IncrementKeystoneH},
             RangeIndex::KeystoneH),
    ListRow{"setup.whisper", 75, Id::Whisper, WhisperEntries, Named(Op::GetWhisper),
            Named(Op::SetWhisper), kReadBack},
    ListRow{"setup.mirror", 40, Id::Mirror, kMirrors, Named(Op::GetMirror), Named(Op::SetMirror),
            kReadBack},
    ListRow{"setup.speaker", 5, Id::Speaker, kSwitch, Named(Op::GetSpeaker), Named(Op::SetSpeaker),
            kReadBackWithText},
    Volume(),
    // The buttons need the result 1. Reading and the slider accept any result but 0.
    ValueRow{.key = "setup.d-zoom",
             .caption = 194,
             .ids = {Id::DZoomMinus, Id::DZoom, Id::DZoomPlus, Id::DZoomField},
             .code = CommandCode::DigitalZoom,
             .read = AnyResult(Get(CommandCode::DigitalZoom)),
             .set = AnyResult(Set(CommandCode::DigitalZoom)),
             .range = Range{80, 100},
             .ticks = 2,
             .unit = ListText::Percent,
             .refusedDrag = RefusedDrag::GoesBack,
             .error = ErrorText::DZoomRefused},
    Shift("setup.d-shift-v", {Id::DShiftVMinus, 0, Id::DShiftVPlus, Id::DShiftVField},
          CommandCode::DigitalShiftV),
    Shift("setup.d-shift-h", {Id::DShiftHMinus, 0, Id::DShiftHPlus, Id::DShiftHField},
          CommandCode::DigitalShiftH),
    ListRow{"setup.audio-rgb1", 139, Id::AudioRgb1, kThreeAudios, Named(Op::GetAudioRGB1),
            Named(Op::SetAudioRGB1), kRouting},
    ListRow{"setup.audio-computer1", 181, Id::AudioComputer1, kAudios, Named(Op::GetAudioRGB1),
            Named(Op::SetAudioComputer1), kRoutingWithText},
    ListRow{"setup.audio-rgb2", 140, Id::AudioRgb2, kThreeAudios, Named(Op::GetAudioRGB2),
            Named(Op::SetAudioRGB2), kRouting},
    ListRow{"setup.audio-computer2", 182, Id::AudioComputer2, kAudios, Named(Op::GetAudioRGB2),
            Named(Op::SetAudioComputer2), kRoutingWithText},
    ListRow{"setup.audio-hdmi", 183, Id::AudioHdmi, kAudioHdmi, Named(Op::GetAudioM1D),
            Flagged(Op::SetAudioM1D, {0, {42}, 1}), kRoutingWithText},
    ListRow{"setup.audio-component", 143, Id::AudioComponent, kThreeAudios,
            Named(Op::GetAudioComponent), Named(Op::SetAudioComponent), kRouting},
    ListRow{"setup.audio-s-video", 142, Id::AudioSVideo, kAudios, Named(Op::GetAudioSVideo),
            Named(Op::SetAudioSVideo), kRouting},
    ListRow{"setup.audio-video", 141, Id::AudioVideo, kAudios, Named(Op::GetAudioVideo),
            Named(Op::SetAudioVideo), kRouting},
    ListRow{"setup.audio-miu", 144, Id::AudioMiu, kAudioMiu, Named(Op::GetAudioMIU),
            Named(Op::SetAudioMIU), kRouting},
    ListRow{"setup.hdmi-audio", 184, Id::HdmiAudio, kHdmiAudio, Named(Op::GetHDMIAudio),
            Named(Op::SetHDMIAudio), kRouting},
    ListRow{"setup.standby-mode", 205, Id::StandbyMode, kStandbys, Named(Op::GetStandbyMode),
            Named(Op::SetStandbyMode), kRouting},
    ListRow{"setup.monitor-out-rgb1", 207, Id::MonitorOutRgb1, kMonitorRgb1,
            Named(Op::GetMonitorOutComputer1), Named(Op::SetMonitorOutComputer1), kRouting},
    ListRow{"setup.monitor-out-computer1", 197, Id::MonitorOutComputer1, kOutComputer1,
            Named(Op::GetMonitorOutComputer1), Named(Op::SetMonitorOutComputer1), kRouting},
    ListRow{"setup.monitor-out-rgb2", 208, Id::MonitorOutRgb2, kMonitorRgb2,
            Named(Op::GetMonitorOutComputer2), Named(Op::SetMonitorOutComputer2), kRouting},
    ListRow{"setup.monitor-out-computer2", 198, Id::MonitorOutComputer2, kOutComputer2,
            Named(Op::GetMonitorOutComputer2), Named(Op::SetMonitorOutComputer2), kRouting},
    ListRow{"setup.monitor-out-hdmi", 199, Id::MonitorOutHdmi, kMonitors,
            Named(Op::GetMonitorOutHDMI), Named(Op::SetMonitorOutHDMI), kRouting},
    ListRow{"setup.monitor-out-component", 200, Id::MonitorOutComponent, kMonitors,
            Named(Op::GetMonitorOutComponent), Named(Op::SetMonitorOutComponent), kRouting},
    ListRow{"setup.monitor-out-s-video", 201, Id::MonitorOutSVideo, kMonitors,
            Named(Op::GetMonitorOutSVideo), Named(Op::SetMonitorOutSVideo), kRouting},
    ListRow{"setup.monitor-out-video", 202, Id::MonitorOutVideo, kMonitors,
            Named(Op::GetMonitorOutVideo), Named(Op::SetMonitorOutVideo), kRouting},
    ListRow{"setup.monitor-out-miu", 203, Id::MonitorOutMiu, kMonitors, Named(Op::GetMonitorOutMIU),
            Named(Op::SetMonitorOutMIU), kRouting},
    ListRow{"setup.monitor-out-standby", 204, Id::MonitorOutStandby, kMonitors,
            Named(Op::GetMonitorOutStandby), Named(Op::SetMonitorOutStandby), kRouting},
    ResetRow{"setup.reset", Id::Reset, Id::ResetExecute, kResets, Rereads::ItsRow},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //                          Auto Keystone         Audio                 Standby Mode
    //                          |Keystone V           RGB1                  | Monitor out
    //                          ||Keystone H          |Computer1            | RGB1
    //                          |||Whisper            ||RGB2                | |Computer1
    //                          ||||Mirror            |||Computer2          | ||RGB2
    //                          |||||Speaker          ||||HDMI              | |||Computer2
    //                          ||||||Volume          |||||Component        | ||||HDMI
    //                          |||||||D-Zoom         ||||||S-Video         | |||||Component
    //                          ||||||||D-Shift V     |||||||Video          | ||||||S-Video
    //                          |||||||||D-Shift H    ||||||||MIU           | |||||||Video
    //                          ||||||||||            |||||||||HDMI Audio   | ||||||||MIU
    //                          ||||||||||            ||||||||||            | |||||||||Standby
    {{30, 31, 41, 43, 46, 52}, "1111100000            0000000000            0 0000000000"},
    {{32, 33},                 "1101101000            1010011100            0 0000000000"},
    {{36},                     "1101101000            1010011110            0 0000000000"},
    {{37},                     "1101101000            0101001100            0 0000000000"},
    {{38},                     "1101101000            0000000010            0 0000000000"},
    {{39, 45},                 "1101111000            0101011100            0 0000000000"},
    {{40},                     "1101111000            0101011110            0 0000000000"},
    {{42},                     "1111111000            0101111111            0 0000000000"},
    {{44},                     "0101111111            0101011100            0 0000000000"},
    {{49, 50},                 "1101100000            0000000000            1 0101011101"},
    {{51},                     "1111100000            0000000000            0 1010111101"},
    {{53},                     "1101100000            0000000000            1 0101111101"},
    {{54},                     "1111100000            0000000000            0 1010111111"},
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows) - 1));  // every model has the resets

}  // namespace

constinit const PageTable kSetupType5Rows{kRows, kModels, Unlisted::NoRow};

}  // namespace AdvancedControl
