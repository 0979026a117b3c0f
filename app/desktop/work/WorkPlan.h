#pragma once

#include <string>
#include <vector>

#include <QString>

#include "fleet/FleetTarget.h"
#include "fleet/FleetWork.h"

/// The same work for some projectors.
struct WorkPart {
  FleetWork work;
  std::vector<FleetTarget> targets;
};

/// What is to be done to projectors, and how a person calls it.
struct WorkPlan {
  QString title;     ///< "Switch Off"
  QString question;  ///< "Switch off these 12 projectors?"
  std::vector<WorkPart> parts;
  std::vector<std::string> missing{};  ///< Identities of those that cannot do it.
};
