#pragma once

#include <QString>

#include "snapshots/Snapshot.h"

/// Reads a file of saved settings; "-" is standard input. The error begins with the file's name.
SnapshotContents ReadSettingsFile(const QString& path);

/// A projector's name as part of a file's name. Several projectors may have the same.
QString FileNameOf(const std::string& projector);

/// Where the values that a restored file replaces are kept, for `WriteNewFile`, so that no other
/// one is lost. Beside `file` where `folder` is empty.
QString UndoPath(const QString& file, const QString& folder, const std::string& projector);
