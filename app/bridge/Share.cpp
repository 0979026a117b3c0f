#include "app/bridge/Share.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <set>
#include <utility>

#include <QJsonArray>

#include "app/bridge/Topics.h"

namespace {

constexpr int kMostShares = 1000;

std::optional<int> Number(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isNumber = error == std::errc() && end == text.data() + text.size();
  return isNumber ? std::optional(number) : std::nullopt;
}

}  // namespace

bool Share::Has(const FleetProfile& profile) const {
  const auto isWanted = [&](const std::string& tag) {
    return std::ranges::find(profile.tags, tag) != profile.tags.end();
  };
  if (!tags.empty() && std::ranges::none_of(tags, isWanted)) return false;
  // The share with the highest hash has the projector, so a further share takes a little from each.
  const std::string id = FleetIdOf(profile) + '/';
  int best = 1;
  std::uint64_t highest = 0;
  for (int i = 1; i <= count; ++i) {
    const std::uint64_t hash = StableHash(id + std::to_string(i));
    if (hash > highest) highest = hash, best = i;
  }
  return best == number;
}

QByteArray Share::Name() const {
  QByteArray name = QByteArray::number(number) + "-of-" + QByteArray::number(count);
  // No level has the dot, so that two tags differ from one with a hyphen.
  char separator = '-';
  for (const std::string& tag : std::set(tags.begin(), tags.end())) {
    name += std::exchange(separator, '.') + TopicLevel(tag);
  }
  return name;
}

std::optional<Share> ParseShare(const std::string& text) {
  const auto slash = text.find('/');
  if (slash == std::string::npos) return {};
  const auto number = Number(std::string_view(text).substr(0, slash));
  const auto count = Number(std::string_view(text).substr(slash + 1));
  if (!number || !count || *number < 1 || *number > *count || *count > kMostShares) return {};
  return Share{.number = *number, .count = *count};
}

QJsonObject JsonOf(const Share& share) {
  QJsonArray tags;
  for (const std::string& tag : share.tags) tags.append(QString::fromStdString(tag));
  const QString part = QString::number(share.number) + '/' + QString::number(share.count);
  return {{"part", part}, {"tags", tags}};
}

std::optional<Share> ShareOf(const QJsonObject& json) {
  auto share = ParseShare(json["part"].toString().toStdString());
  if (!share) return {};
  for (const auto& tag : json["tags"].toArray()) {
    share->tags.push_back(tag.toString().toStdString());
  }
  return share;
}
