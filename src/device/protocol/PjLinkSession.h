#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkConnection.h"
#include "device/protocol/PjLinkExecution.h"
#include "device/protocol/PjLinkKnownClass.h"
#include "device/protocol/PjLinkQuestion.h"

namespace AdvancedControl {

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
      : longestAnswer_(limits.answer), connection_(password, limits) {}

  /// Sets the time-out of further requests. The time-out of the limits still applies if it is
  /// shorter.
  void GiveUpAfter(PjLinkLimits::Time time) { answerTime_ = std::min(longestAnswer_, time); }

  void Begin(const PjtCommand& command, PjLinkTime now);
  void Begin(PjLinkQuestion question, PjLinkTime now);
  /// Keeps the value that the next command reads. If the command after it reads the same within a
  /// second, this value is used.
  void KeepNext() { execution_.KeepNext(); }

  PjLinkStep Next(PjLinkTime now);
  PjLinkConnection& Connection() { return connection_; }

  const PjtReply& Reply() const { return execution_.Reply(); }
  const PjLinkResult& Result() const { return result_; }
  ConnectionState State() const { return connection_.State(); }
  bool HasGreeted() const { return connection_.HasGreeted(); }

  /// The class, '1' or '2', once it is known.
  std::optional<char> ProtocolClass() const { return class_.Value(); }
  /// Uses a class from an earlier session.
  void RememberClass(char protocolClass);
  /// The power state that the projector reported last.
  std::optional<PowerState> Power() const { return execution_.Power(); }

 private:
  enum class Stage : std::uint8_t { Idle, AskingClass, Asking, Pausing };

  /// Takes the next request of the work, or finishes the work.
  void Continue(PjLinkNextRequest request, PjLinkTime now);
  void Ask(PjLinkTime now);
  void Handle(const PjLinkAnswer& answer, PjLinkTime now);

  const PjLinkLimits::Time longestAnswer_;
  PjLinkLimits::Time answerTime_ = longestAnswer_;
  PjLinkConnection connection_;
  PjLinkKnownClass class_;

  // The work in progress.
  Stage stage_ = Stage::Idle;
  bool isQuestion_ = false;   ///< Whether the work is a question, and not a command.
  bool hasRepeated_ = false;  ///< Whether a question was repeated because its answer got lost.
  PjLinkWorkRequest request_;
  PjLinkExecution execution_;  ///< Of a command.
  PjLinkResult result_;        ///< Of a question.
};

}  // namespace AdvancedControl
