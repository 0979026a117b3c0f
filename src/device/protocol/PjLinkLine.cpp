#include "device/protocol/PjLinkLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include <QCryptographicHash>

namespace AdvancedControl {

namespace PjLink {
namespace {

constexpr std::string_view kGreeting = "PJLINK ";
constexpr std::size_t kSeedLength = 8;
constexpr std::size_t kHeadLength = 7;  // %1POWR=
constexpr std::size_t kMostHourDigits = 9;

/// The error status for each digit of the reply.
constexpr std::array kErrorOfDigit{2, 3, 4, 1, 8, 9};

// Independent of the locale.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr bool IsWordCharacter(char c) { return IsDigit(c) || IsUpper(Upper(c)); }
constexpr bool IsHexadecimal(char c) { return IsDigit(c) || (Upper(c) >= 'A' && Upper(c) <= 'F'); }

struct Muted {
  bool picture;
  bool sound;
};

std::optional<Muted> MutedParts(std::string_view parameter) {
  if (parameter == "11") return Muted{true, false};
  if (parameter == "21") return Muted{false, true};
  if (parameter == "31") return Muted{true, true};
  if (parameter == "30") return Muted{false, false};
  return std::nullopt;
}

}  // namespace

std::string Format(const Line& line) {
  return std::string{'%', line.protocolClass} + line.command + line.separator + line.parameter;
}

std::optional<Line> Parse(std::string_view text) {
  if (text.size() < kHeadLength || text[0] != '%' || !IsDigit(text[1])) return std::nullopt;
  const std::string_view command = text.substr(2, 4);
  const char separator = text[6];
  if (!std::ranges::all_of(command, IsWordCharacter)) return std::nullopt;
  if (separator != ' ' && separator != '=') return std::nullopt;
  return Line{text[1], std::string(command), separator, std::string(text.substr(kHeadLength))};
}

bool IsNotice(std::string_view datagram) {
  const auto line = Parse(datagram.substr(0, datagram.find_first_of("\r\n")));
  if (!line || line->protocolClass != '2' || line->separator != '=') return false;
  constexpr std::string_view kNotices[]{"LKUP", "ERST", "POWR", "INPT"};
  return std::ranges::any_of(kNotices,
                             [&](std::string_view name) { return SameWord(line->command, name); });
}

bool SameWord(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Upper, Upper);
}

bool IsError(std::string_view parameter) {
  return parameter.size() == 4 && SameWord(parameter.substr(0, 3), "ERR");
}

std::string FormatGreeting(std::string_view seed) {
  return std::string(kGreeting) + (seed.empty() ? "0" : "1 ") + std::string(seed);
}

std::optional<std::string> ParseGreeting(std::string_view text) {
  if (!SameWord(text.substr(0, kGreeting.size()), kGreeting)) return std::nullopt;
  text.remove_prefix(kGreeting.size());
  if (text == "0") return std::string();
  if (!text.starts_with("1 ")) return std::nullopt;
  const std::string_view seed = text.substr(2);
  if (seed.size() != kSeedLength || !std::ranges::all_of(seed, IsHexadecimal)) return std::nullopt;
  return std::string(seed);
}

std::string Digest(std::string_view seed, std::string_view password) {
  QCryptographicHash hash(QCryptographicHash::Md5);
  hash.addData(QByteArrayView(seed));
  hash.addData(QByteArrayView(password));
  return hash.result().toHex().toStdString();
}

char ProtocolClass(std::string_view parameter) {
  return parameter.size() == 1 && parameter[0] >= '2' && parameter[0] <= '9' ? '2' : '1';
}

std::optional<PowerState> Power(std::string_view parameter) {
  constexpr std::array kStates{PowerState::Standby, PowerState::On, PowerState::CoolingDown,
                               PowerState::WarmingUp};
  const bool isState = parameter.size() == 1 && parameter[0] >= '0' && parameter[0] <= '3';
  return isState ? std::optional(kStates.at(static_cast<std::size_t>(parameter[0] - '0')))
                 : std::nullopt;
}

std::optional<int> PowerStatus(std::string_view parameter) {
  constexpr int kOn = 1;
  const auto power = Power(parameter);
  if (!power) return std::nullopt;
  return power == PowerState::WarmingUp ? kOn : static_cast<int>(*power);
}

std::optional<int> ErrorStatus(std::string_view parameter) {
  const auto grades = ErrorGrades(parameter);
  if (!grades) return std::nullopt;
  for (const Grade grade : {Grade::Error, Grade::Warning}) {
    const auto found = std::ranges::find(*grades, grade);
    if (found != grades->end()) {
      return kErrorOfDigit.at(static_cast<std::size_t>(found - grades->begin()));
    }
  }
  return 0;
}

std::optional<Grades> ErrorGrades(std::string_view parameter) {
  Grades grades{};
  if (parameter.size() != grades.size()) return std::nullopt;
  if (parameter.find_first_not_of("012") != std::string_view::npos) return std::nullopt;
  std::ranges::transform(parameter, grades.begin(),
                         [](char digit) { return static_cast<Grade>(digit - '0'); });
  return grades;
}

std::optional<int> Blank(std::string_view parameter) {
  const auto muted = MutedParts(parameter);
  return muted ? std::optional<int>(muted->picture) : std::nullopt;
}

std::optional<int> Mute(std::string_view parameter) {
  const auto muted = MutedParts(parameter);
  return muted ? std::optional<int>(muted->sound) : std::nullopt;
}

std::optional<int> Switch(std::string_view parameter) {
  if (parameter == "0") return 0;
  if (parameter == "1") return 1;
  return std::nullopt;
}

std::optional<int> Hours(std::string_view parameter) {
  if (parameter.empty() || parameter.size() > kMostHourDigits) return std::nullopt;
  if (!std::ranges::all_of(parameter, IsDigit)) return std::nullopt;
  int hours = 0;
  std::from_chars(parameter.data(), parameter.data() + parameter.size(), hours);
  return std::min(hours, int{UINT16_MAX});
}

std::optional<int> LampHours(std::string_view parameter) {
  return Hours(parameter.substr(0, parameter.find(' ')));
}

std::vector<Lamp> Lamps(std::string_view parameter) {
  constexpr std::size_t kMostLamps = 8;
  const auto takeWord = [&parameter] {
    const std::string_view word = parameter.substr(0, parameter.find(' '));
    parameter.remove_prefix(std::min(parameter.size(), word.size() + 1));
    return word;
  };
  std::vector<Lamp> lamps;
  while (!parameter.empty() && lamps.size() < kMostLamps) {
    const auto hours = Hours(takeWord());
    if (!hours) return {};
    const auto isOn = Switch(takeWord());
    lamps.push_back({*hours, isOn ? std::optional(*isOn == 1) : std::nullopt});
  }
  return lamps;
}

std::optional<int> InputNumber(std::string_view code) {
  if (code.size() != 2 || code[0] < '1' || code[0] > '6') return std::nullopt;
  const int kind = code[0] - '0';
  if (code[1] >= '1' && code[1] <= '9') return 10 * kind + (code[1] - '0');
  if (IsUpper(code[1])) return 100 * kind + 10 + (code[1] - 'A');
  return std::nullopt;
}

std::optional<std::string> InputCode(int number) {
  const std::string code = number < 100 ? std::to_string(number)
                                        : std::to_string(number / 100) +
                                              static_cast<char>('A' + (number % 100 - 10) % 26);
  return InputNumber(code) == number ? std::optional(code) : std::nullopt;
}

std::vector<std::string> InputCodes(std::string_view list) {
  std::vector<std::string> codes;
  while (!list.empty()) {
    const std::string_view code = list.substr(0, list.find(' '));
    if (InputNumber(code)) codes.emplace_back(code);
    list.remove_prefix(std::min(list.size(), code.size() + 1));
  }
  return codes;
}

std::string ErrorDigits(int errorStatus) {
  std::string digits(kErrorOfDigit.size(), '0');
  if (errorStatus == 0) return digits;
  const auto* const found = std::ranges::find(kErrorOfDigit, errorStatus);
  const auto other = std::ssize(kErrorOfDigit) - 1;
  digits[static_cast<std::size_t>(std::min(found - kErrorOfDigit.begin(), other))] = '2';
  return digits;
}

}  // namespace PjLink

}  // namespace AdvancedControl
