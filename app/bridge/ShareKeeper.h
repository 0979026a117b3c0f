#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include <QByteArray>
#include <QJsonObject>

/// A message with which a bridge claims a share. The greatest of several claims counts.
struct Claim {
  std::uint64_t term = 0;  ///< One more than that of the holder before.
  std::string instance{};  ///< This run of the bridge. It decides between claims of one term.
  std::uint64_t beat = 0;  ///< Grows with each claim of the instance.
  bool isGivenUp = false;  ///< The holder ends; this is its last message.

  // NOLINTNEXTLINE(modernize-use-nullptr): there is no pointer
  friend auto operator<=>(const Claim&, const Claim&) = default;
};

/// `share` describes the share for bridges with other shares.
QByteArray ClaimMessage(const Claim& claim, const QJsonObject& share = {});
/// Nothing for an invalid message.
std::optional<Claim> ParseClaim(const QByteArray& message);

/// Decides which of several bridges with the same share is active. The holder of the share repeats
/// a retained claim. The others stand back until the holder gives the share up, or has been silent
/// for some time. The last will of a connection leaves the holder a tenth of that time to claim the
/// share again, as the will may be a late one of an earlier holder. Who takes over claims the share
/// with a higher term. A holder that hung and returns sees that claim and stands back, and only a
/// new silence makes anybody take over again, so two bridges cannot take turns. A bridge that
/// connects subscribes first and then sends a hello to a topic of the share. When it receives its
/// own hello, it has received the retained claim; it claims nothing before. This class has no clock
/// and no connection, so that tests can play any order.
class ShareKeeper {
 public:
  using Time = std::chrono::steady_clock::time_point;
  enum class Role : std::uint8_t {
    Looking,       ///< It is not known yet who holds the share.
    StandingBack,  ///< Another bridge has the share.
    Holding,
  };

  /// `instance` identifies this run of the bridge. `takeover` is how long a holder may be silent;
  /// it repeats its claim three times as often.
  ShareKeeper(std::string instance, std::chrono::milliseconds takeover, Time now);

  // What happens on the connection.
  void Connected();
  void Disconnected() { isConnected_ = isSettled_ = false; }
  void TakeClaim(const Claim& claim);
  void TakeAvailability(bool isOnline);
  void TakeHello();
  /// Another bridge has connected. Returns whether it claimed the share before: what it sent then
  /// may have arrived only now, and replaced this bridge's messages.
  bool TakeOtherHello(const std::string& instance) { return claimants_.erase(instance) > 0; }
  /// Must be called several times a second.
  void Tick(Time now);

  Role GetRole() const { return role_; }
  /// Whether to ask the projectors. Also true while the broker cannot be reached, once the time for
  /// a takeover has passed.
  bool MayAsk(Time now) const;
  /// Whether this bridge holds the share as far as the broker knows, so that it may send messages
  /// and take commands.
  bool IsSettled() const { return role_ == Role::Holding && isSettled_; }
  /// Whether the broker still has what this bridge sent before the connection broke. Only valid
  /// once this bridge is settled.
  bool BrokerRemembers() const { return remembers_; }
  /// The claim to be sent now, if one is due.
  std::optional<Claim> TakeBeat(Time now);
  /// The claim to be sent at the end, if this bridge holds the share.
  std::optional<Claim> GiveUp();

 private:
  const std::chrono::milliseconds takeover_;
  const Time begun_;
  Role role_ = Role::Looking;
  bool isConnected_ = false;
  bool isSettled_ = false;
  bool remembers_ = false;
  bool hasClaimed_ = false;  ///< In this term.
  Claim own_;
  std::uint64_t returned_ = 0;  ///< The last beat that the broker told back.
  std::optional<Time> beaten_{};
  Claim other_{};                      ///< The greatest one of any other bridge.
  std::set<std::string> claimants_{};  ///< The others that have claimed the share.
  Time ticked_;
  std::chrono::nanoseconds silence_{};  ///< Of the holder, as far as this bridge was listening.
};
