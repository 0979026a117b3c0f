#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Namespace.h"
#include "device/PjtOperation.h"

namespace AdvancedControl {

/// Every setting and state of a projector, whichever operations read or change it.
enum class SettingId {
  Power,
  InputSource,
  ErrorStatus,
  Blank,
  Mute,
  Freeze,
  LampTime,
  FilterTime,

  Brightness,
  Contrast,
  Color,
  Tint,
  Sharpness,
  ColorBalanceR,
  ColorBalanceG,
  ColorBalanceB,
  Gamma,
  CustomGamma,
  GammaPoint1,
  GammaPoint2,
  GammaPoint3,
  GammaPoint4,
  GammaPoint5,
  GammaPoint6,
  GammaPoint7,
  GammaPoint8,
  ColorTemp,
  ColorTempGainR,
  ColorTempGainG,
  ColorTempGainB,
  ColorTempOffsetR,
  ColorTempOffsetG,
  ColorTempOffsetB,
  ActiveIris,
  TestPattern,

  Aspect,
  OverScan,
  PositionV,
  PositionH,
  PhaseH,
  SizeH,

  Progressive,
  VideoNoiseReduction,
  ThreeDYcs,
  ColorSpace,
  Component,
  VideoFormat,
  CVideoFormat,
  SVideoFormat,
  Hdmi,
  M1D,
  FrameLock,
  FrameLockComputer1,
  FrameLockComputer2,
  FrameLockHdmi,
  RgbIn1,
  RgbIn2,
  S2Aspect,
  Bnc,
  Hdtv,
  SyncOnGreen,
  Dvi,
  Black,
  PinPSize,
  PinPPosition,
  PinPInput,
  PinPAudio,
  PbyP,
  PbyPSize,
  PbyPSubSource,
  PbyPMainArea,
  PbyPStartArea,
  PbyPMainSource,
  PowerUpInput,

  AutoKeystone,
  Keystone,
  KeystoneV,
  KeystoneH,
  DigitalZoom,
  DigitalShiftV,
  DigitalShiftH,
  Mirror,
  Whisper,
  LensLock,
  LensType,
  ScreenType,
  PicturePosition,

  Volume,
  Treble,
  Bass,
  SrsWow,
  Speaker,
  Stereo,
  AudioRgb1,
  AudioRgb2,
  AudioM1D,
  AudioVideo,
  AudioSVideo,
  AudioComponent,
  AudioMiu,
  AudioOutStandby,
  HdmiAudio,
  MonitorOutComputer1,
  MonitorOutComputer2,
  MonitorOutHdmi,
  MonitorOutComponent,
  MonitorOutSVideo,
  MonitorOutVideo,
  MonitorOutMiu,
  MonitorOutStandby,
  StandbyMode,

  BlankColor,
  StartUp,
  MyScreenSize,
  MyScreenLock,
  MenuPositionV,
  MenuPositionH,
  MenuColor,
  Message,
  OsdBrightness,
  Template,
  Language,
  ClosedCaptionDisplay,
  ClosedCaptionMode,
  ClosedCaptionChannel,

  AutoSearch,
  AutoPowerOn,
  AutoPowerOff,
  AutoAdjustEnable,
  MyButton1,
  MyButton2,
  MySource,
  OneTouch,
  IpRemoteId,
  IrFront,
  IrRear,
  IrTop,
  IrFrequencyNormal,
  IrFrequencyHigh,
  FocusLock,

  Count
};

inline constexpr std::size_t kSettingCount = static_cast<std::size_t>(SettingId::Count);

/// What a named operation does to a setting.
enum class Verb { None, Read, Write, StepUp, StepDown, Reset, TurnTo };

/// How a named operation's value relates to the device value, which generic commands use.
enum class ValueForm {
  Device,    ///< Equal to the device value.
  OneBased,  ///< Written as device − 1.
  TwoBased,  ///< Written as device − 2.
  Position,  ///< Written as the position in the setting's list of values.
  Shown,     ///< Stepped to and returned as device − 128.
};

/// One named operation of a setting.
struct Binding {
  static constexpr int kAny = -1;

  PjtOperation operation{};
  Verb verb = Verb::None;
  ValueForm form = ValueForm::Device;
  int selector = kAny;  ///< The point, channel or input that `first` must contain.
  int turnTo = 0;       ///< Value that `TurnTo` sets.
};

/// The page sets whose models have a setting in this form, one bit each.
enum class PageSets : std::uint8_t {
  All = 0xFF,
  First = 1 << 1,
  FirstTwo = First | 1 << 2,
  Third = 1 << 3,
  ButFirst = All ^ First,
  ButFirstTwo = All ^ FirstTwo,
  ButThird = All ^ Third,
};

/// Whether `sets` contains a page set. A number that is no page set is treated like a page set that
/// `PageSets` does not name.
constexpr bool Knows(PageSets sets, int pageSet) {
  const bool isSet = pageSet > 0 && pageSet < 8;
  return (static_cast<unsigned>(sets) >> (isSet ? pageSet : 0) & 1U) != 0;
}

struct SettingRange {
  int minimum = 0;
  int maximum = 0;

  friend bool operator==(const SettingRange&, const SettingRange&) = default;
};

/// One row of the table: everything that the simulation knows about a setting. All values are
/// device values.
struct Setting {
  static constexpr std::size_t kOperations = 6;
  static constexpr std::size_t kNoRangeText = static_cast<std::size_t>(-1);

  SettingId id;
  std::string_view name;
  std::uint16_t code = 0;  ///< Command code of the generic operations, 0 if there is none.
  SettingRange range{0, 255};
  std::uint16_t alsoSetBy = 0;    ///< Code whose `Set` also accepts the values listed here.
  std::span<const int> values{};  ///< If not empty, the values allowed instead of the range.
  int standard = 0;               ///< Initial value.
  std::optional<int> reset{};     ///< Value after a reset, if it is not `standard`.
  bool perSource = false;         ///< Kept for each input source, and for standby as source 15.
  bool inMemory = false;          ///< Saved and loaded with the memories.
  bool reported = false;          ///< A state, which generic commands cannot change.
  PageSets sets = PageSets::All;
  std::size_t rangeText = kNoRangeText;  ///< `RangeIndex` of the model's own range.
  std::array<Binding, kOperations> operations{};
};

}  // namespace AdvancedControl
