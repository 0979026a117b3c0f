#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include <QByteArray>
#include <QJsonObject>

/// Who holds a share, and how often they have said so.
struct Holder {
  std::string instance{};
  std::uint64_t beat = 0;

  friend bool operator==(const Holder&, const Holder&) = default;
};

/// `share` says which share it is, for bridges with other shares.
QByteArray HolderMessage(const Holder& holder, const QJsonObject& share = {});
/// Nothing for an invalid message.
std::optional<Holder> ParseHolder(const QByteArray& message);

/// Decides which of several bridges with the same share works. The holder repeats a retained
/// message; the others stand back until it is gone: the broker says that it is offline, or nothing
/// came from it for some time.
///
/// Whoever connects subscribes first, then says hello on a topic of the share: once the hello comes
/// back, all retained messages have come. Of two bridges that claim the share at the same time the
/// one whose message the broker took first keeps it, because the other one receives that message
/// before its own. It has no clock and no connection, so that tests can play any order.
class ShareKeeper {
 public:
  using Time = std::chrono::steady_clock::time_point;
  enum class Role : std::uint8_t {
    Looking,       ///< It does not know yet.
    StandingBack,  ///< Another bridge has the share.
    Holding,
  };

  /// `instance` is this bridge's own name for this run. `takeover` is how long a holder may say
  /// nothing; it repeats its message three times as often.
  ShareKeeper(std::string instance, std::chrono::milliseconds takeover, Time now);

  // What happens on the connection.
  void Connected(Time now);
  void Disconnected();
  void TakeHolder(const Holder& holder, Time now);
  void TakeAvailability(bool isOnline);
  void TakeHello(Time now);
  /// To be called now and then.
  void Tick(Time now);

  Role GetRole() const { return role_; }
  /// Whether to ask the projectors: also while the broker cannot be reached, after the time for a
  /// takeover.
  bool MayAsk(Time now) const;
  /// Whether the holder is connected and sure of it, so that it may send and take commands.
  bool IsSettled() const { return role_ == Role::Holding && isSettled_; }
  /// Whether the broker still has what this bridge sent before the connection broke. Holds once it
  /// is settled.
  bool BrokerRemembers() const { return remembers_; }
  /// The message to be sent now, if one is due.
  std::optional<Holder> TakeBeat(Time now);

 private:
  void StandBack(const Holder& other, Time now);

  const std::string instance_;
  const std::chrono::milliseconds takeover_;
  const Time begun_;
  Role role_ = Role::Looking;
  bool isConnected_ = false;
  bool isSettled_ = false;
  bool remembers_ = false;
  bool hasClaimed_ = false;  ///< Its own message came back.
  bool isOnline_ = true;     ///< What the broker says of the holder.
  std::uint64_t beat_ = 0;
  std::optional<Time> beaten_{};
  std::optional<Holder> holder_{};  ///< The last other one.
  Time heard_{};                    ///< From it.
  std::optional<Holder> gone_{};    ///< Whose share was taken over, and its last message.
};
