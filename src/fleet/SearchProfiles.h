#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <QByteArray>
#include <QStringList>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/FleetProfile.h"
#include "fleet/SearchInquiry.h"

namespace AdvancedControl {

/// The result of adding found projectors to a profile file.
struct TakenProjectors {
  QByteArray text;        ///< The new text of the profile file.
  QStringList added{};    ///< Names of the new profiles.
  QStringList moved{};    ///< Names of known profiles whose address has changed.
  std::size_t known = 0;  ///< Number of known projectors whose address has not changed.
};

/// The host names of profiles with this port, for `SearchOptions::hostNames`.
PROJECTOR_FLEET_EXPORT std::vector<std::string> HostNamesOf(
    const std::vector<FleetProfile>& profiles, std::uint16_t port);

/// Adds found projectors to the text of a valid profile file, or to `ProfileEdits::kNoProfiles`. If
/// a profile has the identity of a found projector, or `serial:` with its serial number, it gets
/// its address, and on PJLink its port. If a profile without an identity has its address or host
/// name, it gets the identity. Otherwise a profile is added. `password` is the password of the
/// search.
PROJECTOR_FLEET_EXPORT TakenProjectors TakeFound(const QByteArray& profiles,
                                                 const std::vector<FoundProjector>& found,
                                                 const std::string& password);

}  // namespace AdvancedControl
