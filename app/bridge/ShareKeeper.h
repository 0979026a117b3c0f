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

/// `share` describes the share for bridges with other shares.
QByteArray HolderMessage(const Holder& holder, const QJsonObject& share = {});
/// Nothing for an invalid message.
std::optional<Holder> ParseHolder(const QByteArray& message);

/// Decides which of several bridges with the same share is active. The holder of the share repeats
/// a retained message. The others stand back until the broker reports the holder offline, or the
/// holder has been silent for some time.  A bridge that connects subscribes first and then sends a
/// hello to a topic of the share. When it receives its own hello, it has received all retained
/// messages. If two bridges claim the share at the same time, the one whose message reached the
/// broker first keeps it, because the other one receives that message before its own. This class
/// has no clock and no connection, so that tests can play any order.
class ShareKeeper {
 public:
  using Time = std::chrono::steady_clock::time_point;
  enum class Role : std::uint8_t {
    Looking,       ///< It is not known yet who holds the share.
    StandingBack,  ///< Another bridge has the share.
    Holding,
  };

  /// `instance` identifies this run of the bridge. `takeover` is how long a holder may be silent;
  /// it repeats its message three times as often.
  ShareKeeper(std::string instance, std::chrono::milliseconds takeover, Time now);

  // What happens on the connection.
  void Connected(Time now);
  void Disconnected();
  void TakeHolder(const Holder& holder, Time now);
  void TakeAvailability(bool isOnline);
  void TakeHello(Time now);
  /// Must be called regularly.
  void Tick(Time now);

  Role GetRole() const { return role_; }
  /// Whether to ask the projectors. Also true while the broker cannot be reached, once the time for
  /// a takeover has passed.
  bool MayAsk(Time now) const;
  /// Whether this bridge certainly holds the share and is connected, so that it may send messages
  /// and take commands.
  bool IsSettled() const { return role_ == Role::Holding && isSettled_; }
  /// Whether the broker still has what this bridge sent before the connection broke. Only valid
  /// once this bridge is settled.
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
  bool isOnline_ = true;     ///< Whether the broker reports the holder as online.
  std::uint64_t beat_ = 0;
  std::optional<Time> beaten_{};
  std::optional<Holder> holder_{};  ///< The last other holder.
  Time heard_{};                    ///< When it was heard last.
  std::optional<Holder> gone_{};    ///< The last message of the holder whose share was taken over.
};
