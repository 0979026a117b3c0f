#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "app/bridge/Broker.h"
#include "app/bridge/DueMessages.h"

/// Decides what is sent to the broker, and when. Messages with states and discovery messages are
/// made just before they are sent, so only the latest is sent, and only if the broker does not have
/// it yet. Answers go first, then states. Without a connection everything waits. Only a few
/// messages are under way at a time, so that a slow broker does not fill the memory.
class Publisher {
 public:
  static constexpr std::size_t kUnderWay = 200;
  static constexpr std::size_t kMostAnswers = 1000;  ///< Then the oldest one is dropped.

  enum class Kind : std::uint8_t { State, Discovery };
  static constexpr std::size_t kKinds = 2;

  /// The message of a projector; one without a topic is not sent.
  using Make = std::function<BrokerMessage(Kind kind, std::size_t projector)>;
  /// As `Broker::Publish`.
  using Send = std::function<std::optional<int>(const BrokerMessage& message)>;

  Publisher(std::size_t projectors, Make make, Send send);

  /// A projector's message may have changed.
  void Renew(Kind kind, std::size_t projector);
  void RenewAll(Kind kind);
  /// The broker, or a subscriber, has lost what was sent.
  void Forget(Kind kind);
  void Answer(BrokerMessage message);

  /// Starts to send; until then everything waits.
  void Start();
  void Stop() { isOpen_ = false; }
  /// Another connection sends from the next `Start` on, at first what was under way.
  void Restart();
  /// The broker has a message.
  void Sent(int number);

  std::size_t UnderWay() const { return underWay_.size(); }
  bool IsIdle() const;
  /// How many messages the broker has got, by kind.
  const std::map<std::string, std::uint64_t>& Counts() const { return counts_; }

 private:
  struct Pending {
    std::optional<Kind> kind{};  ///< Nothing for an answer.
    std::size_t projector = 0;   ///< Of the others.
    BrokerMessage answer{};
  };

  DueMessages& Of(Kind kind) { return messages_.at(static_cast<std::size_t>(kind)); }
  void Pump();
  bool SendNext(Kind kind);
  bool SendAnswer();

  const Make make_;
  const Send send_;
  bool isOpen_ = false;
  std::array<DueMessages, kKinds> messages_;
  std::deque<BrokerMessage> answers_{};
  std::map<int, Pending> underWay_{};  ///< By the connection's number.
  std::map<std::string, std::uint64_t> counts_{};
};
