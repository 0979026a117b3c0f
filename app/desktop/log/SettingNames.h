#pragma once

#include <memory>
#include <optional>

#include <QString>

#include "app/desktop/projectors/ByModel.h"
#include "device/ProjectorChannel.h"
#include "fleet/FleetProfile.h"
#include "snapshots/SettingTexts.h"

/// The value that a command sends or that its reply has: as the projector takes it. Nothing for a
/// command without one.
std::optional<int> ValueOf(const PjtCommand& command, const PjtReply& reply);

/// Says which setting a command is about, and what its value is called, both as in the dialog and
/// in the catalog's language.
class SettingNames {
 public:
  struct Meaning {
    QString setting{};  ///< The simulation's name for a setting without a row; may be empty.
    QString value{};    ///< Empty if the dialog shows no such value.
  };

  SettingNames();
  ~SettingNames();

  Meaning Of(const std::shared_ptr<const ProfileModel>& model, const PjtCommand& command,
             const PjtReply& reply);

 private:
  class OfModel;

  const SettingTexts texts_;
  ByModel<ProfileModel, std::unique_ptr<OfModel>> models_;
};
