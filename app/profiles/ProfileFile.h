#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

#include "app/profiles/ProjectorProfile.h"
#include "fleet/ProfileFile.h"

struct ProfileFileContents {
  std::vector<ProjectorProfile> projectors;  ///< In the order of the file; empty after an error.
  /// One line that names the place and what is wrong there; empty when all is well.
  QString error;
};

/// The projectors of a profile file, as a host knows them.
ProfileFileContents ReadProfileFile(const QString& fileName);

/// The same from a text; `fileName` stands in error messages.
ProfileFileContents ParseProfiles(const QByteArray& text, const QString& fileName);
