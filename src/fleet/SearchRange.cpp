#include "fleet/SearchRange.h"

#include <algorithm>
#include <optional>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace AdvancedControl {

namespace {

struct Search {
  Q_DECLARE_TR_FUNCTIONS(Search)
};

struct Bounds {
  std::uint32_t first;
  std::uint32_t last;
};

std::optional<std::uint32_t> Number(const QString& text, std::uint32_t most) {
  constexpr qsizetype kLongest = 3;
  const bool isDigits = !text.isEmpty() && text.size() <= kLongest &&
                        std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
  const std::uint32_t number = isDigits ? text.toUInt() : 0;
  return isDigits && number <= most ? std::optional(number) : std::nullopt;
}

std::optional<std::uint32_t> Address(const QString& text) {
  constexpr qsizetype kParts = 4;
  const QStringList parts = text.split(QLatin1Char('.'));
  std::uint32_t address = 0;
  for (const QString& part : parts) {
    const auto number = Number(part, UINT8_MAX);
    if (!number) return std::nullopt;
    address = address << 8U | *number;
  }
  return parts.size() == kParts ? std::optional(address) : std::nullopt;
}

// A network without its own address and its broadcast address; of one or two addresses, all.
std::optional<Bounds> Network(const QString& text) {
  constexpr std::uint32_t kBits = 32;
  constexpr std::uint32_t kShortest = 1;
  const auto address = Address(text.section(QLatin1Char('/'), 0, 0));
  const auto bits = Number(text.section(QLatin1Char('/'), 1), kBits);
  if (!address || !bits || *bits < kShortest) return std::nullopt;
  const std::uint32_t mask = *bits == kBits ? 0 : UINT32_MAX >> *bits;
  const std::uint32_t own = mask > 1 ? 1 : 0;
  return Bounds{(*address & ~mask) + own, (*address | mask) - own};
}

std::optional<Bounds> Span(const QString& text) {
  const QString end = text.section(QLatin1Char('-'), 1);
  const auto first = Address(text.section(QLatin1Char('-'), 0, 0));
  auto last = Address(end);
  if (first && !last) {
    if (const auto part = Number(end, UINT8_MAX))
      last = (*first & ~std::uint32_t{UINT8_MAX}) | *part;
  }
  if (!first || !last || *first > *last) return std::nullopt;
  return Bounds{*first, *last};
}

std::optional<Bounds> BoundsOf(const QString& text) {
  if (text.contains(QLatin1Char('/'))) return Network(text);
  if (text.contains(QLatin1Char('-'))) return Span(text);
  const auto address = Address(text);
  return address ? std::optional(Bounds{*address, *address}) : std::nullopt;
}

}  // namespace

SearchRange ParseSearchRange(const QString& text) {
  static const QRegularExpression kBetween(QStringLiteral("[\\s,;]+"));
  SearchRange range;
  QString trimmed = text;
  static const QRegularExpression kAroundDash(QStringLiteral("\\s*-\\s*"));
  trimmed.replace(kAroundDash, QStringLiteral("-"));
  for (const QString& part : trimmed.split(kBetween, Qt::SkipEmptyParts)) {
    const auto bounds = BoundsOf(part);
    if (!bounds) {
      return {.error =
                  Search::tr("\"%1\" is neither an IPv4 address nor a range of them").arg(part)};
    }
    if (bounds->last - bounds->first >= SearchRange::kMost - range.addresses.size()) {
      return {.error = Search::tr("more than %1 addresses").arg(SearchRange::kMost)};
    }
    for (std::uint32_t i = 0; i <= bounds->last - bounds->first; ++i) {
      range.addresses.push_back(bounds->first + i);
    }
  }
  std::ranges::sort(range.addresses);
  range.addresses.erase(std::unique(range.addresses.begin(), range.addresses.end()),
                        range.addresses.end());
  return range;
}

}  // namespace AdvancedControl
