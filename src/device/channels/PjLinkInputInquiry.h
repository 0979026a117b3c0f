#pragma once

#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <vector>

#include "Namespace.h"
#include "device/ModelData.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkQuestion.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// Learns the inputs of a projector while its channel is idle, one question at a time, once
/// somebody wants to know them. After a failure it pauses; the pause doubles with each further
/// failure. Use from one thread at a time; `Report` from any thread.
///
/// A name that the projector does not tell keeps no input back: that input is reported by kind and
/// number. If the projector said that it cannot tell it now, as in standby, that name is asked for
/// again after a pause, since that costs a short exchange. If it did not answer, asking costs
/// time-outs, which a command may have to wait for: then no name is asked for again, and after two
/// such names no further one. A name that was told stays.
///
/// The channel asks only after a command that was answered, so that a pause lasts until then.
class PjLinkInputInquiry {
 public:
  PjLinkInputInquiry(std::chrono::milliseconds firstPause, std::chrono::milliseconds longestPause)
      : firstPause_(firstPause), longestPause_(longestPause) {}

  /// All inputs; nothing until they are known. The inquiry starts with the first call.
  std::optional<SourceList> Report();
  /// The question to ask now; nothing if there is none, or not yet.
  std::optional<PjLinkQuestion> NextQuestion(SessionTime now) const;
  /// Takes the result of that question.
  void Take(const PjLinkResult& result, SessionTime now);

  PjLinkInputs& Inputs() { return inputs_; }
  /// The inputs if all are known with their names, otherwise none.
  std::vector<PjLinkInput> AllInputs() const;
  /// Uses what an earlier session learnt of the projector: all inputs, or none, and the class.
  void Remember(const std::vector<PjLinkInput>& inputs, std::optional<char> protocolClass);
  /// Forgets the inputs if the projector has another class than the remembered one: it is another
  /// projector.
  void CheckClass(std::optional<char> protocolClass);

 private:
  void SkipName(PjLinkResult::Kind reason);
  void Pause(SessionTime now);
  void Publish();

  const std::chrono::milliseconds firstPause_;
  const std::chrono::milliseconds longestPause_;
  std::atomic<bool> isWanted_ = false;
  PjLinkInputs inputs_;
  std::optional<char> rememberedClass_;
  std::chrono::milliseconds pause_ = firstPause_;
  SessionTime nextTry_{};
  int unanswered_ = 0;  ///< Names that were skipped since the projector did not answer.
  std::mutex mutex_;
  std::optional<SourceList> reported_;  ///< Protected by the mutex.
};

}  // namespace AdvancedControl
