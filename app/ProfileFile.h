#pragma once

#include <string>
#include <vector>

#include <QByteArray>
#include <QString>

#include "device/CModelInfo2.h"
#include "device/Connect.h"
#include "simulator/SettingsTable.h"

/// How a projector of a profile file is reached.
enum class ProjectorLink { Simulated, Network, Serial, PjLink };

/// One projector of a profile file: what a host knows of it, and how its simulation is made.
struct ProjectorProfile {
  std::string Name;              ///< Unique in its file; UTF-8.
  CModelInfo2 Model;             ///< With the connection as connection 0.
  std::vector<SettingId> Lacks;  ///< Settings that the simulated model does not have.
  ProjectorLink Link = ProjectorLink::Simulated;

  bool operator==(const ProjectorProfile&) const = default;
};

struct ProfileFileContents {
  std::vector<ProjectorProfile> projectors;  ///< In the order of the file; empty after an error.
  /// One line that names the place and what is wrong there; empty when all is well.
  QString error;
};

struct ProfileFileText {
  QByteArray text;
  QString error;  ///< One line; empty when the file was read.
};

/// What stands in a regular file, up to a little more than a profile file may hold.
ProfileFileText ReadProfileText(const QString& fileName);

/// The projectors of a profile file. Its format is described in `docs/profiles.md`.
ProfileFileContents ReadProfileFile(const QString& fileName);

/// The same from a text; `fileName` stands in error messages.
ProfileFileContents ParseProfiles(const QByteArray& text, const QString& fileName);

/// Where the projector of a profile is; of a simulated one, an error that says so.
ProjectorAddress AddressOf(const ProjectorProfile& profile);

/// "192.0.2.30:4352" or "serial port 1", of connection 0.
QString ConnectionText(const CModelInfo2& model);
