#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "device/CModelInfo2.h"
#include "device/Connect.h"
#include "device/ModelData.h"
#include "fleet/FleetTarget.h"
#include "simulator/Setting.h"

namespace AdvancedControl {

/// How a projector of a profile file is reached.
enum class ProjectorLink : std::uint8_t { Simulated, Network, Serial, PjLink };

/// What projectors of one model have in common. They share it, as it takes about 30 kilobytes.
struct ProfileModel {
  CModelInfo2 info;              ///< Without a connection.
  std::vector<SettingId> lacks;  ///< Settings that the simulated model does not have.
  ModelData data;                ///< The same as `info`, as the libraries use it.
};

/// Where a projector is: a host and port, or a serial line.
struct ProfileConnection {
  bool isNetwork = true;
  std::string address{};  ///< The host's name or IP address, or the path of the serial port.
  std::int32_t port = 0;  ///< Of the host; or the number of a serial port without a path, from 0.
  std::int32_t baud = 0;  ///< Of a serial port, in bits per second; 0 for the usual speed.
  std::string secret{};   ///< The password, empty for none.

  bool operator==(const ProfileConnection&) const = default;
};

/// One projector of a profile file. Texts are UTF-8.
struct FleetProfile {
  std::string name;  ///< Unique in its file.
  std::shared_ptr<const ProfileModel> model;
  ProfileConnection connection;
  ProjectorLink link = ProjectorLink::Simulated;

  /// Does not change when the projector gets another name or address: "mac:00:00:5e:00:53:01",
  /// "serial:12345", or "id:" and any text. Unique in its file; may be empty.
  std::string identity{};
  std::vector<std::string> tags{};
  std::string notes{};
  int ratedLampHours = 0;  ///< 0 if not known.
  std::string snapshot{};  ///< Name of the snapshot that it should match; empty for none.
};

/// Identifies a projector within its file: its identity, or else its name.
PROJECTOR_FLEET_EXPORT std::string FleetIdOf(const FleetProfile& profile);

/// A new identity for a projector whose protocol reports none.
PROJECTOR_FLEET_EXPORT std::string MakeIdentity();

/// Where a projector is; an error if it is simulated.
PROJECTOR_FLEET_EXPORT ProjectorAddress AddressOf(ProjectorLink link,
                                                  const ProfileConnection& connection);
inline ProjectorAddress AddressOf(const FleetProfile& profile) {
  return AddressOf(profile.link, profile.connection);
}

/// What a fleet needs to watch the projector.
PROJECTOR_FLEET_EXPORT FleetTarget TargetOf(const FleetProfile& profile);

/// What the dialog needs to open the projector: its model, with the connection as connection 0.
PROJECTOR_FLEET_EXPORT CModelInfo2 ModelInfoOf(const FleetProfile& profile);

/// "192.0.2.30:4352" or "serial port 1"
PROJECTOR_FLEET_EXPORT QString ConnectionText(const ProfileConnection& connection);

}  // namespace AdvancedControl
