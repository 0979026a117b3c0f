#pragma once

#include <QString>
#include <QTemporaryDir>

#include "app/desktop/profiles/ProfileDocument.h"

constexpr int kManyProjectors = 10'000;

/// Writes profiles of that many rooms, at addresses where nothing answers, to a file of the folder,
/// and returns its name.
QString WriteProfiles(const QTemporaryDir& folder, int count);

/// Ends the program if the file cannot be read.
ProfileDocument LoadProfiles(const QString& fileName);
