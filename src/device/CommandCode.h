#pragma once

#include <cstdint>

/// Codes of the generic operations `Get`, `Set`, `Inc` and `Dec`.
namespace CommandCode {

inline constexpr std::uint16_t LampTime = 0x1090;    ///< Hours.
inline constexpr std::uint16_t FilterTime = 0x10A0;  ///< Hours.
inline constexpr std::uint16_t InputSource = 0x2000;
inline constexpr std::uint16_t Volume = 0x2001;
inline constexpr std::uint16_t Mute = 0x2002;
inline constexpr std::uint16_t Brightness = 0x2003;  ///< 128 is zero.
inline constexpr std::uint16_t Contrast = 0x2004;    ///< 128 is zero.
inline constexpr std::uint16_t Sharpness = 0x2201;   ///< 124 is zero on the newer models.
inline constexpr std::uint16_t Color = 0x2202;       ///< 128 is zero.
inline constexpr std::uint16_t Tint = 0x2203;        ///< 128 is zero.
inline constexpr std::uint16_t Freeze = 0x3002;
inline constexpr std::uint16_t DigitalZoom = 0x300A;
inline constexpr std::uint16_t DigitalShiftV = 0x300B;  ///< 128 is zero.
inline constexpr std::uint16_t DigitalShiftH = 0x300C;  ///< 128 is zero.
inline constexpr std::uint16_t BlankState = 0x3020;
inline constexpr std::uint16_t TestPattern = 0x3080;
inline constexpr std::uint16_t UserGammaPoint1 =
    0x3090;  ///< Points 1..8 follow each other; 128 is zero.
inline constexpr std::uint16_t Gamma = 0x30A1;
inline constexpr std::uint16_t ColorTemp = 0x30B0;
inline constexpr std::uint16_t ColorTempGainR =
    0x30B1;  ///< R, G, B follow each other; 128 is zero.
inline constexpr std::uint16_t ColorTempOffsetR =
    0x30B5;  ///< R, G, B follow each other; 128 is zero.
inline constexpr std::uint16_t ActiveIris = 0x3304;
inline constexpr std::uint16_t MySource = 0x3620;
inline constexpr std::uint16_t RunningState = 0x6000;  ///< 0 standby, 1 on, 2 cooling down.
inline constexpr std::uint16_t ErrorStatus = 0x6020;

}  // namespace CommandCode
