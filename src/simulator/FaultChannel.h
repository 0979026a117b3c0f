#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/channels/ForwardingChannel.h"

namespace AdvancedControl {

/// What goes wrong with a command.
struct Fault {
  enum class Kind {
    None,
    Refuse,    ///< The projector refuses the command.
    FailRead,  ///< It refuses reads; other commands work.
    Late,      ///< It answers after `delay`.
    DropOut,   ///< It does not answer.
  };

  Kind kind = Kind::None;
  std::chrono::milliseconds delay{0};  ///< For `Late`.

  friend bool operator==(const Fault&, const Fault&) = default;
};

/// Adds faults to the commands for another channel. A fault can be set for one operation, for the
/// generic operations with one code, or for all commands; the most specific one applies.
///
/// Faults may be set from any thread while a command is under way; a command delayed by a fault
/// continues as soon as the fault is cleared.
class PROJECTOR_COMMON_EXPORT FaultChannel : public ForwardingChannel {
 public:
  /// A command that drops out blocks for `dropOut` and is then unanswered.
  explicit FaultChannel(std::shared_ptr<ProjectorChannel> inner,
                        std::chrono::milliseconds dropOut = std::chrono::seconds(10))
      : ForwardingChannel(std::move(inner)), dropOut_(dropOut) {}

  /// `Kind::None` clears the fault.
  void SetFault(const Fault& fault);
  void SetFault(PjtOperation operation, const Fault& fault);
  void SetFault(std::uint16_t code, const Fault& fault);
  void Clear();

  PjtReply Execute(const PjtCommand& command) override;

 private:
  /// Ends the waits that the edit of the faults concerns.
  template <typename Edit>
  void Change(Edit edit);
  Fault FaultOf(const PjtCommand& command) const;
  /// Waits while `fault` holds for the command, at most for `time`.
  void Wait(std::unique_lock<std::mutex>& lock, const PjtCommand& command, const Fault& fault,
            std::chrono::milliseconds time);

  const std::chrono::milliseconds dropOut_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  Fault forAll_;
  std::map<PjtOperation, Fault> byOperation_;
  std::map<std::uint16_t, Fault> byCode_;
};

}  // namespace AdvancedControl
