#include "app/bridge/Topics.h"

#include <cctype>

#include <QList>

namespace {

constexpr std::size_t kLongestLevel = 80;

}  // namespace

std::uint64_t StableHash(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  // Mixes the last characters into all bits.
  hash = (hash ^ (hash >> 33U)) * 0xFF51AFD7ED558CCDU;
  return hash ^ (hash >> 33U);
}

QByteArray TopicLevel(std::string_view text) {
  QByteArray level;
  bool isPlain = text.size() <= kLongestLevel && !text.empty();
  for (const char c : text.substr(0, kLongestLevel)) {
    const bool isKept = std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-';
    level += isKept ? c : '_';
    isPlain = isPlain && (isKept || c == ':');
  }
  if (isPlain) return level;
  constexpr std::uint64_t kShort = 0xFFFFFFFF;
  return level + '-' + QByteArray::number(quint64{StableHash(text) & kShort}, 16);
}

Topics::Address Topics::ParseSet(const QByteArray& topic) const {
  if (!topic.startsWith(prefix_ + '/')) return {};
  const auto levels = topic.mid(prefix_.size() + 1).split('/');
  if (levels.size() < 2 || levels.size() > 3 || levels[1] != "set") return {};
  if (levels.size() == 3 && levels[2].isEmpty()) return {};
  return {levels[0], levels.size() == 3 ? levels[2] : QByteArray()};
}
