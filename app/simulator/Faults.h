#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <QString>

#include "simulator/FaultChannel.h"
#include "simulator/FaultyLine.h"

/// A fault of a served projector: in the projector itself, or on its lines.
struct ServiceFault {
  Fault::Kind projector = Fault::Kind::None;
  LineFault line{};

  friend bool operator==(const ServiceFault&, const ServiceFault&) = default;
};

/// The faults that `ParseFault` knows, for messages.
inline constexpr char kFaultNames[] =
    "none, refuse, fail-read, silent, late MILLISECONDS, cut BYTES, garbage, trickle";

/// A fault, and the share of the projectors that has it.
struct FaultShare {
  ServiceFault fault{};
  double percent = 100;  ///< More than 0, at most 100.
};

/// Parses a fault, "late 300", or the fault of a share, "late 300 5%". Nothing for any other text.
std::optional<FaultShare> ParseFault(const QString& text);

/// The fault of each of `count` projectors. Which projectors have it depends only on `seed`. Shares
/// do not overlap: of 100 projectors, "silent 5%" and "late 300 10%" disturb 15.
std::vector<ServiceFault> Distribute(std::span<const FaultShare> shares, std::size_t count,
                                     std::uint64_t seed);

/// A number that looks random and depends only on the arguments.
std::uint64_t Scrambled(std::uint64_t seed, std::uint64_t index);
