#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "Namespace.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkExchange.h"
#include "device/protocol/PjLinkKnownClass.h"
#include "device/protocol/PjLinkMapping.h"
#include "device/protocol/PjLinkRepeats.h"
#include "device/protocol/PjLinkReports.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// The next request of a command or a question.
struct PjLinkWorkRequest {
  PjLinkClass protocolClass = PjLinkClass::First;
  bool mayAskClass = false;  ///< Whether the class is asked for first, if it is needed but unknown.
  std::string command{};
  std::string parameter{};
  SessionTime notBefore{};  ///< Not sent before this time.
};

/// Nothing if the work is finished.
using PjLinkNextRequest = std::optional<PjLinkWorkRequest>;

/// Executes one command after the other: decides which requests a command needs, interprets their
/// answers, and makes the reply. `PjLinkSession` describes the rules, and sends the requests. Use
/// from one thread at a time.
class PjLinkExecution {
 public:
  /// Begins a command and returns its first request. `answerTime` limits the repetitions of a
  /// request.
  PjLinkNextRequest Begin(const PjtCommand& command, std::chrono::milliseconds answerTime,
                          PjLinkKnownClass& known, SessionTime now);
  /// Takes the answer to the last request and returns the next one.
  PjLinkNextRequest Handle(const PjLinkAnswer& answer, PjLinkKnownClass& known, SessionTime now);
  /// Finishes the command, because the projector has no such command.
  PjLinkNextRequest RefuseAsNotOffered();
  /// Finishes the command without having sent it.
  PjLinkNextRequest FinishUnsent();
  const PjtReply& Reply() const { return reply_; }

  /// Keeps the value that the next command reads. If the command after it reads the same within a
  /// second, this value is used.
  void KeepNext() { keepsNext_ = true; }
  /// The power state that the projector reported last.
  std::optional<PowerState> Power() const { return reports_.Power(); }

 private:
  /// What the last request was.
  enum class Stage : std::uint8_t { Command, Power, Confirmation };

  PjLinkWorkRequest Ask(Stage stage);
  PjLinkWorkRequest AskAfterPause(Stage stage, SessionTime now);
  PjLinkNextRequest HandleCommand(const PjLinkAnswer& answer, PjLinkKnownClass& known,
                                  SessionTime now);
  PjLinkNextRequest HandleValue(const std::string& parameter, SessionTime now);
  PjLinkNextRequest HandleNotNow(SessionTime now);
  PjLinkNextRequest HandlePower(const PjLinkAnswer& answer, SessionTime now);
  PjLinkNextRequest HandleConfirmation(const PjLinkAnswer& answer, SessionTime now);
  bool IsForPower() const;
  bool CannotDoItNow() const;
  PjLinkNextRequest Finish(const PjtReply& reply);

  PjLinkReports reports_;
  PjtCommand command_{PjtOperation::Get};
  const PjLinkMapping* mapping_ = nullptr;
  std::string parameter_;
  std::chrono::milliseconds answerTime_{};
  PjLinkRepeats repeats_;
  Stage stage_ = Stage::Command;
  bool askedForPower_ = false;    ///< Whether the power state was requested for this command.
  bool gotGarbledValue_ = false;  ///< Whether a garbled value was received.
  bool keepsNext_ = false;
  PjtReply reply_;
};

}  // namespace AdvancedControl
