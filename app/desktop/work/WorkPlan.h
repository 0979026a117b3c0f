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

/// Work for a number of projectors, as it is presented to the user.
struct WorkPlan {
  QString title;     ///< "Switch Off"
  QString question;  ///< "Switch off 12 projectors?"; empty if it begins without one.
  std::vector<WorkPart> parts;
  std::vector<std::string> missing{};  ///< Identities of the projectors that cannot do the work.
  /// Of an undo: identities of those that may have been switched, and whose power before is not
  /// known. They are left alone.
  std::vector<std::string> unknown{};
};
