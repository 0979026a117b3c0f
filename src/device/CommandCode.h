#pragma once

#include <cstdint>

#include "Namespace.h"

namespace AdvancedControl {

/// Codes of the generic operations `Get`, `Set`, `Inc` and `Dec`.
namespace CommandCode {

/// Device value of zero, for settings with the zero point in the middle of their range.
inline constexpr int kZeroPoint = 128;

// State.
inline constexpr std::uint16_t LampTime = 0x1090;    ///< Hours.
inline constexpr std::uint16_t FilterTime = 0x10A0;  ///< Hours.
inline constexpr std::uint16_t InputSource = 0x2000;
inline constexpr std::uint16_t Mute = 0x2002;
inline constexpr std::uint16_t Freeze = 0x3002;
inline constexpr std::uint16_t BlankState = 0x3020;
inline constexpr std::uint16_t RunningState = 0x6000;  ///< 0 standby, 1 on, 2 cooling down.
inline constexpr std::uint16_t ErrorStatus = 0x6020;

// Picture. `kZeroPoint` is zero unless stated otherwise.
inline constexpr std::uint16_t Brightness = 0x2003;
inline constexpr std::uint16_t Contrast = 0x2004;
inline constexpr std::uint16_t ColorBalR = 0x2005;
inline constexpr std::uint16_t ColorBalB = 0x2006;
inline constexpr std::uint16_t ColorBalG = 0x2012;
inline constexpr std::uint16_t Sharpness = 0x2201;  ///< 124 is zero on the newer models.
inline constexpr std::uint16_t Color = 0x2202;
inline constexpr std::uint16_t Tint = 0x2203;
inline constexpr std::uint16_t CustomGamma = 0x30A0;
inline constexpr std::uint16_t Gamma = 0x30A1;             ///< A value of the model's list.
inline constexpr std::uint16_t UserGammaPoint1 = 0x3090;   ///< Points 1..8 have consecutive codes.
inline constexpr std::uint16_t ColorTemp = 0x30B0;         ///< A value of the model's list.
inline constexpr std::uint16_t ColorTempGainR = 0x30B1;    ///< R, G and B have consecutive codes.
inline constexpr std::uint16_t ColorTempOffsetR = 0x30B5;  ///< R, G and B have consecutive codes.
inline constexpr std::uint16_t TestPattern = 0x3080;
inline constexpr std::uint16_t ActiveIris = 0x3304;

// Position and size, without a zero point.
inline constexpr std::uint16_t Aspect = 0x2008;  ///< A value of the model's list.
inline constexpr std::uint16_t OverScan = 0x2209;
inline constexpr std::uint16_t PositionV = 0x2100;
inline constexpr std::uint16_t PositionH = 0x2101;
inline constexpr std::uint16_t HSize = 0x2102;
inline constexpr std::uint16_t HPhase = 0x2103;

// Signals of the inputs.
inline constexpr std::uint16_t Bnc = 0x2011;
inline constexpr std::uint16_t Component = 0x2017;
inline constexpr std::uint16_t PowerUpInput = 0x2018;  ///< A source; 16 is the last input.
inline constexpr std::uint16_t Dvi = 0x2020;
inline constexpr std::uint16_t VideoFormat = 0x2200;
inline constexpr std::uint16_t ColorSpace = 0x2204;
inline constexpr std::uint16_t Hdtv = 0x2205;
inline constexpr std::uint16_t VideoNr = 0x2206;
inline constexpr std::uint16_t Progressive = 0x2207;
inline constexpr std::uint16_t Black = 0x2208;
inline constexpr std::uint16_t Ycs3D = 0x220A;
inline constexpr std::uint16_t S2Aspect = 0x220B;
inline constexpr std::uint16_t SyncOnGreen = 0x3008;
inline constexpr std::uint16_t FrameLock = 0x3014;

// Picture in picture, also with the codes of the third page set's image page.
inline constexpr std::uint16_t PinPSize = 0x2300;
inline constexpr std::uint16_t PinPPosition = 0x2301;
inline constexpr std::uint16_t PinPInput = 0x2302;
inline constexpr std::uint16_t PinPAudio = 0x2303;
inline constexpr std::uint16_t ImagePinPInput = 0x2300;
inline constexpr std::uint16_t ImagePinPAudio = 0x2302;
inline constexpr std::uint16_t ImagePinPSize = 0x2303;
inline constexpr std::uint16_t PbyP = 0x2310;
inline constexpr std::uint16_t PbyPSize = 0x2311;
inline constexpr std::uint16_t PbyPSubSource = 0x2312;
inline constexpr std::uint16_t PbyPMainArea = 0x2313;
inline constexpr std::uint16_t PbyPStartArea = 0x2314;
inline constexpr std::uint16_t PbyPMainSource = 0x2315;

// Installation.
inline constexpr std::uint16_t Keystone = 0x2007;       ///< `kZeroPoint` is zero.
inline constexpr std::uint16_t DigitalZoom = 0x300A;    ///< Percent; also the electric zoom.
inline constexpr std::uint16_t DigitalShiftV = 0x300B;  ///< `kZeroPoint` is zero.
inline constexpr std::uint16_t DigitalShiftH = 0x300C;  ///< `kZeroPoint` is zero.
inline constexpr std::uint16_t ImageMirror = 0x3004;    ///< Third page set; others: `Startup`.
inline constexpr std::uint16_t Whisper = 0x3300;
inline constexpr std::uint16_t LensLock = 0x2400;
inline constexpr std::uint16_t LensType = 0x2401;
inline constexpr std::uint16_t ScreenType = 0x30BA;
inline constexpr std::uint16_t PicturePosition = 0x3500;

// Sound.
inline constexpr std::uint16_t Volume = 0x2001;
inline constexpr std::uint16_t AudioRgb1 = 0x2030;
inline constexpr std::uint16_t AudioRgb2 = 0x2031;
inline constexpr std::uint16_t AudioVideo = 0x2032;
inline constexpr std::uint16_t AudioSVideo = 0x2033;
inline constexpr std::uint16_t AudioComponent = 0x2034;
inline constexpr std::uint16_t Stereo = 0x2410;

// Screen and menu.
inline constexpr std::uint16_t BlankColor = 0x3000;
inline constexpr std::uint16_t ImageStartup = 0x3001;  ///< Third page set.
inline constexpr std::uint16_t Language = 0x3003;
inline constexpr std::uint16_t Startup = 0x3004;
inline constexpr std::uint16_t MenuColor = 0x3005;
inline constexpr std::uint16_t MyScreenSize = 0x3012;
inline constexpr std::uint16_t MenuPositionH = 0x3015;
inline constexpr std::uint16_t MenuPositionV = 0x3016;
inline constexpr std::uint16_t Message = 0x3017;
inline constexpr std::uint16_t OsdBrightness = 0x3018;
inline constexpr std::uint16_t Template = 0x3022;
inline constexpr std::uint16_t MyScreenLock = 0x30C0;

// Options.
inline constexpr std::uint16_t AutoSearch = 0x2016;
inline constexpr std::uint16_t AutoPowerOff = 0x3110;  ///< Minutes; 0 is off.
inline constexpr std::uint16_t AutoPowerOn = 0x3120;
inline constexpr std::uint16_t MySource = 0x3620;
inline constexpr std::uint16_t IpRemoteId = 0x2570;
inline constexpr std::uint16_t IrFront = 0x2600;
inline constexpr std::uint16_t IrRear = 0x2601;
inline constexpr std::uint16_t IrTop = 0x2602;
inline constexpr std::uint16_t OneTouch = 0x2608;

}  // namespace CommandCode

}  // namespace AdvancedControl
