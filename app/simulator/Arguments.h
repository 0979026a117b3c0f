#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <QHostAddress>
#include <QString>
#include <QStringList>

#include "app/simulator/ServedProjectors.h"
#include "app/simulator/fleet/FleetService.h"

/// What the program was asked to do.
struct Arguments {
  QString profiles;        ///< Empty for the file that comes with the program.
  QString writeProfiles;   ///< Where to write profiles of the served projectors; empty for nowhere.
  QStringList projectors;  ///< Names of those to serve; empty for all.
  ServiceOptions service;
  std::optional<FleetOptions> fleet;  ///< Instead of `service`.
  bool control = false;
  std::uint16_t controlPort = 0;
  QString help;  ///< Not empty when help was asked for.

  /// One line; empty when the arguments can be followed.
  QString error;
};

/// Reads the arguments, the first of which is the program's name. Needs an application object.
Arguments ParseArguments(const QStringList& arguments);
