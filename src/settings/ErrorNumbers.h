#pragma once

#include "Namespace.h"

namespace AdvancedControl {

/// Numbers of the message catalog for errors and questions in message boxes, as in
/// `CatalogNumbers.h`.

inline constexpr int kErrorCategory = 2201;

namespace ErrorText {
// Picture, image and setup pages.
inline constexpr int BrightnessRefused = 58;
inline constexpr int ContrastRefused = 59;
inline constexpr int ColorRefused = 60;
inline constexpr int TintRefused = 15;
inline constexpr int SharpnessRefused = 17;
inline constexpr int ColorTempRefused = 61;
inline constexpr int ImageColorTempRefused = 343;
inline constexpr int ActiveIrisRefused = 78;
inline constexpr int CustomGammaRefused = 77;
inline constexpr int CustomUserRRefused = 74;
inline constexpr int CustomUserGRefused = 75;
inline constexpr int CustomUserBRefused = 76;
inline constexpr int ColorBalRRefused = 73;
inline constexpr int ColorBalGRefused = 81;
inline constexpr int ColorBalBRefused = 72;
inline constexpr int OverScanRefused = 53;
inline constexpr int PositionRefused = 54;
inline constexpr int HPhaseRefused = 55;
inline constexpr int HSizeRefused = 56;
inline constexpr int KeystoneRefused = 64;
inline constexpr int VolumeRefused = 65;
inline constexpr int ElectricZoomRefused = 79;
inline constexpr int DZoomRefused = 314;
inline constexpr int DShiftRefused = 315;

// Custom pop-ups.
inline constexpr int ColorTempGainRRefused = 38;
inline constexpr int ColorTempGainGRefused = 39;
inline constexpr int ColorTempGainBRefused = 40;
inline constexpr int ColorTempOffsetRRefused = 41;
inline constexpr int ColorTempOffsetGRefused = 42;
inline constexpr int ColorTempOffsetBRefused = 43;
inline constexpr int GammaPointRefusedBase = 44;  // + point − 1
inline constexpr int TestPatternRefused = 52;

// Input and option pages.
inline constexpr int PowerUpInputRefused = 57;
inline constexpr int MySourceRefused = 335;

// Screen pages.
inline constexpr int MenuPositionRefused = 62;
inline constexpr int OsdBrightRefused = 63;
inline constexpr int TemplateRefused = 336;
inline constexpr int PbyPRefused = 337;
inline constexpr int PbyPSizeRefused = 338;
inline constexpr int PbyPSubSourceRefused = 339;
inline constexpr int PbyPMainAreaRefused = 340;
inline constexpr int PbyPStartAreaRefused = 341;
inline constexpr int PbyPMainSourceRefused = 342;

// Other and automatic pages.
inline constexpr int InputSourceRefused = 4200;
inline constexpr int PowerRefused = 4201;
inline constexpr int AutoAdjustRefused = 4203;
inline constexpr int AutoOffRefused = 4204;

// Questions.
inline constexpr int StandbySavingQuestion = 1002;
inline constexpr int PowerOffQuestion = 4202;
inline constexpr int NamedPowerOffQuestion = 4205;  // %1 the projector's name
}  // namespace ErrorText

}  // namespace AdvancedControl
