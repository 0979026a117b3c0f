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

/// A question to a projector that is not for a setting.
struct PjLinkQuestion {
  PjLinkClass protocolClass = PjLinkClass::First;
  std::string command{};
  std::string parameter = "?";
};

/// The result of a question.
struct PjLinkResult {
  enum class Kind {
    Text,
    None,    ///< The projector does not support the question; `text` is empty.
    NotNow,  ///< The projector does not answer it in its present state; `text` is empty.
    Lost,    ///< No answer came; `text` is empty.
  };

  Kind kind = Kind::Lost;
  std::string text{};  ///< UTF-8, without control characters.
};

/// A session with a PJLink projector: translates commands and questions into requests, interprets
/// the answers, and decides when to ask again and when to give up. It has no socket and no clock: a
/// driver performs each step that `Next` returns and reports to `Connection()` what happens, until
/// the work is finished. Then the result is available. Use from one thread at a time.
///
/// - Asks for the class with the first work that needs it. A class from an earlier session is asked
/// for again if the projector does not know a command of class 2.
/// - If the projector cannot execute a command now (`ERR3`), the command is repeated at growing
/// intervals until the time for an answer is over, and then refused as busy. A read is refused at
/// once if the projector is not on, and a change if it is in standby.
/// - After a change is accepted, its state is requested at growing intervals until it is as wanted.
/// If that takes longer than the time for an answer, the change is pending.
/// - A value that was just reported is not requested again within a second: the state after a
/// change, the power state after `ERR3`, and a reply that contains two settings. No setting is read
/// twice from one answer.
/// - A question is repeated once if its answer got lost.
///
/// Each of these steps is one exchange, and each exchange has the full time for an answer.
class PROJECTOR_COMMON_EXPORT PjLinkSession {
 public:
  PjLinkSession(const std::string& password, const PjLinkLimits& limits)
      : limits_(limits), connection_(password, limits) {}

  /// Sets the time-out of further requests. The time-out of the limits still applies if it is
  /// shorter.
  void GiveUpAfter(PjLinkLimits::Time time) { longest_ = time; }

  void Begin(const PjtCommand& command, PjLinkTime now);
  void Begin(PjLinkQuestion question, PjLinkTime now);
  /// Keeps the value that the last command read. If the next command reads the same within a
  /// second, this value is used.
  void KeepLast() { keepsLast_ = true; }

  PjLinkStep Next(PjLinkTime now);
  PjLinkConnection& Connection() { return connection_; }

  const PjtReply& Reply() const { return reply_; }
  const PjLinkResult& Result() const { return result_; }
  ConnectionState State() const { return connection_.State(); }
  bool HasGreeted() const { return connection_.HasGreeted(); }

  /// The class, '1' or '2', once it is known.
  std::optional<char> ProtocolClass() const { return class_; }
  /// Uses a class from an earlier session.
  void RememberClass(char protocolClass);
  /// The power state that the projector reported last.
  std::optional<PowerState> Power() const { return power_; }

 private:
  enum class Stage { Idle, Class, Command, Power, Confirm, Question, Pausing };

  using Reader = decltype(PjLinkMapping::value);

  /// The last answer to a command's question.
  struct KeptAnswer {
    std::string parameter;
    Reader reader;  ///< The reader that has already used it, or null.
    PjLinkTime time;
  };

  void Reset();
  void BeginWork(PjLinkClass needed, PjLinkTime now);
  void AskForWork(PjLinkTime now);
  void Ask(Stage stage, std::string_view command, std::string_view parameter, PjLinkTime now);
  void AskAfterPause(Stage stage, PjLinkTime now);
  void Resume(PjLinkTime now);
  void Handle(const PjLinkAnswer& answer, PjLinkTime now);
  void HandleClass(const PjLinkAnswer& answer, PjLinkTime now);
  void HandleCommand(const PjLinkAnswer& answer, PjLinkTime now);
  void HandleValue(const std::string& parameter, PjLinkTime now);
  void HandleNotNow(PjLinkTime now);
  void HandlePower(const PjLinkAnswer& answer, PjLinkTime now);
  void HandleConfirmation(const PjLinkAnswer& answer, PjLinkTime now);
  void HandleQuestionAnswer(const PjLinkAnswer& answer, PjLinkTime now);
  bool AnswerFromKept(PjLinkTime now);
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
  bool isClassRemembered_ = false;  ///< And not confirmed by the projector in this session.
  std::optional<PowerState> power_;
  std::optional<PjLinkTime>
      powerAt_;  ///< When the power state was reported; nothing if a change came since.

  // The work in progress.
  PjtCommand command_{PjtOperation::Get};
  const PjLinkMapping* mapping_ = nullptr;  ///< Null for a question.
  PjLinkQuestion question_;
  std::string parameter_;
  int lostAnswers_ = 0;           ///< Number of lost answers to the session's own questions.
  bool askedForPower_ = false;    ///< Whether the power state was requested for this work.
  bool gotGarbledValue_ = false;  ///< Whether a garbled value was received.
  bool keepsLast_ = false;

  Stage stage_ = Stage::Idle;
  Stage resumedStage_ = Stage::Idle;  ///< The stage after the pause.
  PjLinkTime resumeAt_{};
  std::optional<PjLinkTime> askUntil_;  ///< End of the repetitions.
  PjLinkLimits::Time pause_{};
  std::map<std::string_view, KeptAnswer> kept_;  ///< By command; none from before the last change.
  PjtReply reply_;
  PjLinkResult result_;
};

}  // namespace AdvancedControl
