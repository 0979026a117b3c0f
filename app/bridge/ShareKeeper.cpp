#include "app/bridge/ShareKeeper.h"

#include <utility>

#include <QJsonDocument>
#include <QJsonObject>

QByteArray HolderMessage(const Holder& holder, const QJsonObject& share) {
  QJsonObject json{{"instance", QString::fromStdString(holder.instance)},
                   {"beat", static_cast<double>(holder.beat)}};
  if (!share.isEmpty()) json["share"] = share;
  return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

std::optional<Holder> ParseHolder(const QByteArray& message) {
  const QJsonObject json = QJsonDocument::fromJson(message).object();
  const std::string instance = json["instance"].toString().toStdString();
  const double beat = json["beat"].toDouble(-1);
  constexpr double kMost = 1e15;
  if (instance.empty() || beat < 0 || beat > kMost) return {};
  return Holder{instance, static_cast<std::uint64_t>(beat)};
}

ShareKeeper::ShareKeeper(std::string instance, std::chrono::milliseconds takeover, Time now)
    : instance_(std::move(instance)), takeover_(takeover), begun_(now) {}

void ShareKeeper::Connected(Time now) {
  isConnected_ = true;
  isSettled_ = hasClaimed_ = remembers_ = false;
  isOnline_ = true;
  beaten_.reset();
  // The holder needs time to connect again, too.
  heard_ = now;
}

void ShareKeeper::Disconnected() { isConnected_ = isSettled_ = hasClaimed_ = false; }

void ShareKeeper::TakeHolder(const Holder& holder, Time now) {
  if (holder.instance == instance_) {
    // The last one may not have reached the broker before the connection broke.
    if (!isSettled_) remembers_ = holder.beat + 1 >= beat_;
    if (isSettled_) hasClaimed_ = true;
    return;
  }
  if (holder == gone_) return;
  if (role_ == Role::Holding && hasClaimed_) {
    beaten_.reset();  // so that the other one hears who was first
    return;
  }
  StandBack(holder, now);
}

void ShareKeeper::StandBack(const Holder& other, Time now) {
  holder_ = other;
  heard_ = now;
  isSettled_ = false;
  role_ = Role::StandingBack;
}

void ShareKeeper::TakeAvailability(bool isOnline) { isOnline_ = isOnline; }

void ShareKeeper::TakeHello(Time now) {
  if (!isConnected_) return;
  if (role_ == Role::Holding) isSettled_ = true;
  if (role_ == Role::Looking) role_ = Role::Holding;
  Tick(now);
}

void ShareKeeper::Tick(Time now) {
  if (role_ != Role::StandingBack || !isConnected_) return;
  if (isOnline_ && now - heard_ < takeover_) return;
  gone_ = holder_;
  role_ = Role::Holding;
}

bool ShareKeeper::MayAsk(Time now) const {
  return role_ == Role::Holding ||
         (role_ == Role::Looking && !isConnected_ && now - begun_ >= takeover_);
}

std::optional<Holder> ShareKeeper::TakeBeat(Time now) {
  constexpr int kBeats = 3;
  if (!IsSettled() || (beaten_ && now - *beaten_ < takeover_ / kBeats)) return {};
  beaten_ = now;
  return Holder{instance_, ++beat_};
}
