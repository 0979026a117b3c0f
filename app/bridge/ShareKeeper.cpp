#include "app/bridge/ShareKeeper.h"

#include <algorithm>
#include <utility>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int kBeats = 3;          // within the time for a takeover
constexpr int kTimeToObject = 10;  // a holder may object for a tenth of that time
constexpr std::chrono::milliseconds kLongestStep{500};

}  // namespace

QByteArray ClaimMessage(const Claim& claim, const QJsonObject& share) {
  QJsonObject json{{"instance", QString::fromStdString(claim.instance)},
                   {"term", static_cast<double>(claim.term)},
                   {"beat", static_cast<double>(claim.beat)}};
  if (claim.isGivenUp) json["given-up"] = true;
  if (!share.isEmpty()) json["share"] = share;
  return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

std::optional<Claim> ParseClaim(const QByteArray& message) {
  const QJsonObject json = QJsonDocument::fromJson(message).object();
  const std::string instance = json["instance"].toString().toStdString();
  const double term = json["term"].toDouble(-1);
  const double beat = json["beat"].toDouble(-1);
  constexpr double kMost = 1e15;
  if (instance.empty() || term < 0 || term > kMost || beat < 0 || beat > kMost) return {};
  return Claim{.term = static_cast<std::uint64_t>(term),
               .instance = instance,
               .beat = static_cast<std::uint64_t>(beat),
               .isGivenUp = json["given-up"].toBool()};
}

ShareKeeper::ShareKeeper(std::string instance, std::chrono::milliseconds takeover, Time now)
    : takeover_(takeover), begun_(now), own_{.instance = std::move(instance)}, ticked_(now) {}

void ShareKeeper::Connected() {
  isConnected_ = true;
  isSettled_ = remembers_ = false;
  beaten_.reset();
  // The holder needs time to connect again, too.
  silence_ = {};
}

void ShareKeeper::TakeClaim(const Claim& claim) {
  if (claim.instance == own_.instance) {
    // Later ones may not have reached the broker before the connection broke.
    if (isSettled_) returned_ = claim.beat;
    if (!isSettled_) remembers_ = claim.beat >= returned_;
    return;
  }
  if (!claim.isGivenUp) claimants_.insert(claim.instance);
  const bool isNews = claim > other_;
  if (isNews) other_ = claim;
  if (hasClaimed_ && claim < own_) {
    beaten_.reset();  // so that the other one hears that it was replaced
    return;
  }
  // A share that was given up is free for a bridge that is about to take it.
  if (!isNews || (claim.isGivenUp && role_ != Role::StandingBack && !hasClaimed_)) return;
  role_ = Role::StandingBack;
  isSettled_ = hasClaimed_ = false;
  silence_ = claim.isGivenUp ? takeover_ : std::chrono::nanoseconds();
}

void ShareKeeper::TakeAvailability(bool isOnline) {
  if (isOnline) return;
  beaten_.reset();
  silence_ = std::max<std::chrono::nanoseconds>(silence_, takeover_ - takeover_ / kTimeToObject);
}

void ShareKeeper::TakeHello() {
  if (!isConnected_) return;
  if (role_ == Role::Holding) isSettled_ = true;
  if (role_ == Role::Looking) role_ = Role::Holding;
}

void ShareKeeper::Tick(Time now) {
  // While this process hung it heard nothing, and the holder's messages may still be waiting.
  const auto step = std::min<std::chrono::nanoseconds>(now - ticked_, kLongestStep);
  ticked_ = now;
  if (role_ != Role::StandingBack || !isConnected_) return;
  silence_ += step;
  if (silence_ >= takeover_) role_ = Role::Holding;
}

bool ShareKeeper::MayAsk(Time now) const {
  return role_ == Role::Holding ||
         (role_ == Role::Looking && !isConnected_ && now - begun_ >= takeover_);
}

std::optional<Claim> ShareKeeper::TakeBeat(Time now) {
  if (!IsSettled() || (beaten_ && now - *beaten_ < takeover_ / kBeats)) return {};
  beaten_ = now;
  if (!std::exchange(hasClaimed_, true)) own_.term = other_.term + 1;
  ++own_.beat;
  return own_;
}

std::optional<Claim> ShareKeeper::GiveUp() {
  beaten_.reset();
  std::optional<Claim> last = TakeBeat(ticked_);
  if (last) last->isGivenUp = true;
  return last;
}
