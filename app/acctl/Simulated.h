#pragma once

#include "app/acctl/Work.h"

/// Whether a projector is only simulated: by a simulator program that serves it, or else here.
inline bool IsSimulated(const FleetProfile& profile, const Arguments& arguments) {
  return arguments.connecting.address.empty() && profile.link == ProjectorLink::Simulated;
}

/// Whether this program itself simulates the projector, so that no change lasts longer than the
/// run.
inline bool IsSimulatedHere(const FleetProfile& profile, const Work& work) {
  return IsSimulated(profile, work.arguments) && !work.served.contains(profile.name);
}
