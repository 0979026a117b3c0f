#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <QHostAddress>
#include <QString>
#include <QStringList>

#include "app/simulator/ServedProjectors.h"
#include "app/simulator/fleet/FleetService.h"

/// What the command line asks for.
struct Arguments {
  QString profiles;        ///< Profile file; empty for the one that comes with the program.
  QString writeProfiles;   ///< File to write profiles of the served projectors to; empty for none.
  QStringList projectors;  ///< Names of the projectors to serve; empty for all.
  ServiceOptions service;
  std::optional<FleetOptions> fleet;  ///< Instead of `service`.
  bool control = false;
  std::uint16_t controlPort = 0;
  QString help;  ///< The text for `--help`; empty if it was not given.

  /// What is wrong with the arguments, in one line; empty if nothing is.
  QString error;
};

/// Parses the arguments; the first one is the program's name. Needs an application object.
Arguments ParseArguments(const QStringList& arguments);
