#pragma once

#include <string>
#include <vector>

#include <QString>

#include "device/CModelInfo2.h"
#include "device/Connect.h"
#include "device/ModelDataIntake.h"
#include "fleet/FleetProfile.h"
#include "simulator/SettingsTable.h"

/// A projector of a profile file as a host knows it, with a model record of its own.
struct ProjectorProfile {
  std::string Name;              ///< Unique in its file; UTF-8.
  CModelInfo2 Model;             ///< With the connection as connection 0.
  std::vector<SettingId> Lacks;  ///< Settings that the simulated model does not have.
  ProjectorLink Link = ProjectorLink::Simulated;

  bool operator==(const ProjectorProfile&) const = default;
};

ProjectorProfile MakeProjectorProfile(const FleetProfile& profile);
FleetProfile MakeFleetProfile(const ProjectorProfile& profile);

/// Where the projector of a profile is; of a simulated one, an error that says so.
ProjectorAddress AddressOf(const ProjectorProfile& profile);

/// "192.0.2.30:4352" or "serial port 1", of connection 0.
QString ConnectionText(const CModelInfo2& model);
