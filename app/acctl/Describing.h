#pragma once

#include <string>

#include <QJsonObject>

#include "app/acctl/ValueCodes.h"

/// Describes a setting and its possible values in JSON.
QJsonObject DescribeSetting(const ValueTexts& texts, const ModelSetting& setting);

/// "number", "choice", "state" or "action".
std::string NameOf(ModelSetting::Kind kind);
