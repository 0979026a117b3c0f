#include "app/simulator/Faults.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <QStringList>

namespace {

constexpr int kLongestDelay = 60'000;

struct NamedFault {
  const char* name;
  ServiceFault fault;
  bool hasAmount = false;
};

constexpr NamedFault kFaults[] = {
    {"none", {}},
    {"refuse", {.projector = Fault::Kind::Refuse}},
    {"fail-read", {.projector = Fault::Kind::FailRead}},
    {"silent", {.line = {LineFault::Kind::Silent}}},
    {"late", {.line = {LineFault::Kind::Late}}, true},
    {"cut", {.line = {LineFault::Kind::Cut}}, true},
    {"garbage", {.line = {LineFault::Kind::Garbage}}},
    {"trickle", {.line = {LineFault::Kind::Trickle}}},
};

}  // namespace

std::optional<FaultShare> ParseFault(const QString& text) {
  QStringList words = text.simplified().split(QLatin1Char(' '));
  FaultShare share;
  if (words.last().endsWith(QLatin1Char('%'))) {
    bool isNumber = false;
    share.percent = words.takeLast().chopped(1).toDouble(&isNumber);
    if (!isNumber || !(share.percent > 0 && share.percent <= 100) || words.isEmpty()) return {};
  }
  for (const auto& [name, known, hasAmount] : kFaults) {
    if (words.first() != QLatin1String(name) || words.size() != (hasAmount ? 2 : 1)) continue;
    share.fault = known;
    if (!hasAmount) return share;
    bool isNumber = false;
    share.fault.line.amount = words[1].toInt(&isNumber);
    if (isNumber && share.fault.line.amount >= 0 && share.fault.line.amount <= kLongestDelay) {
      return share;
    }
  }
  return std::nullopt;
}

std::vector<ServiceFault> Distribute(std::span<const FaultShare> shares, std::size_t count,
                                     std::uint64_t seed) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, {}, [seed](std::size_t i) { return Scrambled(seed, i); });
  std::vector<ServiceFault> faults(count);
  std::size_t begin = 0;
  for (const FaultShare& share : shares) {
    const auto size =
        static_cast<std::size_t>(std::lround(share.percent / 100 * static_cast<double>(count)));
    const std::size_t end = std::min(count, begin + size);
    for (; begin < end; ++begin) faults[order[begin]] = share.fault;
  }
  return faults;
}

std::uint64_t Scrambled(std::uint64_t seed, std::uint64_t index) {
  // Multiplies and shifts, so that every bit of the result depends on every bit of the arguments.
  std::uint64_t number = seed * 0x9E3779B97F4A7C15U + index + 1;
  number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9U;
  number = (number ^ (number >> 27U)) * 0x94D049BB133111EBU;
  return number ^ (number >> 31U);
}
