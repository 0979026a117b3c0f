#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkSession.h"

class QTcpSocket;

namespace AdvancedControl {

/// What a projector is, which does not change between sessions.
struct PjLinkFacts {
  std::optional<char> protocolClass{};  ///< '1' or '2'; nothing where it is not known.
  std::vector<PjLinkInput> inputs{};    ///< All of them, or none where they are not known.

  friend bool operator==(const PjLinkFacts&, const PjLinkFacts&) = default;
};

/// The way to a projector of any maker that speaks PJLink, class 1 or 2, over TCP: drives a
/// `PjLinkSession`, which says how it behaves, over a socket.
///
/// Power, input, error status, blank, mute, freeze, volume steps, lamp and filter hours are asked
/// of the projector. All else is refused at once, without traffic, as not offered.
///
/// Connects when first used, and stays connected as long as the projector likes. One that closed
/// the connection meanwhile, as many do after 30 seconds and some after each reply, is connected to
/// again.
///
/// The inputs are asked for one by one while the channel is idle, once somebody wants them. After a
/// failure there is a pause, which doubles with each further one.
///
/// Blocks without an event loop, up to `Limits::Longest`: belongs behind a `BoundedChannel`.
class PROJECTOR_COMMON_EXPORT PjLinkChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds connect{2000};  ///< From the start until the projector has greeted.
    std::chrono::milliseconds answer{2000};   ///< For each request.
    /// After inputs were not told. A projector in standby may tell them only once it is on.
    std::chrono::milliseconds firstPause{10'000};
    std::chrono::milliseconds longestPause{120'000};
    std::chrono::milliseconds unused{20'000};  ///< Then the connection is closed.

    /// What a command may take: connecting, the class, the command itself and the time until it is
    /// carried out, behind a question for inputs that was under way.
    std::chrono::milliseconds Longest() const { return connect + 4 * answer; }
  };

  /// `host` is a name or an address. An empty password proves nothing to a projector that has one.
  PjLinkChannel(std::string host, int port, const std::string& password)
      : PjLinkChannel(std::move(host), port, password, {}) {}
  PjLinkChannel(std::string host, int port, const std::string& password, const Limits& limits);
  ~PjLinkChannel() override;
  PjLinkChannel(const PjLinkChannel&) = delete;
  PjLinkChannel& operator=(const PjLinkChannel&) = delete;

  /// Whether PJLink, of either class, has this command at all.
  static bool Has(const PjtCommand& command);

  PjtReply Execute(const PjtCommand& command) override;
  /// For each request of a command; what is asked otherwise has the channel's own time.
  void GiveUpAfter(std::chrono::milliseconds time) override { longest_ = time; }
  ConnectionState Connection() const override { return state_; }
  std::optional<SourceList> Inputs() override;
  std::optional<PowerState> Power() const override { return power_; }
  bool UseIdleTime() override;
  bool TendConnection(std::chrono::milliseconds unused) override;

  /// Asks for all inputs that are not known yet, as many as a source list holds. The name of one
  /// that is not told is its kind and place. There are none where the projector tells none now, as
  /// in standby. False in the second where an answer got lost.
  std::pair<std::vector<PjLinkInput>, bool> AskForInputs();
  /// Asks for the input that plays; what it is called is told in the same way. Nothing where the
  /// projector does not say. A command that asks for the input next is answered from this one.
  std::pair<std::optional<PjLinkInput>, bool> AskForPresentInput();

  /// Whether the projector has let us in. It need not have answered anything.
  bool HasGreeted() const { return session_.HasGreeted(); }

  /// What is known by now, to be remembered.
  PjLinkFacts Facts() const;
  /// Takes for known what is remembered from an earlier session. Before the first command.
  void Remember(const PjLinkFacts& facts);

  /// "host:port".
  std::string Address() const;

 private:
  using Clock = std::chrono::steady_clock;

  /// Begins work and drives the session until it is finished.
  void Run(const auto& work);
  void TakeWhatCame();
  void Drive(const PjLinkStep& step);
  void Connect(const PjLinkStep& step);
  void Listen(std::chrono::milliseconds time);
  bool CanConnect();
  PjLinkTold Ask(const PjLinkQuestion& question);

  const std::string host_;
  const int port_;
  const Limits limits_;
  PjLinkSession session_;
  std::chrono::milliseconds longest_ = limits_.answer;
  std::optional<char> rememberedClass_;
  std::unique_ptr<QTcpSocket> socket_;
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;
  std::atomic<std::optional<PowerState>> power_;

  std::atomic<bool> asksForInputs_ = false;
  PjLinkInputs inputs_;
  std::chrono::milliseconds pause_ = limits_.firstPause;
  Clock::time_point nextTry_{};
  std::mutex toldMutex_;
  std::optional<SourceList> told_;  ///< Under the mutex.
};

}  // namespace AdvancedControl
