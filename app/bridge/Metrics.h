#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>

#include <QByteArray>

#include "app/bridge/LatencyHistogram.h"
#include "app/bridge/MetricsText.h"
#include "fleet/FleetEvents.h"
#include "fleet/FleetProfile.h"
#include "fleet/LiveState.h"

/// A projector in the metrics.
struct MeasuredProjector {
  const FleetProfile* profile = nullptr;  ///< Never null.
  LiveState state{};
};

/// What a bridge reports about itself.
struct BridgeCounts {
  std::string version{};
  std::string share{};
  std::size_t projectors = 0;
  std::size_t common = 0;  ///< Projectors that bridges with other shares have too.
  bool holdsShare = true;
  std::optional<bool> isConnected{};  ///< To the broker; nothing without one.
  bool takesCommands = false;
  FleetTally visits{};
  LatencyHistogram answers{};
  std::map<std::string, std::uint64_t> messages{};  ///< Sent to the broker, by kind.
  std::map<std::string, std::uint64_t> commands{};  ///< By outcome.
  std::uint64_t residentBytes = 0;
  double processorSeconds = 0;
};

// The metrics, which are described in docs/bridge.md.

void AddProjectors(MetricsText& text, std::span<const MeasuredProjector> projectors);
void AddBridge(MetricsText& text, const BridgeCounts& counts);

/// Fills in the system's figures for this process.
void MeasureProcess(BridgeCounts& counts);
