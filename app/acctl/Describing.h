#pragma once

#include <string>

#include <QJsonObject>

#include "app/acctl/ValueCodes.h"

/// What a setting is and what it takes, for programs.
QJsonObject DescribeSetting(const ValueTexts& texts, const ModelSetting& setting);

/// "number", "choice", "state" or "action".
std::string NameOf(ModelSetting::Kind kind);
