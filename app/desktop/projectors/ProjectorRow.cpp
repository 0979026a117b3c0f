#include "app/desktop/projectors/ProjectorRow.h"

#include <algorithm>

Health HealthOf(const ProjectorRow& row) {
  const LiveState& state = row.state;
  if (state.reachability == Reachability::NeverAsked) return Health::NotAsked;
  if (state.reachability != Reachability::Answers) return Health::Unreachable;
  if (!state.problems) return Health::Good;
  switch (*std::ranges::max_element(*state.problems)) {
    case ProblemGrade::Error:
      return Health::Error;
    case ProblemGrade::Warning:
      return Health::Warning;
    default:
      return Health::Good;
  }
}

bool ProjectorGroup::Has(const ProjectorRow& row) const {
  switch (kind) {
    case Kind::Problems: {
      const Health health = HealthOf(row);
      return health == Health::Warning || health == Health::Error;
    }
    case Kind::Off:
      return row.state.power == PowerState::Standby;
    case Kind::Unreachable:
      return HealthOf(row) == Health::Unreachable;
    case Kind::Tag:
      return std::ranges::find(row.profile.tags, tag.toStdString()) != row.profile.tags.end();
    default:
      return true;
  }
}

int LampHoursOf(const LiveState& state) {
  const auto longest = std::ranges::max_element(state.lamps, {}, &LampState::hours);
  return longest == state.lamps.end() ? -1 : longest->hours;
}
