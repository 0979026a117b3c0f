#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <QString>

#include "simulator/FaultChannel.h"
#include "simulator/FaultyLine.h"

/// What goes wrong: in the projector, or on the way from it.
struct ServiceFault {
  Fault::Kind projector = Fault::Kind::None;
  LineFault line{};

  friend bool operator==(const ServiceFault&, const ServiceFault&) = default;
};

/// How faults are written.
inline constexpr char kFaultNames[] =
    "none, refuse, fail-read, silent, late MILLISECONDS, cut BYTES, garbage, trickle";

/// A fault of some projectors.
struct FaultShare {
  ServiceFault fault{};
  double percent = 100;  ///< More than 0, at most 100.
};

/// A fault as people write it, "late 300" or, of a share, "late 300 5%"; nothing for any other
/// text.
std::optional<FaultShare> ParseFault(const QString& text);

/// The fault of each of `count` projectors. Who has which depends on `seed` alone. Shares follow
/// each other: of 100 projectors, "silent 5%" and "late 300 10%" disturb 15.
std::vector<ServiceFault> Distribute(std::span<const FaultShare> shares, std::size_t count,
                                     std::uint64_t seed);

/// A number that depends on its arguments alone, and looks random.
std::uint64_t Scrambled(std::uint64_t seed, std::uint64_t index);
