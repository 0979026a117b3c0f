#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

#include "fleet/FleetProfile.h"

inline namespace AdvancedControl {

struct ProfileList {
  std::vector<FleetProfile> profiles;  ///< In the order of the file; empty after an error.
  /// One line that names the place and what is wrong there; empty when all is well.
  QString error;
};

struct ProfileFileText {
  QByteArray text;
  QString error;  ///< One line; empty when the file was read.
};

/// What stands in a regular file, up to a little more than a profile file may hold.
ProfileFileText ReadProfileText(const QString& fileName);

/// Writes a profile file as a whole, or leaves the one that is there untouched. Nobody but its
/// owner can read one that holds a password. One line that says what is wrong; empty when all is
/// well.
QString WriteProfileText(const QString& fileName, const QByteArray& text);

/// The projectors of a profile file. Its format is described in `docs/profiles.md`. Projectors that
/// the file describes alike share a model.
ProfileList ReadProfileList(const QString& fileName);

/// The same from a text; `fileName` stands in error messages.
ProfileList ParseProfileList(const QByteArray& text, const QString& fileName);

}  // namespace AdvancedControl
