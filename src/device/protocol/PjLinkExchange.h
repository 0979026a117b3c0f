#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "Namespace.h"
#include "device/ConnectionState.h"

namespace AdvancedControl {

struct PjLinkRequest {
  char protocolClass = '1';
  std::string command{};
  std::string parameter{};
};

struct PjLinkAnswer {
  /// Parameter of the reply, which may be `OK` or an error; nothing without a reply.
  std::optional<std::string> parameter{};
  bool sent = false;  ///< Whether the projector may have carried out the request.
};

/// One request at a time and its answer: recognises the answer among the lines that arrive, and
/// decides whether the request may be sent again. Use from one thread at a time.
class PjLinkExchange {
 public:
  /// What a line from the projector is.
  enum class Line : std::uint8_t {
    Answer,
    PasswordRefused,
    OtherReply,  ///< To another command, for example late.
    Noise,
  };

  /// `time` is the time-out for the answer.
  void Start(PjLinkRequest request, std::chrono::milliseconds time);
  std::chrono::milliseconds AnswerTime() const { return answerTime_; }
  bool IsQuestion() const;
  /// The line to send, with its end. From now on the projector may carry out the request.
  std::string Send();
  Line Take(const std::string& line);
  /// Whether to send the request again: once for a question, never for a change.
  bool TakeRepetition() { return std::exchange(mayRepeat_, false); }
  /// What it means if no answer has come in time.
  ConnectionState Silence() const;
  const PjLinkAnswer& Answer() const { return answer_; }

 private:
  PjLinkRequest request_;
  std::chrono::milliseconds answerTime_{};
  PjLinkAnswer answer_;
  bool mayRepeat_ = false;
  bool sawNoise_ = false;  ///< After the request was sent.
};

}  // namespace AdvancedControl
