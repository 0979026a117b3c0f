#pragma once

#include <cstdint>
#include <string>

#include <QString>

#include "fleet/FleetProfile.h"
#include "fleet/LiveState.h"

/// A projector of the list: its profile and what is known of it now.
struct ProjectorRow {
  std::string id;  ///< As in the fleet.
  FleetProfile profile;
  LiveState state{};
  bool isOpen = false;     ///< Its dialog is open.
  bool hasAlert = false;   ///< One that nobody has acknowledged.
  bool isWatched = false;  ///< The fleet asks it; serial lines are not asked.
};

/// The condition of a projector, in the order of rising urgency.
enum class Health : std::uint8_t { NotAsked, Good, Warning, Error, Unreachable };

Health HealthOf(const ProjectorRow& row);

/// A part of the list.
struct ProjectorGroup {
  enum class Kind : std::uint8_t { All, Problems, Off, Unreachable, Tag };

  Kind kind = Kind::All;
  QString tag{};

  bool Has(const ProjectorRow& row) const;
  friend bool operator==(const ProjectorGroup&, const ProjectorGroup&) = default;
};

/// The hours of the lamp that has burned longest; −1 if not known.
int LampHoursOf(const LiveState& state);
