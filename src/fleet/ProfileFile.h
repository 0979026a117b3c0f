#pragma once

#include <memory>
#include <vector>

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/FleetProfile.h"

namespace AdvancedControl {

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
PROJECTOR_FLEET_EXPORT ProfileFileText ReadProfileText(const QString& fileName);

/// Writes a profile file as a whole, or leaves the one that is there untouched. Nobody but its
/// owner can read one that holds a password. One line that says what is wrong; empty when all is
/// well.
PROJECTOR_FLEET_EXPORT QString WriteProfileText(const QString& fileName, const QByteArray& text);

/// The projectors of a profile file. Its format is described in `docs/profiles.md`. Projectors that
/// the file describes alike share a model.
PROJECTOR_FLEET_EXPORT ProfileList ReadProfileList(const QString& fileName);

/// The same from a text; `fileName` stands in error messages.
PROJECTOR_FLEET_EXPORT ProfileList ParseProfileList(const QByteArray& text,
                                                    const QString& fileName);

/// Says what would be wrong with an entry of a file.
class PROJECTOR_FLEET_EXPORT ProfileChecker {
 public:
  /// `text` must be a profile file without an error, or one that lacks projectors alone.
  explicit ProfileChecker(const QByteArray& text);
  ~ProfileChecker();
  ProfileChecker(const ProfileChecker&) = delete;
  ProfileChecker& operator=(const ProfileChecker&) = delete;

  /// One line; empty when all is well. What other entries say is not looked at.
  QString Check(const QJsonObject& entry);

 private:
  class Reader;
  std::unique_ptr<Reader> reader_;
};

}  // namespace AdvancedControl
