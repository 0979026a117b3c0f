#pragma once

#include <QByteArray>
#include <QJsonObject>

#include "app/bridge/KeyRules.h"
#include "app/bridge/ModelBook.h"
#include "app/bridge/Topics.h"
#include "fleet/FleetProfile.h"
#include "snapshots/SettingTexts.h"

/// Makes the messages by which home automation discovers what a projector has: one device message
/// for each projector. Sensors come from the rows of the status page; numbers, selects, switches
/// and buttons from the kinds of the rows that commands may change.
class Discovery {
 public:
  /// The arguments must outlive it.
  Discovery(ModelBook& models, const SettingTexts& texts, const KeyRules& rules,
            const Topics& topics)
      : models_(models), texts_(texts), rules_(rules), topics_(topics) {}

  /// `id` is the projector's identity as a level of a topic.
  QByteArray MessageOf(const FleetProfile& profile, const QByteArray& id) const;

 private:
  QJsonObject Components(const FleetProfile& profile, const QByteArray& id) const;
  QJsonObject SensorOf(const ModelSetting& setting) const;
  QJsonObject ControlOf(const ModelSettings& settings, const ModelSetting& setting) const;

  ModelBook& models_;
  const SettingTexts& texts_;
  const KeyRules& rules_;
  const Topics& topics_;
};
