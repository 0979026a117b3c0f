#include "simulator/SettingsTable.h"

#include "device/CommandCode.h"
#include "device/ModelData.h"

namespace {

using Id = SettingId;
using Op = PjtOperation;
using Operations = std::array<Binding, Setting::kOperations>;

constexpr Binding Read(Op operation, int selector = Binding::kAny) {
  return {.operation = operation, .verb = Verb::Read, .selector = selector};
}
constexpr Binding Write(Op operation, ValueForm form = ValueForm::Device) {
  return {.operation = operation, .verb = Verb::Write, .form = form};
}
constexpr Binding Up(Op operation) { return {.operation = operation, .verb = Verb::StepUp}; }
constexpr Binding Down(Op operation) { return {.operation = operation, .verb = Verb::StepDown}; }
constexpr Binding Reset(Op operation, int selector = Binding::kAny) {
  return {.operation = operation, .verb = Verb::Reset, .selector = selector};
}
constexpr Binding TurnTo(Op operation, int value) {
  return {.operation = operation, .verb = Verb::TurnTo, .turnTo = value};
}

constexpr SettingRange kSwitch{0, 1};
constexpr SettingRange kWord{0, 0xFFFF};

constexpr int kIrisValues[] = {0x00, 0x10, 0x11};
constexpr int kVideoFormatValues[] = {10, 4, 5, 9, 2, 8, 7};
constexpr int kSrsWowValues[] = {0, 2, 3};
constexpr int kDigitalAudioValues[] = {0, 1, 2, 3, 4, 32};
constexpr int kMiuAudioValues[] = {0, 1, 2, 3, 4, 16};
constexpr int kMonitorOutValues[] = {255, 0, 4};
constexpr int kStartUpValues[] = {0, 1, 32};

constexpr Setting GammaPoint(int point, std::string_view name) {
  const auto offset = static_cast<std::size_t>(point - 1);
  return {
      .id = static_cast<Id>(static_cast<std::size_t>(Id::GammaPoint1) + offset),
      .name = name,
      .code = static_cast<std::uint16_t>(CommandCode::UserGammaPoint1 + offset),
      .range = {112, 144},
      .standard = CommandCode::kZeroPoint,
      .inMemory = true,
      .rangeText = RangeIndex::GammaPoint + offset,
      .operations = {Read(Op::GetUserGammaPoint, point), Reset(Op::ExecUserGammaPReset, point)}};
}

/// A gain or offset; its steppers name the channel and exchange shown values.
constexpr Setting ColorTempAdjust(Id id, std::string_view name, std::uint16_t code, int channel,
                                  std::size_t rangeText, Op read, Op up, Op down, Op reset) {
  return {.id = id,
          .name = name,
          .code = code,
          .standard = CommandCode::kZeroPoint,
          .inMemory = true,
          .rangeText = rangeText,
          .operations = {Read(read),
                         {up, Verb::StepUp, ValueForm::Shown, channel},
                         {down, Verb::StepDown, ValueForm::Shown, channel},
                         Reset(reset)}};
}

constexpr Setting Gain(Id id, std::string_view name, int channel, Op read, Op reset) {
  const auto offset = static_cast<std::size_t>(channel);
  return ColorTempAdjust(id, name,
                         static_cast<std::uint16_t>(CommandCode::ColorTempGainR + channel), channel,
                         RangeIndex::ColorTempAdjust + offset, read, Op::IncrementColorTempGain,
                         Op::DecrementColorTempGain, reset);
}

constexpr Setting Offset(Id id, std::string_view name, int channel, Op read, Op reset) {
  const auto offset = static_cast<std::size_t>(channel);
  return ColorTempAdjust(id, name,
                         static_cast<std::uint16_t>(CommandCode::ColorTempOffsetR + channel),
                         channel, RangeIndex::ColorTempAdjust + 3 + offset, read,
                         Op::IncrementColorTempOffset, Op::DecrementColorTempOffset, reset);
}

/// A value that the projector keeps from −128 to 127 around the zero point.
constexpr Setting Balance(Id id, std::string_view name, std::uint16_t code, SettingRange range,
                          std::size_t rangeText, Operations operations) {
  return {.id = id,
          .name = name,
          .code = code,
          .range = range,
          .standard = CommandCode::kZeroPoint,
          .inMemory = true,
          .rangeText = rangeText,
          .operations = operations};
}

constexpr Setting Plain(Id id, std::string_view name, SettingRange range, Operations operations,
                        int standard = 0) {
  return {.id = id, .name = name, .range = range, .standard = standard, .operations = operations};
}

constexpr Setting Coded(Id id, std::string_view name, std::uint16_t code, SettingRange range,
                        Operations operations, int standard = 0) {
  return {.id = id,
          .name = name,
          .code = code,
          .range = range,
          .standard = standard,
          .operations = operations};
}

constexpr Setting Ranged(std::size_t rangeText, Setting setting) {
  setting.rangeText = rangeText;
  return setting;
}

constexpr Setting OneOf(Id id, std::string_view name, std::uint16_t code,
                        std::span<const int> values, Operations operations) {
  return {.id = id,
          .name = name,
          .code = code,
          .values = values,
          .standard = values.front(),
          .operations = operations};
}

constexpr Setting ForSets(PageSets sets, Setting setting) {
  setting.sets = sets;
  return setting;
}

constexpr Setting InMemory(Setting setting) {
  setting.inMemory = true;
  return setting;
}

constexpr Setting ColorTemp(std::uint16_t alsoSetBy = 0) {
  return {.id = Id::ColorTemp,
          .name = "Color temperature",
          .code = CommandCode::ColorTemp,
          .alsoSetBy = alsoSetBy,
          .inMemory = true};
}

constexpr Setting kSettings[] = {
    // State of the projector.
    {.id = Id::Power,
     .name = "Power",  // 0 standby, 1 on, 2 cooling down
     .code = CommandCode::RunningState,
     .range = {0, 2},
     .standard = 1,
     .reported = true,
     .operations = {TurnTo(Op::SetPowerOn, 1), TurnTo(Op::SetPowerOff, 0)}},
    Coded(Id::InputSource, "Input source", CommandCode::InputSource, {0, 255},
          {Read(Op::GetInputSource)}),
    {.id = Id::ErrorStatus,
     .name = "Error status",
     .code = CommandCode::ErrorStatus,
     .range = kWord,
     .reported = true},
    Coded(Id::Blank, "Blank", CommandCode::BlankState, kSwitch, {Write(Op::SetBlank)}),
    Coded(Id::Mute, "Mute", CommandCode::Mute, kSwitch, {Write(Op::SetMute)}),
    Coded(Id::Freeze, "Freeze", CommandCode::Freeze, kSwitch, {Write(Op::SetFreeze)}),
    {.id = Id::LampTime,
     .name = "Lamp time",
     .code = CommandCode::LampTime,
     .range = kWord,
     .standard = 1240,
     .reset = 0,
     .reported = true,
     .operations = {Reset(Op::ExecLampTimeReset)}},
    {.id = Id::FilterTime,
     .name = "Filter time",
     .code = CommandCode::FilterTime,
     .range = kWord,
     .standard = 310,
     .reset = 0,
     .reported = true,
     .operations = {Reset(Op::ExecFilterTimeReset)}},

    // Picture. Ranges are the widest that any model's page offers.
    Balance(Id::Brightness, "Brightness", CommandCode::Brightness, {96, 160},
            RangeIndex::Brightness, {Write(Op::SetBrightness), Reset(Op::ExecBrightnessReset)}),
    Balance(Id::Contrast, "Contrast", CommandCode::Contrast, {80, 176}, RangeIndex::Contrast,
            {Write(Op::SetContrast), Reset(Op::ExecContrastReset)}),
    Balance(Id::Color, "Color", CommandCode::Color, {65, 191}, RangeIndex::Color,
            {Write(Op::SetColor), Reset(Op::ExecColorReset)}),
    Balance(Id::Tint, "Tint", CommandCode::Tint, {96, 160}, RangeIndex::Tint,
            {Write(Op::SetTint), Reset(Op::ExecTintReset)}),
    Balance(Id::Sharpness, "Sharpness", CommandCode::Sharpness, {120, 136}, RangeIndex::Sharpness,
            {Write(Op::SetSharpness), Reset(Op::ExecSharpnessReset)}),
    Balance(Id::ColorBalanceR, "Color balance R", CommandCode::ColorBalR, {65, 191},
            RangeIndex::ColorBalR, {Reset(Op::ExecColorBalRReset)}),
    Balance(Id::ColorBalanceG, "Color balance G", CommandCode::ColorBalG, {65, 191},
            RangeIndex::ColorBalG, {Reset(Op::ExecColorBalGReset)}),
    Balance(Id::ColorBalanceB, "Color balance B", CommandCode::ColorBalB, {65, 191},
            RangeIndex::ColorBalB, {Reset(Op::ExecColorBalBReset)}),
    InMemory(Coded(Id::Gamma, "Gamma", CommandCode::Gamma, {0, 255},
                   {Write(Op::SetGamma, ValueForm::Position)})),
    Balance(Id::CustomGamma, "Custom gamma", CommandCode::CustomGamma, {0, 255},
            RangeIndex::CustomGamma, {}),
    GammaPoint(1, "User gamma point 1"),
    GammaPoint(2, "User gamma point 2"),
    GammaPoint(3, "User gamma point 3"),
    GammaPoint(4, "User gamma point 4"),
    GammaPoint(5, "User gamma point 5"),
    GammaPoint(6, "User gamma point 6"),
    GammaPoint(7, "User gamma point 7"),
    GammaPoint(8, "User gamma point 8"),
    ForSets(PageSets::ButThird, ColorTemp()),
    ForSets(PageSets::Third, ColorTemp(CommandCode::Gamma)),
    Gain(Id::ColorTempGainR, "Gain R", 0, Op::GetColorTempGainR, Op::ExecColorTempGainRReset),
    Gain(Id::ColorTempGainG, "Gain G", 1, Op::GetColorTempGainG, Op::ExecColorTempGainGReset),
    Gain(Id::ColorTempGainB, "Gain B", 2, Op::GetColorTempGainB, Op::ExecColorTempGainBReset),
    Offset(Id::ColorTempOffsetR, "Offset R", 0, Op::GetColorTempOffsetR,
           Op::ExecColorTempOffsetRReset),
    Offset(Id::ColorTempOffsetG, "Offset G", 1, Op::GetColorTempOffsetG,
           Op::ExecColorTempOffsetGReset),
    Offset(Id::ColorTempOffsetB, "Offset B", 2, Op::GetColorTempOffsetB,
           Op::ExecColorTempOffsetBReset),
    InMemory(OneOf(Id::ActiveIris, "Active iris", CommandCode::ActiveIris, kIrisValues, {})),
    Coded(Id::TestPattern, "Test pattern", CommandCode::TestPattern, {0, 3}, {}),

    // Position and size.
    Coded(Id::Aspect, "Aspect", CommandCode::Aspect, {0, 255},
          {Write(Op::SetAspect, ValueForm::Position)}),
    Ranged(RangeIndex::OverScan, Coded(Id::OverScan, "Over scan", CommandCode::OverScan, {0, 255},
                                       {Reset(Op::ExecOverScanReset)}, 5)),
    Coded(Id::PositionV, "V position", CommandCode::PositionV, {0, 255},
          {Reset(Op::ExecVPosReset), Reset(Op::ExecAutoAdjust)}, 40),
    Coded(Id::PositionH, "H position", CommandCode::PositionH, {0, 999},
          {Reset(Op::ExecHPosReset), Reset(Op::ExecAutoAdjust)}, 220),
    Ranged(RangeIndex::HPhase, Coded(Id::PhaseH, "H phase", CommandCode::HPhase, {0, 248},
                                     {Reset(Op::ExecAutoAdjust)}, 16)),
    Coded(Id::SizeH, "H size", CommandCode::HSize, {0, 4095},
          {Reset(Op::ExecHSizeReset), Reset(Op::ExecAutoAdjust)}, 1344),

    // Signals of the inputs.
    Coded(Id::Progressive, "Progressive", CommandCode::Progressive, {0, 2},
          {Read(Op::GetProgressive), Write(Op::SetProgressive)}),
    ForSets(PageSets::ButThird,
            Coded(Id::VideoNoiseReduction, "Video NR", CommandCode::VideoNr, {1, 3},
                  {Read(Op::GetVideoNrVal), Write(Op::SetVideoNR, ValueForm::OneBased)}, 1)),
    ForSets(PageSets::Third, Coded(Id::VideoNoiseReduction, "Video NR", CommandCode::VideoNr,
                                   kSwitch, {Read(Op::GetVideoNrVal), Write(Op::SetVideoNR)})),
    Coded(Id::ThreeDYcs, "3D-YCS", CommandCode::Ycs3D, {0, 2},
          {Read(Op::Get3dycs), Write(Op::Set3DYCS)}),
    Coded(Id::ColorSpace, "Color space", CommandCode::ColorSpace, {0, 4},
          {Read(Op::GetColorSpace), Write(Op::SetColorSpace)}),
    Coded(Id::Component, "Component", CommandCode::Component, kSwitch,
          {Read(Op::GetComponent), Write(Op::SetComponent)}),
    OneOf(Id::VideoFormat, "Video format", CommandCode::VideoFormat, kVideoFormatValues,
          {Write(Op::SetVideoFormat, ValueForm::Position)}),
    OneOf(Id::CVideoFormat, "C-Video format", 0, kVideoFormatValues,
          {Read(Op::GetVideoFormat, 1), Write(Op::SetCVideoFormat, ValueForm::Position)}),
    OneOf(Id::SVideoFormat, "S-Video format", 0, kVideoFormatValues,
          {Read(Op::GetVideoFormat, 0), Write(Op::SetSVideoFormat, ValueForm::Position)}),
    Plain(Id::Hdmi, "HDMI", {0, 2}, {Read(Op::GetHDMI), Write(Op::SetHDMI)}),
    Plain(Id::M1D, "M1-D", kSwitch, {Read(Op::GetM1d), Write(Op::SetM1D)}),
    Coded(Id::FrameLock, "Frame lock", CommandCode::FrameLock, kSwitch,
          {Read(Op::GetFrameLock), Write(Op::SetFrameLock)}),
    Plain(Id::FrameLockComputer1, "Frame lock, computer 1", kSwitch,
          {Read(Op::GetFrameLockComp1), Write(Op::SetFrameLockComp1)}),
    Plain(Id::FrameLockComputer2, "Frame lock, computer 2", kSwitch,
          {Read(Op::GetFrameLockComp2), Write(Op::SetFrameLockComp2)}),
    Plain(Id::FrameLockHdmi, "Frame lock, HDMI", kSwitch,
          {Read(Op::GetFrameLockHDMI), Write(Op::SetFrameLockHDMI)}),
    Plain(Id::RgbIn1, "Computer in 1", {2, 3},
          {Read(Op::GetRgbIn, 1), Write(Op::SetRgbIn1, ValueForm::TwoBased)}, 2),
    Plain(Id::RgbIn2, "Computer in 2", {2, 3},
          {Read(Op::GetRgbIn, 2), Write(Op::SetRgbIn2, ValueForm::TwoBased)}, 2),
    Coded(Id::S2Aspect, "S2-aspect", CommandCode::S2Aspect, kSwitch, {Write(Op::SetS2Aspect)}),
    Coded(Id::Bnc, "BNC", CommandCode::Bnc, kSwitch, {Write(Op::SetBNC)}),
    Coded(Id::Hdtv, "HDTV", CommandCode::Hdtv, kSwitch, {Write(Op::SetHDTV)}),
    Coded(Id::SyncOnGreen, "Sync on G", CommandCode::SyncOnGreen, kSwitch, {Write(Op::SetSyncOnG)}),
    Coded(Id::Dvi, "DVI", CommandCode::Dvi, kSwitch, {Write(Op::SetDVI)}),
    Coded(Id::Black, "Black", CommandCode::Black, kSwitch, {Write(Op::SetBlack)}),
    // The third page set's models number the picture-in-picture codes in their own way.
    ForSets(PageSets::ButThird, Coded(Id::PinPSize, "P in P size", CommandCode::PinPSize, {0, 2},
                                      {Write(Op::SetPinPSize)})),
    ForSets(PageSets::Third, Coded(Id::PinPSize, "P in P size", CommandCode::ImagePinPSize, {0, 2},
                                   {Write(Op::SetPinPSize)})),
    Coded(Id::PinPPosition, "P in P position", CommandCode::PinPPosition, {0, 3},
          {Write(Op::SetPinPPosition)}),
    ForSets(PageSets::ButThird, Coded(Id::PinPInput, "P in P input", CommandCode::PinPInput, {1, 3},
                                      {Write(Op::SetPinPInput, ValueForm::OneBased)}, 1)),
    ForSets(PageSets::Third, Coded(Id::PinPInput, "P in P input", CommandCode::ImagePinPInput,
                                   {0, 2}, {Write(Op::SetPinPInput)})),
    ForSets(PageSets::ButThird, Coded(Id::PinPAudio, "P in P audio", CommandCode::PinPAudio,
                                      kSwitch, {Write(Op::SetPinPAudio)})),
    ForSets(PageSets::Third, Coded(Id::PinPAudio, "P in P audio", CommandCode::ImagePinPAudio,
                                   kSwitch, {Write(Op::SetPinPAudio)})),
    Coded(Id::PbyP, "P by P", CommandCode::PbyP, {0, 31}, {}),
    Coded(Id::PbyPSize, "P by P size", CommandCode::PbyPSize, {0, 31}, {}),
    Coded(Id::PbyPSubSource, "P by P sub source", CommandCode::PbyPSubSource, {0, 31}, {}),
    Coded(Id::PbyPMainArea, "P by P main area", CommandCode::PbyPMainArea, {0, 31}, {}),
    Coded(Id::PbyPStartArea, "P by P start area", CommandCode::PbyPStartArea, {0, 31}, {}),
    Coded(Id::PbyPMainSource, "P by P main source", CommandCode::PbyPMainSource, {0, 31}, {}),
    Coded(Id::PowerUpInput, "Power up input", CommandCode::PowerUpInput, {0, 16}, {},
          16),  // 16 is the last input

    // Installation.
    Plain(Id::AutoKeystone, "Auto keystone", kSwitch,
          {Read(Op::GetAutoKeystone), Write(Op::SetAutoKeystone)}),
    Coded(Id::Keystone, "Keystone", CommandCode::Keystone, {0, 255},
          {Reset(Op::ExecKeyStoneReset), Reset(Op::ExecAutoKeyStone)}, CommandCode::kZeroPoint),
    {.id = Id::KeystoneV,
     .name = "Keystone V",
     .standard = CommandCode::kZeroPoint,
     .rangeText = RangeIndex::KeystoneV,
     .operations = {Read(Op::GetKeystoneV), Write(Op::SetKeystoneV), Up(Op::IncrementKeystoneV),
                    Down(Op::DecrementKeystoneV), Reset(Op::ExecKeyStoneVReset),
                    Reset(Op::ExecAutoKeyStone)}},
    {.id = Id::KeystoneH,
     .name = "Keystone H",
     .standard = CommandCode::kZeroPoint,
     .rangeText = RangeIndex::KeystoneH,
     .operations = {Read(Op::GetKeystoneH), Write(Op::SetKeystoneH), Up(Op::IncrementKeystoneH),
                    Down(Op::DecrementKeystoneH), Reset(Op::ExecKeyStoneHReset),
                    Reset(Op::ExecAutoKeyStone)}},
    Ranged(RangeIndex::ElectricZoom,
           Coded(Id::DigitalZoom, "Digital zoom", CommandCode::DigitalZoom, {80, 100},
                 {Reset(Op::ExecDZoomReset), Reset(Op::ExecElectricZoomReset)}, 100)),
    Coded(Id::DigitalShiftV, "Digital shift V", CommandCode::DigitalShiftV, {96, 160},
          {Reset(Op::ExecDShiftVReset)}, CommandCode::kZeroPoint),
    Coded(Id::DigitalShiftH, "Digital shift H", CommandCode::DigitalShiftH, {96, 160},
          {Reset(Op::ExecDShiftHReset)}, CommandCode::kZeroPoint),
    ForSets(PageSets::ButThird,
            Plain(Id::Mirror, "Mirror", {0, 3}, {Read(Op::GetMirror), Write(Op::SetMirror)})),
    ForSets(PageSets::Third, Coded(Id::Mirror, "Mirror", CommandCode::ImageMirror, {0, 3},
                                   {Read(Op::GetMirror), Write(Op::SetMirror)})),
    Coded(Id::Whisper, "Whisper", CommandCode::Whisper, {0, 31},
          {Read(Op::GetWhisper), Write(Op::SetWhisper)}),
    Coded(Id::LensLock, "Lens lock", CommandCode::LensLock, kSwitch, {Write(Op::SetLensLock)}),
    Coded(Id::LensType, "Lens type", CommandCode::LensType, {0, 2}, {Write(Op::SetLensType)}),
    Coded(Id::ScreenType, "Screen type", CommandCode::ScreenType, {0, 2},
          {Write(Op::SetScreenType)}),
    Coded(Id::PicturePosition, "Picture position", CommandCode::PicturePosition, {0, 2},
          {Write(Op::SetPicturePosition)}),

    // Sound.
    {.id = Id::Volume,
     .name = "Volume",
     .code = CommandCode::Volume,
     .range = {0, 48},
     .standard = 16,
     .perSource = true,
     .rangeText = RangeIndex::Volume,
     .operations = {Read(Op::GetInputSrcVolume), Write(Op::SetVolumeEachSrc),
                    Up(Op::IncrementInputSrcVol), Down(Op::DecrementInputSrcVol)}},
    {.id = Id::Treble,
     .name = "Treble",
     .range = {124, 132},
     .standard = CommandCode::kZeroPoint,
     .perSource = true,
     .rangeText = RangeIndex::Treble,
     .operations = {Read(Op::GetInputSrcTreble), Write(Op::SetInputSrcTreble),
                    Up(Op::IncrementInputSrcTreb), Down(Op::DecrementInputSrcTreb)}},
    {.id = Id::Bass,
     .name = "Bass",
     .range = {124, 132},
     .standard = CommandCode::kZeroPoint,
     .perSource = true,
     .rangeText = RangeIndex::Bass,
     .operations = {Read(Op::GetInputSrcBass), Write(Op::SetInputSrcBass),
                    Up(Op::IncrementInputSrcBass), Down(Op::DecrementInputSrcBass)}},
    {.id = Id::SrsWow,
     .name = "SRS WOW",
     .values = kSrsWowValues,
     .perSource = true,
     .operations = {Read(Op::GetSRSWOW), Write(Op::SetSRSWOW)}},
    Plain(Id::Speaker, "Speaker", kSwitch, {Read(Op::GetSpeaker), Write(Op::SetSpeaker)}, 1),
    Coded(Id::Stereo, "Stereo", CommandCode::Stereo, kSwitch, {Write(Op::SetStereo)}),
    Coded(Id::AudioRgb1, "Audio, computer 1", CommandCode::AudioRgb1, {0, 4},
          {Read(Op::GetAudioRGB1), Write(Op::SetAudioRGB1), Write(Op::SetAudioComputer1)}, 1),
    Coded(Id::AudioRgb2, "Audio, computer 2", CommandCode::AudioRgb2, {0, 4},
          {Read(Op::GetAudioRGB2), Write(Op::SetAudioRGB2), Write(Op::SetAudioComputer2)}, 1),
    OneOf(Id::AudioM1D, "Audio, M1-D and HDMI", 0, kDigitalAudioValues,
          {Read(Op::GetAudioM1D), Write(Op::SetAudioM1D)}),
    Coded(Id::AudioVideo, "Audio, video", CommandCode::AudioVideo, {0, 4},
          {Read(Op::GetAudioVideo), Write(Op::SetAudioVideo)}, 2),
    Coded(Id::AudioSVideo, "Audio, S-video", CommandCode::AudioSVideo, {0, 4},
          {Read(Op::GetAudioSVideo), Write(Op::SetAudioSVideo)}, 2),
    Coded(Id::AudioComponent, "Audio, component", CommandCode::AudioComponent, {0, 4},
          {Read(Op::GetAudioComponent), Write(Op::SetAudioComponent)}, 2),
    OneOf(Id::AudioMiu, "Audio, MIU", 0, kMiuAudioValues,
          {Read(Op::GetAudioMIU), Write(Op::SetAudioMIU)}),
    Plain(Id::AudioOutStandby, "Audio out in standby", {0, 4},
          {Read(Op::GetAudioOutStandby), Write(Op::SetAudioOutStandby)}),
    Plain(Id::HdmiAudio, "HDMI audio", {1, 2}, {Read(Op::GetHDMIAudio), Write(Op::SetHDMIAudio)},
          1),
    OneOf(Id::MonitorOutComputer1, "Monitor out, computer 1", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutComputer1), Write(Op::SetMonitorOutComputer1)}),
    OneOf(Id::MonitorOutComputer2, "Monitor out, computer 2", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutComputer2), Write(Op::SetMonitorOutComputer2)}),
    OneOf(Id::MonitorOutHdmi, "Monitor out, HDMI", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutHDMI), Write(Op::SetMonitorOutHDMI)}),
    OneOf(Id::MonitorOutComponent, "Monitor out, component", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutComponent), Write(Op::SetMonitorOutComponent)}),
    OneOf(Id::MonitorOutSVideo, "Monitor out, S-video", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutSVideo), Write(Op::SetMonitorOutSVideo)}),
    OneOf(Id::MonitorOutVideo, "Monitor out, video", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutVideo), Write(Op::SetMonitorOutVideo)}),
    OneOf(Id::MonitorOutMiu, "Monitor out, MIU", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutMIU), Write(Op::SetMonitorOutMIU)}),
    OneOf(Id::MonitorOutStandby, "Monitor out in standby", 0, kMonitorOutValues,
          {Read(Op::GetMonitorOutStandby), Write(Op::SetMonitorOutStandby)}),
    Plain(Id::StandbyMode, "Standby mode", kSwitch,
          {Read(Op::GetStandbyMode), Write(Op::SetStandbyMode)}),

    // Screen and menu.
    Coded(Id::BlankColor, "Blank color", CommandCode::BlankColor, {0, 255},
          {Write(Op::SetBlankColor)}, 3),
    ForSets(PageSets::ButThird, OneOf(Id::StartUp, "Start-up", CommandCode::Startup, kStartUpValues,
                                      {Write(Op::SetStartup, ValueForm::Position)})),
    ForSets(PageSets::Third, Coded(Id::StartUp, "Start-up", CommandCode::ImageStartup, {0, 255},
                                   {Write(Op::SetStartup)})),
    Coded(Id::MyScreenSize, "MyScreen size", CommandCode::MyScreenSize, {0, 3},
          {Write(Op::SetMyScreenSize)}),
    Coded(Id::MyScreenLock, "MyScreen lock", CommandCode::MyScreenLock, kSwitch,
          {Write(Op::SetMyScreenLock)}),
    Coded(Id::MenuPositionV, "Menu position V", CommandCode::MenuPositionV, {0, 255},
          {Reset(Op::ExecMenuPositionVReset)}, 60),
    Coded(Id::MenuPositionH, "Menu position H", CommandCode::MenuPositionH, {0, 255},
          {Reset(Op::ExecMenuPositionHReset)}, 80),
    Coded(Id::MenuColor, "Menu color", CommandCode::MenuColor, {0, 3}, {Write(Op::SetMenuColor)}),
    Coded(Id::Message, "Message", CommandCode::Message, kSwitch, {Write(Op::SetMessage)}, 1),
    Ranged(RangeIndex::OsdBrightness, Coded(Id::OsdBrightness, "OSD brightness",
                                            CommandCode::OsdBrightness, {0, 255}, {}, 15)),
    Coded(Id::Template, "Template", CommandCode::Template, {0, 31}, {}),
    Coded(Id::Language, "Language", CommandCode::Language, {0, 16}, {Write(Op::SetLanguage)}),
    Plain(Id::ClosedCaptionDisplay, "C.C. display", {0, 2},
          {Read(Op::GetCCDisplay), Write(Op::SetCCDisplay)}),
    Plain(Id::ClosedCaptionMode, "C.C. mode", kSwitch, {Read(Op::GetCCMode), Write(Op::SetCCMode)}),
    Plain(Id::ClosedCaptionChannel, "C.C. channel", {1, 4},
          {Read(Op::GetCCChannel), Write(Op::SetCCChannel)}, 1),

    // Options and service.
    Coded(Id::AutoSearch, "Auto search", CommandCode::AutoSearch, kSwitch,
          {Read(Op::GetAutoSearch), Write(Op::SetAutoSearch)}),
    Coded(Id::AutoPowerOn, "Auto power on", CommandCode::AutoPowerOn, kSwitch,
          {Read(Op::GetAutoOn), Write(Op::SetAutoPowerOn)}),
    {.id = Id::AutoPowerOff,
     .name = "Auto power off",
     .code = CommandCode::AutoPowerOff,
     .range = {0, 99},
     .rangeText = RangeIndex::AutoOff,
     .operations = {Read(Op::GetAutoOff), Write(Op::SetAutoPowerOff), Up(Op::IncrementAutoPowerOff),
                    Down(Op::DecrementAutoPowerOff)}},
    Plain(Id::AutoAdjustEnable, "Auto adjust enable", {0, 2},
          {Read(Op::GetAutoAdjustEnable), Write(Op::SetAutoAdjustEnable)}, 1),
    Plain(Id::MyButton1, "My button 1", {0, 255},
          {Read(Op::GetMyButton1), Write(Op::SetMyButton1)}),
    Plain(Id::MyButton2, "My button 2", {0, 255},
          {Read(Op::GetMyButton2), Write(Op::SetMyButton2)}),
    Coded(Id::MySource, "My source", CommandCode::MySource, kWord, {}),
    Coded(Id::OneTouch, "One touch", CommandCode::OneTouch, kSwitch, {Write(Op::SetOneTouch)}),
    Coded(Id::IpRemoteId, "IP remote ID", CommandCode::IpRemoteId, {0, 4},
          {Write(Op::SetIPRemoteID)}),
    Coded(Id::IrFront, "IR front", CommandCode::IrFront, kSwitch,
          {Read(Op::GetIRRemoteFront), Write(Op::SetIRFront)}, 1),
    Coded(Id::IrRear, "IR rear", CommandCode::IrRear, kSwitch,
          {Read(Op::GetIRRemoteRear), Write(Op::SetIRRear)}, 1),
    Coded(Id::IrTop, "IR top", CommandCode::IrTop, kSwitch,
          {Read(Op::GetIRRemoteTop), Write(Op::SetIRTop)}, 1),
    Plain(Id::IrFrequencyNormal, "IR frequency normal", kSwitch,
          {Read(Op::GetIRREmoteFreqNormal), Write(Op::SetIRRemoteFreqNormal)}, 1),
    Plain(Id::IrFrequencyHigh, "IR frequency high", kSwitch,
          {Read(Op::GetIRRemoteFreqHigh), Write(Op::SetIRRemoteFreqHigh)}, 1),
    Plain(Id::FocusLock, "Focus lock", kSwitch, {Read(Op::GetFocusLock), Write(Op::SetFocusLock)}),
};

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

std::span<const Setting> SettingsTable() { return kSettings; }

std::span<const std::uint16_t> PlainCodes() { return kPlainCodes; }
