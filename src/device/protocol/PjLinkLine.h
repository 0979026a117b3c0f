#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// The lines of PJLink, the open standard for controlling projectors over TCP, and the conversion
/// of their parameters to device values. Lines are passed without their closing CR.
///
/// Text may be untrusted: the functions return nothing for invalid text. Any thread.
namespace PjLink {

inline constexpr int kPort = 4352;
inline constexpr std::size_t kLongestInputs =
    157;  ///< Bytes of the list of 50 inputs, with the CR.
inline constexpr std::string_view kWrongPassword = "PJLINK ERRA";

inline constexpr std::string_view kQuery = "?";
inline constexpr std::string_view kDone = "OK";
inline constexpr std::string_view kUndefined = "ERR1";
inline constexpr std::string_view kOutOfRange = "ERR2";
inline constexpr std::string_view kNotNow = "ERR3";
inline constexpr std::string_view kFailure = "ERR4";

/// A request or a reply.
struct Line {
  char protocolClass = '1';  ///< A digit.
  std::string command;       ///< Four letters or digits, in their original case.
  char separator = ' ';      ///< ' ' in a request, '=' in a reply.
  std::string parameter;
};

PROJECTOR_COMMON_EXPORT std::string Format(const Line& line);
PROJECTOR_COMMON_EXPORT std::optional<Line> Parse(std::string_view text);

/// Whether a datagram is a status notice of class 2, with or without its end of line.
PROJECTOR_COMMON_EXPORT bool IsNotice(std::string_view datagram);

/// Whether the words are equal, ignoring the case of ASCII letters.
PROJECTOR_COMMON_EXPORT bool SameWord(std::string_view a, std::string_view b);

/// Whether the parameter of a reply is an error, known here or not.
PROJECTOR_COMMON_EXPORT bool IsError(std::string_view parameter);

/// The line with which a projector opens a session. `seed` is empty for a session without a
/// password.
PROJECTOR_COMMON_EXPORT std::string FormatGreeting(std::string_view seed);
/// The seed of a greeting.
PROJECTOR_COMMON_EXPORT std::optional<std::string> ParseGreeting(std::string_view text);
/// The proof of the password: 32 characters, sent before a session's first request.
PROJECTOR_COMMON_EXPORT std::string Digest(std::string_view seed, std::string_view password);

// Parameters as device values.

/// '2' for class 2 and higher classes, which include class 2; '1' for any other text.
PROJECTOR_COMMON_EXPORT char ProtocolClass(std::string_view parameter);
PROJECTOR_COMMON_EXPORT std::optional<PowerState> Power(std::string_view parameter);
/// The running state, in which warming up is on.
PROJECTOR_COMMON_EXPORT std::optional<int> PowerStatus(std::string_view parameter);
PROJECTOR_COMMON_EXPORT std::optional<int> ErrorStatus(std::string_view parameter);

/// The parts of a projector that its error status tells of, in the order of its digits.
enum class Part : std::uint8_t { Fan, Lamp, Temperature, Cover, Filter, Other };
inline constexpr std::size_t kParts = 6;
enum class Grade : std::uint8_t { None, Warning, Error };
using Grades = std::array<Grade, kParts>;
/// The same status, of every part.
PROJECTOR_COMMON_EXPORT std::optional<Grades> ErrorGrades(std::string_view parameter);
PROJECTOR_COMMON_EXPORT std::optional<int> Blank(std::string_view parameter);
PROJECTOR_COMMON_EXPORT std::optional<int> Mute(std::string_view parameter);
PROJECTOR_COMMON_EXPORT std::optional<int> Switch(std::string_view parameter);
/// Hours, limited to 65,535, the largest device value.
PROJECTOR_COMMON_EXPORT std::optional<int> Hours(std::string_view parameter);
/// Hours of the first lamp. Whether the lamp is on may be missing in the text.
PROJECTOR_COMMON_EXPORT std::optional<int> LampHours(std::string_view parameter);

struct Lamp {
  int hours = 0;
  std::optional<bool> isOn{};

  friend bool operator==(const Lamp&, const Lamp&) = default;
};
/// All lamps, up to eight; none if the text is invalid.
PROJECTOR_COMMON_EXPORT std::vector<Lamp> Lamps(std::string_view parameter);
/// The number of an input: "31" is 31. Letters follow 9, so "3A" is 310 and "3Z" is 335.
PROJECTOR_COMMON_EXPORT std::optional<int> InputNumber(std::string_view code);

/// The code of an input: two characters.
PROJECTOR_COMMON_EXPORT std::optional<std::string> InputCode(int number);
/// The codes in a list of inputs. Invalid entries are skipped.
PROJECTOR_COMMON_EXPORT std::vector<std::string> InputCodes(std::string_view list);
/// The six digits for an error status.
PROJECTOR_COMMON_EXPORT std::string ErrorDigits(int errorStatus);

}  // namespace PjLink

}  // namespace AdvancedControl
