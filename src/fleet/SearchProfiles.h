#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <QByteArray>
#include <QStringList>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/SearchInquiry.h"

namespace AdvancedControl {

/// What came of found projectors in a profile file.
struct TakenProjectors {
  QByteArray text;        ///< Of the profile file, as it was if nothing has changed.
  QStringList added{};    ///< Names of profiles.
  QStringList moved{};    ///< Of those that were known and have another address now.
  std::size_t known = 0;  ///< The others.
};

/// Takes found projectors into the text of a profile file without an error, or into
/// `ProfileEdits::kNoProfiles`. One with the identity of a profile is that profile's, wherever it
/// is now. One at the address of a profile without an identity is that profile's, which then gets
/// the identity. Each other one becomes a profile. `password` is what they were asked with.
PROJECTOR_FLEET_EXPORT TakenProjectors TakeFound(const QByteArray& profiles,
                                                 const std::vector<FoundProjector>& found,
                                                 const std::string& password);

}  // namespace AdvancedControl
