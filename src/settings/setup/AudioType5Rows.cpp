#include "device/CommandCode.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/setup/AudioLists.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::AudioType5;

using Op = PjtOperation;

// The audio inputs that a source can have. The digital and the MIU list have an additional last
// entry. As the fifth entry it has its position as its value; as the sixth, the projector's number
// of that input.
constexpr auto kInputsWith4 =
    Numbered(ListText::Off, ListText::Audio1, ListText::Audio2, ListText::Audio3, ListText::Audio4);

template <int text>
constexpr auto kInputsAnd = Numbered(ListText::Off, ListText::Audio1, ListText::Audio2,
                                     ListText::Audio3, text);
template <int text, int value>
constexpr ListEntry kInputsWith4And[] = {{ListText::Off, 0},    {ListText::Audio1, 1},
                                         {ListText::Audio2, 2}, {ListText::Audio3, 3},
                                         {ListText::Audio4, 4}, {text, value}};

constexpr ModelCodes kCodesWith4{30, 31, 41, 43, 46, 51, 52, 54};
constexpr ModelEntries kSources[] = {{kCodesWith4, kInputsWith4}, {{}, kThreeAudios}};
constexpr ModelEntries kHdmiSources[] = {
    {kCodesWith4, kInputsWith4And<ListText::AudioHDMI, kHdmiInput>},
    {{}, kInputsAnd<ListText::AudioHDMI>}};
constexpr ModelEntries kMiuSources[] = {
    {kCodesWith4, kInputsWith4And<ListText::AudioMIU, kMiuInput>},
    {{}, kInputsAnd<ListText::AudioMIU>}};

// A value that is read back after a refusal is a position, so 32 and 16 then select nothing. In a
// refresh they select their entries.
constexpr ListRules kRouting{.noEntry = NoEntry::IsPosition,
                             .refused = Refused::ReadsBackPosition,
                             .failedReadDisables = false,
                             .sendsText = true};
constexpr ListRules kHdmiMode{
    .noEntry = NoEntry::Keeps, .refused = Refused::ReadsBack, .failedReadDisables = false};

// A value of the source that is heard. A refused position or a failed read only empties the field.
constexpr ValueRow OfPlaying(ValueRow row, int initial) {
  row.initial = initial;
  row.refusedDrag = RefusedDrag::Empties;
  row.failedReadDisables = false;
  row.deviceMemory = DeviceMemory::OfSteps;
  row.of = OfSource::Playing;
  return row;
}

constexpr ValueRow Volume() {
  return OfPlaying(
      NamedSlider("audio.volume", 1, {Id::VolumeMinus, Id::Volume, Id::VolumePlus, Id::VolumeField},
                  {Op::GetInputSrcVolume, Op::SetVolumeEachSrc, Op::DecrementInputSrcVol,
                   Op::IncrementInputSrcVol},
                  RangeIndex::Volume, {0, 48}, 4),
      24);
}

constexpr ValueRow Tone(std::string_view key, int caption, const ValueIds& ids, const ValueOps& ops,
                        int rangeText) {
  ValueRow row = OfPlaying(NamedSlider(key, caption, ids, ops, rangeText, {-4, 4}), 0);
  row.bias = CommandCode::kZeroPoint;
  return row;
}

// The projector also reports 1, which counts as off.
constexpr ListEntry kSurrounds[] = {
    {ListText::SwitchOff, 0}, {ListText::SurroundMid, 2}, {ListText::SurroundHigh, 3}};
constexpr ListRules kSurround{.noEntry = NoEntry::IsOrdinal,
                              .refused = Refused::ReadsBack,
                              .failedReadDisables = false,
                              .sendsText = true};

// The two digital rows share one operation. A flag selects the input; the models that need the flag
// differ by row.
constexpr Call kSetM1D = Flagged(Op::SetAudioM1D, {0, {41, 43}, 1});
constexpr Call kSetHdmi = Flagged(Op::SetAudioM1D, {0, {41, 43, 51, 53, 54}, 1});

// A Computer row is the same input as its RGB row, and the projector reports both with the RGB
// operation.
constexpr PageRow kRows[] = {
    Volume(),
    Tone("audio.treble", 2, {Id::TrebleMinus, Id::Treble, Id::TreblePlus, Id::TrebleField},
         {Op::GetInputSrcTreble, Op::SetInputSrcTreble, Op::DecrementInputSrcTreb,
          Op::IncrementInputSrcTreb},
         RangeIndex::Treble),
    Tone("audio.bass", 3, {Id::BassMinus, Id::Bass, Id::BassPlus, Id::BassField},
         {Op::GetInputSrcBass, Op::SetInputSrcBass, Op::DecrementInputSrcBass,
          Op::IncrementInputSrcBass},
         RangeIndex::Bass),
    ListRow{"audio.srs-wow",
            4,
            Id::SrsWow,
            kSurrounds,
            Named(Op::GetSRSWOW),
            Named(Op::SetSRSWOW),
            kSurround,
            {},
            OfSource::Playing},
    ListRow{"audio.speaker", 5, Id::Speaker, kSwitch, Named(Op::GetSpeaker), Named(Op::SetSpeaker),
            kRouting},
    ListRow{"audio.rgb1", 1006, Id::Rgb1, kSources, Named(Op::GetAudioRGB1),
            Named(Op::SetAudioRGB1), kRouting},
    ListRow{"audio.computer1", 181, Id::Computer1, kSources, Named(Op::GetAudioRGB1),
            Named(Op::SetAudioComputer1), kRouting},
    ListRow{"audio.rgb2", 1007, Id::Rgb2, kSources, Named(Op::GetAudioRGB2),
            Named(Op::SetAudioRGB2), kRouting},
    ListRow{"audio.computer2", 182, Id::Computer2, kSources, Named(Op::GetAudioRGB2),
            Named(Op::SetAudioComputer2), kRouting},
    ListRow{"audio.m1-d", 1008, Id::M1D, kSources, Named(Op::GetAudioM1D), kSetM1D, kRouting},
    ListRow{"audio.hdmi", 1183, Id::Hdmi, kHdmiSources, Named(Op::GetAudioM1D), kSetHdmi, kRouting},
    ListRow{"audio.video", 1009, Id::Video, kSources, Named(Op::GetAudioVideo),
            Named(Op::SetAudioVideo), kRouting},
    ListRow{"audio.s-video", 1010, Id::SVideo, kSources, Named(Op::GetAudioSVideo),
            Named(Op::SetAudioSVideo), kRouting},
    ListRow{"audio.component", 1011, Id::Component, kSources, Named(Op::GetAudioComponent),
            Named(Op::SetAudioComponent), kRouting},
    ListRow{"audio.miu", 12, Id::Miu, kMiuSources, Named(Op::GetAudioMIU), Named(Op::SetAudioMIU),
            kRouting},
    ListRow{"audio.out-standby", 206, Id::OutStandby, kSources, Named(Op::GetAudioOutStandby),
            Named(Op::SetAudioOutStandby), kRouting},
    ListRow{"audio.hdmi-audio", 184, Id::HdmiAudio, kHdmiAudio, Named(Op::GetHDMIAudio),
            Named(Op::SetHDMIAudio), kHdmiMode},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //          Volume RGB1         Video
    //          |Tre.  |Computer1   |S-Video
    //          ||Bass ||RGB2       ||Component
    //          |||SRS |||Computer2 |||MIU
    //          ||||Sp.|||| M1-D    |||| Out Standby
    //          |||||  |||| |HDMI   |||| |HDMI Audio
    {{30}, "11111  1010 10      1110 00"},     {{31}, "11111  1010 10      1111 00"},
    {{41}, "11111  1010 01      1111 01"},     {{43}, "11111  1010 01      1110 01"},
    {{46, 52}, "10001  1010 00      1110 00"}, {{49, 50}, "10001  0101 00      1110 10"},
    {{51}, "11111  1010 01      1110 11"},     {{53}, "10001  0101 01      1110 11"},
    {{54}, "11111  1010 01      1111 11"},
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows)));

}  // namespace

constinit const PageTable kAudioType5Rows{kRows, kModels, Unlisted::NoRow};

}  // namespace AdvancedControl
