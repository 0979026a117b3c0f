#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ProjectorCommonExport.h"
#include "device/ConnectionState.h"
#include "device/ModelData.h"
#include "device/ProjectorChannel.h"

class QDeadlineTimer;
class QTcpSocket;

/// An input of a projector.
struct PjLinkInput {
  std::int32_t number =
      0;             ///< What reading the input source yields, as `PjLink::InputNumber` says.
  std::string name;  ///< UTF-8; the projector's own, or else its kind and place: "Digital 1".
};

/// What a projector tells of itself. A text that it does not tell is empty.
struct PjLinkDescription {
  int protocolClass = 1;  ///< 1 or 2.
  std::string name;
  std::string maker;
  std::string product;
  std::vector<PjLinkInput> inputs;
};

/// The inputs as a model's source list; those that it has no room for are left out.
PROJECTOR_COMMON_EXPORT SourceList SourcesOf(const std::vector<PjLinkInput>& inputs);

/// The way to a projector of any maker that speaks PJLink, class 1 or 2, over TCP.
///
/// Power, input, error status, blank, mute, freeze, volume steps, lamp and filter hours are asked
/// of the projector. All else is refused at once, without traffic, as not offered.
///
/// Connects when first used. A connection that the projector closed meanwhile, as many do after
/// 30 seconds and some after each reply, is opened again; one that breaks while a reply is awaited
/// leaves a change unanswered, and a read is asked once more. A reply to another command is
/// dropped, as is what came before the request. Anything else that is no reply ends the connection
/// and leaves the command unanswered. The class is asked for with the first command that needs it.
///
/// The inputs are asked for one by one while the channel is idle, once somebody wants them. After a
/// failure there is a pause, which doubles with each further one. Where a list has no room for all,
/// the one that plays takes the last place.
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

    /// What a command may take: connecting, the class and the command itself, behind a question for
    /// inputs that was under way.
    std::chrono::milliseconds Longest() const { return connect + 3 * answer; }
  };

  /// `host` is a name or an address. An empty password proves nothing to a projector that has one.
  PjLinkChannel(std::string host, int port, std::string password)
      : PjLinkChannel(std::move(host), port, std::move(password), {}) {}
  PjLinkChannel(std::string host, int port, std::string password, const Limits& limits);
  ~PjLinkChannel() override;
  PjLinkChannel(const PjLinkChannel&) = delete;
  PjLinkChannel& operator=(const PjLinkChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override;
  /// For each request of a command; what is asked otherwise has the channel's own time.
  void GiveUpAfter(std::chrono::milliseconds time) override { longest_ = time; }

  /// Asks the projector about itself, an exchange for each text and input name, as many as a source
  /// list holds; nothing when one stays unanswered. Ends with the connection closed, so that any
  /// thread may use the channel next.
  std::optional<PjLinkDescription> Describe();

  ConnectionState Connection() const override { return state_; }
  std::optional<SourceList> Inputs() override;
  bool UseIdleTime() override;
  bool TendConnection(std::chrono::milliseconds unused) override;

 private:
  using Clock = std::chrono::steady_clock;

  PjtReply CarryOut(const PjtCommand& command);
  /// None when the projector tells none now; nothing when unanswered.
  std::optional<std::vector<std::string>> InputCodes();
  /// The input to ask for next; nothing when all are known.
  std::optional<std::string> NextInput() const;
  bool AskForInput(const std::string& code);
  /// '1' or '2'; nothing when unanswered.
  std::optional<char> ProjectorClass();
  bool IsUsable();
  bool Open();
  void Drop(ConnectionState state);
  void DropOnLine(std::string_view line);
  std::optional<std::string> ReadLine(std::size_t bound, const QDeadlineTimer& deadline);
  std::optional<std::string> AskText(char protocolClass, std::string_view command,
                                     std::string_view parameter = "?");
  std::optional<std::string> Ask(char protocolClass, std::string_view command,
                                 std::string_view parameter);
  std::optional<std::string> Exchange(char protocolClass, std::string_view command,
                                      std::string_view parameter);

  const std::string host_;
  const int port_;
  const std::string password_;
  const Limits limits_;
  std::chrono::milliseconds longest_ = limits_.answer;
  std::chrono::milliseconds answerTime_ = limits_.answer;
  std::unique_ptr<QTcpSocket> socket_;
  std::string proof_;          ///< Goes before the session's first request.
  std::optional<char> class_;  ///< Once it is known.
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;

  std::atomic<bool> asksForInputs_ = false;
  std::vector<std::string> codes_;
  std::vector<PjLinkInput> inputs_;  ///< Of the first of `codes_`, then of what plays beyond them.
  int playing_ = 0;                  ///< The input as last read; 0 before.
  std::chrono::milliseconds pause_;
  Clock::time_point nextTry_{};
  std::mutex toldMutex_;
  std::optional<SourceList> told_;  ///< Under the mutex.
};
