#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <QJsonObject>
#include <QString>

/// How the program ends. Of several the highest counts.
namespace ExitCode {
inline constexpr int Done = 0;
inline constexpr int Refused = 1;  ///< Something was refused, or could not be read or written.
inline constexpr int WrongUse = 2;
inline constexpr int NoAnswer = 3;
inline constexpr int Signalled = 128;  ///< + the signal's number: cut off before the end.
}  // namespace ExitCode

/// What a command came to on one projector.
struct Report {
  std::string text;                     ///< For standard output.
  QJsonObject json;                     ///< The same for scripts.
  std::vector<std::string> complaints;  ///< For standard error, each one line.
  int code = ExitCode::Done;

  void Complain(std::string complaint, int exitCode) {
    complaints.push_back(std::move(complaint));
    code = std::max(code, exitCode);
  }
};

inline QString Wide(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
