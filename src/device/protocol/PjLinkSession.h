#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkConnection.h"
#include "device/protocol/PjLinkMapping.h"

namespace AdvancedControl {

/// Something asked of a projector that is no setting.
struct PjLinkQuestion {
  PjLinkClass protocolClass = PjLinkClass::First;
  std::string command{};
  std::string parameter = "?";
};

/// What became of a question.
struct PjLinkTold {
  enum class Kind {
    Text,
    None,    ///< The projector has no such thing; `text` is empty.
    NotNow,  ///< It does not tell it in its present state; likewise.
    Lost,    ///< No answer came; likewise.
  };

  Kind kind = Kind::Lost;
  std::string text{};  ///< UTF-8, without control characters.
};

/// A session with a PJLink projector: what a command or a question becomes on the line, what the
/// answers mean, when to ask again, and when to give up. Needs no socket and no clock, but a driver
/// that does each step of `Next` and tells `Connection()` what happens, until the work that was
/// begun is finished; the result is there then.
///
/// - The class is asked for with the first work that needs it. One that was remembered from before
///   is asked for again when the projector does not know a command of class 2.
/// - What the projector cannot do now (`ERR3`) is asked again at growing intervals, within the time
///   for an answer; then the command is refused as busy. A read is refused at once where the
///   projector is not on, and a change where it is in standby.
/// - After a change was accepted, its state is asked for at growing intervals until it is as
/// wanted.
///   Where it is not so within the time for an answer, the change is pending.
/// - What was just told is not asked for again within a second: the state that a change has led to,
///   the power state behind `ERR3`, and what one reply says of two settings. No setting is read
///   twice from one answer.
/// - A question is asked again once where its answer got lost.
///
/// Every step of this is one exchange, and every exchange has the whole time for an answer.
class PROJECTOR_COMMON_EXPORT PjLinkSession {
 public:
  PjLinkSession(const std::string& password, const PjLinkLimits& limits)
      : limits_(limits), connection_(password, limits) {}

  /// Requests have this time from now on, or that of the limits where it is less.
  void GiveUpAfter(PjLinkLimits::Time time) { longest_ = time; }

  void Begin(const PjtCommand& command, PjLinkTime now);
  void Begin(PjLinkQuestion question, PjLinkTime now);
  /// The next command that reads what the last one read is answered from that, within a second.
  void KeepLast() { keepsLast_ = true; }

  PjLinkStep Next(PjLinkTime now);
  PjLinkConnection& Connection() { return connection_; }

  const PjtReply& Reply() const { return reply_; }
  const PjLinkTold& Told() const { return told_; }
  ConnectionState State() const { return connection_.State(); }
  bool HasGreeted() const { return connection_.HasGreeted(); }

  /// The class once it is known, '1' or '2'.
  std::optional<char> ProtocolClass() const { return class_; }
  /// Takes a class for known that is remembered from an earlier session.
  void RememberClass(char protocolClass);
  /// The power state as it was told last.
  std::optional<PowerState> Power() const { return power_; }

 private:
  enum class Stage { Idle, Class, Command, Power, Confirm, Question, Pausing };

  using Reader = decltype(PjLinkMapping::value);

  /// The last answer to a command's question.
  struct Kept {
    std::string parameter;
    Reader reader;  ///< What has read it, or null.
    PjLinkTime time;
  };

  void Reset();
  void BeginWork(PjLinkClass needed, PjLinkTime now);
  void AskForWork(PjLinkTime now);
  void Ask(Stage stage, std::string_view command, std::string_view parameter, PjLinkTime now);
  void AskAfterPause(Stage stage, PjLinkTime now);
  void Resume(PjLinkTime now);
  void Take(const PjLinkAnswer& answer, PjLinkTime now);
  void TakeClass(const PjLinkAnswer& answer, PjLinkTime now);
  void TakeCommand(const PjLinkAnswer& answer, PjLinkTime now);
  void TakeValue(const std::string& parameter, PjLinkTime now);
  void TakeNotNow(PjLinkTime now);
  void TakePower(const PjLinkAnswer& answer, PjLinkTime now);
  void TakeConfirmation(const PjLinkAnswer& answer, PjLinkTime now);
  void TakeTold(const PjLinkAnswer& answer, PjLinkTime now);
  bool TakeKept(PjLinkTime now);
  void Keep(const std::string& parameter, Reader reader, PjLinkTime now);
  void KeepPower(const std::string& parameter, PjLinkTime now);
  bool CannotDoItNow() const;
  void Finish(const PjtReply& reply);
  PjtReply Refused() const { return {.result = RefusedResult(command_.operation)}; }
  PjLinkLimits::Time AnswerTime() const { return std::min(limits_.answer, longest_); }
  char ClassOf(PjLinkClass needed) const;

  const PjLinkLimits limits_;
  PjLinkLimits::Time longest_ = limits_.answer;
  PjLinkConnection connection_;
  std::optional<char> class_;
  bool isClassRemembered_ = false;  ///< And not told by the projector.
  std::optional<PowerState> power_;
  std::optional<PjLinkTime> powerAt_;  ///< When it was told; nothing since the last change.

  // The work.
  PjtCommand command_{PjtOperation::Get};
  const PjLinkMapping* mapping_ = nullptr;  ///< Null of a question.
  PjLinkQuestion question_;
  std::string parameter_;
  int lost_ = 0;          ///< Answers to the session's own questions.
  bool asked_ = false;    ///< For the power state, since the work began.
  bool strange_ = false;  ///< A value was told that nobody understands.
  bool keepsLast_ = false;

  Stage stage_ = Stage::Idle;
  Stage resumed_ = Stage::Idle;  ///< What the pause is before.
  PjLinkTime resumeAt_{};
  std::optional<PjLinkTime> askUntil_;  ///< As long it is asked again.
  PjLinkLimits::Time pause_{};
  std::map<std::string_view, Kept> kept_;  ///< By command; none from before the last change.
  PjtReply reply_;
  PjLinkTold told_;
};

}  // namespace AdvancedControl
