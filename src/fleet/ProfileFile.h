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
  /// One line with place and fault; empty on success.
  QString error;
};

struct ProfileFileText {
  QByteArray text;
  QString error;  ///< One line; empty when the file was read.
};

/// Reads a regular file; of one that is larger than a profile file may be, only the beginning.
PROJECTOR_FLEET_EXPORT ProfileFileText ReadProfileText(const QString& fileName);

/// Writes a profile file completely, or leaves the present one unchanged. A file with a password is
/// readable by its owner only. Returns one line with the fault; empty on success.
PROJECTOR_FLEET_EXPORT QString WriteProfileText(const QString& fileName, const QByteArray& text);

/// Reads a profile file; docs/profiles.md describes its format. Projectors with the same
/// description share one model.
PROJECTOR_FLEET_EXPORT ProfileList ReadProfileList(const QString& fileName);

/// Parses the text of a profile file; `fileName` is its name in error messages.
PROJECTOR_FLEET_EXPORT ProfileList ParseProfileList(const QByteArray& text,
                                                    const QString& fileName);

/// Checks entries before they are put into a file.
class PROJECTOR_FLEET_EXPORT ProfileChecker {
 public:
  /// `text` must be a valid profile file, which need not have projectors.
  explicit ProfileChecker(const QByteArray& text);
  ~ProfileChecker();
  ProfileChecker(const ProfileChecker&) = delete;
  ProfileChecker& operator=(const ProfileChecker&) = delete;

  /// One line with the fault; empty if there is none, and `profile` is then the entry's profile,
  /// without what its tags add. Does not compare the entry with others.
  QString Check(const QJsonObject& entry, FleetProfile& profile);

 private:
  class Reader;
  std::unique_ptr<Reader> reader_;
};

}  // namespace AdvancedControl
