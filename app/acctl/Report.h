#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <QJsonObject>
#include <QString>

#include "app/acctl/Message.h"

/// How the program ends. If several apply, the highest is used.
namespace ExitCode {
inline constexpr int Done = 0;
inline constexpr int Refused = 1;  ///< Something was refused, or could not be read or written.
inline constexpr int WrongUse = 2;
inline constexpr int NoAnswer = 3;
inline constexpr int Signalled = 128;  ///< Plus the signal's number: interrupted before the end.
}  // namespace ExitCode

/// What a problem is, for programs. The list is part of the JSON schema.
namespace ProblemCode {
inline constexpr const char* WrongUse = "wrong-use";
inline constexpr const char* NoSuchProjector = "no-such-projector";
inline constexpr const char* NoSuchSetting = "no-such-setting";  ///< The model does not have it.
inline constexpr const char* NotPossible = "not-possible";  ///< Nobody can read, set or reset it.
inline constexpr const char* NotInProtocol = "not-in-protocol";
inline constexpr const char* NotOffered = "not-offered";  ///< This projector does not have it.
inline constexpr const char* OutOfRange = "out-of-range";
inline constexpr const char* NoAnswer = "no-answer";
inline constexpr const char* WrongPassword = "wrong-password";
inline constexpr const char* InputsUnknown = "inputs-unknown";
inline constexpr const char* Locked = "locked";  ///< Another run of the program uses it.
inline constexpr const char* Refused = "refused";
inline constexpr const char* Busy = "busy";
inline constexpr const char* Standby = "standby";
inline constexpr const char* WarmingUp = "warming-up";
inline constexpr const char* CoolingDown = "cooling-down";
inline constexpr const char* NotReadable = "not-readable";  ///< The projector cannot report it now.
inline constexpr const char* Pending = "pending";           ///< Accepted, and not yet in effect.
inline constexpr const char* Unconfirmed = "unconfirmed";
inline constexpr const char* Stopped = "stopped";
inline constexpr const char* WrongFile = "wrong-file";  ///< What is in a file of settings.
inline constexpr const char* File = "file";             ///< It cannot be read or written.
inline constexpr const char* Simulated = "simulated";
inline constexpr const char* Internal = "internal";
}  // namespace ProblemCode

/// Something that went wrong or was left out.
struct Problem {
  const char* code;     ///< One of `ProblemCode`.
  std::string text;     ///< One line for people.
  std::string key{};    ///< The setting; empty if it is not about one.
  std::string place{};  ///< What stands before the text instead of the key; empty for the key.
  int exitCode = ExitCode::Refused;  ///< `Done` for a note, which is no error.

  std::string Line() const {
    const std::string& subject = place.empty() ? key : place;
    return subject.empty() ? text : subject + ": " + text;
  }
};

/// The result of a command for one projector.
struct Report {
  std::string text;               ///< For people: lines without the projector's name.
  QJsonObject json;               ///< The same for programs.
  std::vector<Problem> problems;  ///< In the order in which they occurred.
  int code = ExitCode::Done;

  void Add(Problem problem) {
    code = std::max(code, problem.exitCode);
    problems.push_back(std::move(problem));
  }
};

inline std::string CountedProjectors(int count) {
  return Message(Acctl::tr("%n projectors", nullptr, count));
}
