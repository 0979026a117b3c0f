#pragma once

#include <string_view>

#include <QByteArray>
#include <QJsonObject>

#include "fleet/FleetProfile.h"
#include "fleet/LiveState.h"

// The message with a projector's state: JSON, retained. docs/bridge.md describes its members. What
// is not known is null.

QByteArray StateMessage(const FleetProfile& profile, const LiveState& state);

/// The member with the status page's setting of this key; empty if there is none.
std::string_view StateMemberOf(std::string_view statusKey);

// Names in messages and metrics. Any thread.
const char* NameOf(Reachability reachability);
const char* NameOf(PowerState power);
const char* NameOf(ProjectorPart part);
const char* NameOf(ProblemGrade grade);
