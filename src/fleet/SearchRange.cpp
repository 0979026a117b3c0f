#include "fleet/SearchRange.h"

#include <algorithm>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace AdvancedControl {

namespace {

struct Search {
  Q_DECLARE_TR_FUNCTIONS(Search)
};

constexpr int kBitsV4 = 32;
constexpr int kBitsV6 = 128;
constexpr int kHalf = 64;
constexpr int kByte = 8;

struct Address {
  bool isV6 = false;
  std::uint64_t high = 0;  ///< The first half of an IPv6 address.
  std::uint64_t low = 0;   ///< The other half, or an IPv4 address.
  std::string scope{};     ///< Of a link-local address.

  auto operator<=>(const Address&) const = default;
};

struct Bounds {
  Address first;
  std::uint64_t last;  ///< The last address differs from the first in `low` alone.
};

std::optional<std::uint32_t> Number(const QString& text, std::uint32_t most) {
  constexpr qsizetype kLongest = 3;
  const bool isDigits = !text.isEmpty() && text.size() <= kLongest &&
                        std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
  const std::uint32_t number = isDigits ? text.toUInt() : 0;
  return isDigits && number <= most ? std::optional(number) : std::nullopt;
}

std::optional<Address> ParseV4(const QString& text) {
  constexpr qsizetype kParts = 4;
  const QStringList parts = text.split(QLatin1Char('.'));
  Address address;
  for (const QString& part : parts) {
    const auto number = Number(part, UINT8_MAX);
    const bool isOctal = part.size() > 1 && part.startsWith(u'0');  // for some programs
    if (!number || isOctal) return std::nullopt;
    address.low = address.low << kByte | *number;
  }
  return parts.size() == kParts ? std::optional(address) : std::nullopt;
}

std::optional<Address> ParseAny(const QString& text) {
  if (!text.contains(QLatin1Char(':'))) return ParseV4(text);
  const QHostAddress parsed(text);
  if (parsed.protocol() != QHostAddress::IPv6Protocol) return std::nullopt;
  const Q_IPV6ADDR bytes = parsed.toIPv6Address();
  Address address{.isV6 = true, .scope = parsed.scopeId().toStdString()};
  for (int i = 0; i < kBitsV6 / kByte; ++i) {
    std::uint64_t& half = i < kHalf / kByte ? address.high : address.low;
    half = half << kByte | bytes[i];
  }
  return address;
}

QHostAddress HostAddressOf(const Address& address) {
  if (!address.isV6) return QHostAddress(static_cast<quint32>(address.low));
  Q_IPV6ADDR bytes{};
  for (int i = 0; i < kHalf / kByte; ++i) {
    const int shift = kHalf - kByte * (i + 1);
    bytes[i] = static_cast<quint8>(address.high >> shift);
    bytes[i + kHalf / kByte] = static_cast<quint8>(address.low >> shift);
  }
  QHostAddress made(bytes);
  made.setScopeId(QString::fromStdString(address.scope));
  return made;
}

// A network, without its own address and, for IPv4, its broadcast address. A network of one or two
// addresses is used as a whole.
std::optional<Bounds> Network(const QString& text) {
  const auto address = ParseAny(text.section(QLatin1Char('/'), 0, 0));
  if (!address) return std::nullopt;
  const int all = address->isV6 ? kBitsV6 : kBitsV4;
  const auto bits =
      Number(text.section(QLatin1Char('/'), 1), static_cast<std::uint32_t>(all)).value_or(0);
  if (bits == 0) return std::nullopt;
  const int rest = all - static_cast<int>(bits);
  const std::uint64_t mask = rest >= kHalf ? UINT64_MAX : (std::uint64_t{1} << rest) - 1;
  const std::uint64_t own = mask > 1 ? 1 : 0;
  Bounds bounds{*address, (address->low | mask) - (address->isV6 ? 0 : own)};
  bounds.first.low = (address->low & ~mask) + own;
  return bounds;
}

std::optional<Bounds> Span(const QString& text) {
  const auto first = ParseAny(text.section(QLatin1Char('-'), 0, 0));
  if (!first) return std::nullopt;
  const QString end = text.section(QLatin1Char('-'), 1);
  if (auto last = ParseAny(end)) {
    last->scope = first->scope;
    const bool isSpan = last->isV6 == first->isV6 && last->high == first->high && *first <= *last;
    return isSpan ? std::optional(Bounds{*first, last->low}) : std::nullopt;
  }
  // The last part of it, as an address has it.
  constexpr qsizetype kLongestPart = 4;
  constexpr int kHexadecimal = 16;
  bool isNumber = false;
  std::uint64_t part = 0;
  if (first->isV6) {
    if (end.size() <= kLongestPart) part = end.toUShort(&isNumber, kHexadecimal);
  } else if (const auto number = Number(end, UINT8_MAX)) {
    isNumber = true;
    part = *number;
  }
  if (!isNumber) return std::nullopt;
  const std::uint64_t mask = first->isV6 ? UINT16_MAX : UINT8_MAX;
  const std::uint64_t last = (first->low & ~mask) | part;
  return first->low <= last ? std::optional(Bounds{*first, last}) : std::nullopt;
}

std::optional<Bounds> BoundsOf(const QString& text) {
  if (text.contains(QLatin1Char('/'))) return Network(text);
  if (text.contains(QLatin1Char('-'))) return Span(text);
  const auto address = ParseAny(text);
  return address ? std::optional(Bounds{*address, address->low}) : std::nullopt;
}

}  // namespace

SearchRange ParseSearchRange(const QString& text) {
  static const QRegularExpression kBetween(QStringLiteral("[\\s,;]+"));
  QString trimmed = text;
  static const QRegularExpression kAroundDash(QStringLiteral("\\s*-\\s*"));
  trimmed.replace(kAroundDash, QStringLiteral("-"));
  std::vector<Address> addresses;
  for (const QString& part : trimmed.split(kBetween, Qt::SkipEmptyParts)) {
    const auto bounds = BoundsOf(part);
    if (!bounds) {
      return {.error = Search::tr("\"%1\" is neither an IP address nor a range of them").arg(part)};
    }
    if (bounds->last - bounds->first.low >= SearchRange::kMost - addresses.size()) {
      return {.error = Search::tr("more than %1 addresses").arg(SearchRange::kMost)};
    }
    for (Address next = bounds->first; next.low <= bounds->last; ++next.low) {
      addresses.push_back(next);
      if (next.low == UINT64_MAX) break;
    }
  }
  std::ranges::sort(addresses);
  addresses.erase(std::unique(addresses.begin(), addresses.end()), addresses.end());
  SearchRange range;
  for (const Address& address : addresses) range.addresses.push_back(HostAddressOf(address));
  return range;
}

}  // namespace AdvancedControl
