#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/channels/PjLinkInputInquiry.h"
#include "device/channels/PjLinkSocket.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkSession.h"

namespace AdvancedControl {

/// Properties of a projector that do not change between sessions.
struct PjLinkFacts {
  std::optional<char> protocolClass{};  ///< '1' or '2'; nothing if unknown.
  std::vector<PjLinkInput> inputs{};    ///< All inputs; empty if unknown.

  friend bool operator==(const PjLinkFacts&, const PjLinkFacts&) = default;
};

/// A channel to a projector of any maker that speaks PJLink, class 1 or 2, over TCP. It drives a
/// `PjLinkSession`, which implements the behaviour, over a socket.
///
/// Supports power, input, error status, blank, mute, freeze, volume steps, lamp and filter hours.
/// All other commands are refused at once as not offered, without traffic.
///
/// Connects with the first command and keeps the connection open. If the projector closes it, as
/// many do after 30 seconds and some after each reply, the next command connects again.
///
/// After the first call of `Inputs`, asks for the inputs one by one while the channel is idle.
/// After a failure it pauses; the pause doubles with each further failure.
///
/// Blocks without an event loop, up to `Limits::Longest`, so wrap it in a `BoundedChannel`. Threads
/// as for `ProjectorChannel`.
class PROJECTOR_COMMON_EXPORT PjLinkChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds connect{2000};  ///< From the start until the projector's greeting.
    std::chrono::milliseconds answer{2000};   ///< For each request.
    /// Pause after a failure to get the inputs. A projector in standby may report them only when it
    /// is on.
    std::chrono::milliseconds firstPause{10'000};
    std::chrono::milliseconds longestPause{120'000};
    std::chrono::milliseconds unused{
        20'000};  ///< Time without use after which the connection is closed.

    /// The longest time for a command: for connecting, the class, the command itself and the time
    /// until it takes effect, after a question for inputs that is under way.
    std::chrono::milliseconds Longest() const { return connect + 4 * answer; }
  };

  /// `host` is a name or an address. `password` is empty for a projector without one.
  PjLinkChannel(const std::string& host, int port, const std::string& password)
      : PjLinkChannel(host, port, password, {}) {}
  PjLinkChannel(const std::string& host, int port, const std::string& password,
                const Limits& limits);
  PjLinkChannel(const std::string& host, int port, const std::string& password,
                const Limits& limits, const MakePjLinkSocket& makeSocket);

  /// Whether PJLink of either class supports this command.
  static bool Has(const PjtCommand& command);

  PjtReply Execute(const PjtCommand& command) override;
  /// Applies to each request of a command. Other questions have the channel's own time-out.
  void GiveUpAfter(std::chrono::milliseconds time) override { longest_ = time; }
  ConnectionState Connection() const override { return state_; }
  std::optional<SourceList> Inputs() override;
  std::optional<PowerState> Power() const override { return power_; }
  bool UseIdleTime() override;
  bool TendConnection(std::chrono::milliseconds unused) override;

  /// Asks for all inputs that are not known yet, up to the capacity of a source list. An input
  /// without a reported name is named by kind and number. Empty if the projector reports no inputs
  /// now, as in standby. The second value is false if an answer got lost.
  std::pair<std::vector<PjLinkInput>, bool> AskForInputs();
  /// Asks for the present input; its name is determined in the same way. Nothing if the projector
  /// does not report it. If the next command reads the input, this answer is used for it.
  std::pair<std::optional<PjLinkInput>, bool> AskForPresentInput();

  /// Whether the projector has accepted the connection and the password. It need not have answered
  /// anything.
  bool HasGreeted() const { return session_.HasGreeted(); }

  /// What is known now, for `Remember` in a later session.
  PjLinkFacts Facts() const;
  /// Uses facts from an earlier session. To be called before the first command.
  void Remember(const PjLinkFacts& facts);

  /// "host:port".
  const std::string& Address() const { return address_; }

 private:
  /// Starts `work` and performs the session's steps until it is finished.
  void Run(const auto& work);
  bool CanConnect();
  PjLinkResult Ask(const PjLinkQuestion& question);

  const Limits limits_;
  const bool hasValidAddress_;
  const std::string address_;
  PjLinkSession session_;
  const std::unique_ptr<PjLinkSocket> socket_;
  std::chrono::milliseconds longest_ = limits_.answer;
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;
  std::atomic<std::optional<PowerState>> power_;
  PjLinkInputInquiry inquiry_;
};

}  // namespace AdvancedControl
