#pragma once

#include <QByteArray>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Who may read a written file.
enum class FileAccess {
  Kept,       ///< As before; a new file according to the umask.
  OwnerOnly,  ///< Only the owner, for passwords, whatever the present file's permissions are.
};

/// Writes a file completely, or leaves the present one unchanged. It keeps its owner and its group
/// as far as this process may give them, and is readable by nobody else than before. Follows links.
/// A device or a pipe is written to and not replaced. Returns when the data is on the disk; if that
/// fails, it is an error even if the file has already been replaced. Returns one line with the
/// fault; empty on success.
PROJECTOR_FLEET_EXPORT QString WriteWholeFile(const QString& path, const QByteArray& bytes,
                                              FileAccess access = FileAccess::Kept);

/// Checks whether a file could be written there. Changes nothing. Returns as `WriteWholeFile`.
PROJECTOR_FLEET_EXPORT QString CheckWholeFile(const QString& path);

struct NewFile {
  QString path;   ///< The written file.
  QString error;  ///< One line; empty on success.
};

/// Writes a new file: `path`, or if that name is taken, `path` with the first free number from 2 on
/// before its suffix. Safe against other programs that do the same at the same time. The file gets
/// its name when all of it is on the disk.
PROJECTOR_FLEET_EXPORT NewFile WriteNewFile(const QString& path, const QByteArray& bytes);

/// The names of files that were being written when their program was killed, as a wildcard. They
/// are hidden, and nothing reads them.
inline constexpr char kUnfinishedFiles[] = ".advanced-control-*";

struct FileBytes {
  QByteArray bytes;
  QString error;  ///< The system's message; empty on success.
};

/// Reads a file, a device or a pipe to its end, or its first `most` bytes. Waits for a pipe that is
/// written slowly. "-" is standard input, which may be in non-blocking mode.
PROJECTOR_FLEET_EXPORT FileBytes ReadToEnd(const QString& path, qsizetype most);

}  // namespace AdvancedControl
