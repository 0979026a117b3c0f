#pragma once

#include <QString>

#include "snapshots/Snapshot.h"

/// Reads a file of saved settings; "-" is standard input. The error begins with the file's name.
SnapshotContents ReadSettingsFile(const QString& path);

/// A projector's name as part of a file's name.
QString FileNameOf(const std::string& projector);

/// Where the values that a restored file replaces are kept: a name that nobody has yet, so that an
/// older one is not lost when the work is done again. Beside `file` where `folder` is empty.
QString UndoPath(const QString& file, const QString& folder, const std::string& projector);
