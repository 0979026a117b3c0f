#include "app/bridge/OtherShares.h"

#include <algorithm>

#include <QJsonDocument>
#include <QJsonObject>

QString OtherShares::Take(const BrokerMessage& message, Time now) {
  // A retained one may be of a bridge that is gone.
  if (message.isRetained) return {};
  const QJsonObject json = QJsonDocument::fromJson(message.payload).object()["share"].toObject();
  const auto share = ShareOf(json);
  if (!share) return {};
  const auto [found, isNew] = others_.try_emplace(message.topic);
  Other& other = found->second;
  const bool wasThere = !isNew && IsThere(other, now);
  other.heard = now;
  if (QByteArray text = QJsonDocument(json).toJson(); text != other.share) {
    other.share = std::move(text);
    other.common = static_cast<std::size_t>(std::ranges::count_if(
        projectors_.All(), [&](const FleetProfile& profile) { return share->Has(profile); }));
  }
  if (wasThere || other.common == 0) return {};
  return QStringLiteral("the bridge with the share %1 has %2 of these projectors too")
      .arg(QString::fromUtf8(share->Name()))
      .arg(other.common);
}

std::size_t OtherShares::Common(Time now) const {
  std::size_t common = 0;
  for (const auto& [topic, other] : others_) common += IsThere(other, now) ? other.common : 0;
  return common;
}
