#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "AdvancedControlExport.h"
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
ADVANCED_CONTROL_EXPORT SourceList SourcesOf(const std::vector<PjLinkInput>& inputs);

/// The way to a projector of any maker that speaks PJLink, class 1 or 2, over TCP.
///
/// Power, input, error status, blank, mute, freeze, volume steps, lamp and filter hours are asked
/// of the projector. All else is refused at once, without traffic, as not offered.
///
/// Connects when first used. A connection that the projector closed meanwhile, as many do after
/// 30 seconds, is opened again; one that breaks while a reply is awaited leaves a change
/// unanswered, and a read is asked once more. A reply that is none, or for something else, ends the
/// connection and leaves the command unanswered.
///
/// Blocks without an event loop, up to the sum of the limits: belongs behind a `BoundedChannel`.
class ADVANCED_CONTROL_EXPORT PjLinkChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds connect{2000};  ///< From the start until the projector has greeted.
    std::chrono::milliseconds answer{2000};   ///< For each request.
  };

  /// `host` is a name or an address. An empty password proves nothing to a projector that has one.
  PjLinkChannel(std::string host, int port, std::string password)
      : PjLinkChannel(std::move(host), port, std::move(password), {}) {}
  PjLinkChannel(std::string host, int port, std::string password, const Limits& limits);
  ~PjLinkChannel() override;
  PjLinkChannel(const PjLinkChannel&) = delete;
  PjLinkChannel& operator=(const PjLinkChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override;

  /// Asks the projector about itself, an exchange for each text and input name; nothing when one
  /// stays unanswered. Ends with the connection closed, so that any thread may use the channel
  /// next.
  std::optional<PjLinkDescription> Describe();

  /// What `Describe` asks for inputs, one exchange each. The codes are two characters each; none
  /// when the projector tells none now. Nothing when unanswered.
  std::optional<std::vector<std::string>> InputCodes();
  /// `code` is one of `InputCodes`.
  std::optional<PjLinkInput> Input(const std::string& code);

  ConnectionState Connection() const override { return state_; }

 private:
  bool IsUsable();
  bool Open();
  bool Connect() { return IsUsable() || Open(); }
  void Drop(ConnectionState state);
  std::optional<std::string> ReadLine(std::size_t longest, const QDeadlineTimer& deadline);
  std::optional<std::string> AskText(char protocolClass, std::string_view command,
                                     std::string_view parameter = "?");
  std::optional<std::string> Ask(char protocolClass, std::string_view command,
                                 std::string_view parameter);

  const std::string host_;
  const int port_;
  const std::string password_;
  const Limits limits_;
  std::unique_ptr<QTcpSocket> socket_;
  std::string proof_;  ///< Goes before the session's first request.
  char projectorClass_ = '1';
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;
};
