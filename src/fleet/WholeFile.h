#pragma once

#include <QByteArray>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Who may read a file that is written.
enum class FileAccess {
  Kept,       ///< As the file that is there; a new one as the process has it (umask).
  OwnerOnly,  ///< Nobody else, whatever the file that is there says: for passwords.
};

/// Writes a file as a whole, or leaves the one that is there untouched; a device or a pipe is
/// written to, and never replaced. Behind links the file that they lead to is written. Returns when
/// the disk has it: what cannot be brought there is an error, even if the file can be seen already.
/// One line that says what is wrong; empty when all is well.
PROJECTOR_FLEET_EXPORT QString WriteWholeFile(const QString& path, const QByteArray& bytes,
                                              FileAccess access = FileAccess::Kept);

/// Says whether a file could be written there, in the same way; changes nothing.
PROJECTOR_FLEET_EXPORT QString CheckWholeFile(const QString& path);

struct NewFile {
  QString path;   ///< Of the file that was written.
  QString error;  ///< One line; empty when all is well.
};

/// Writes a file that was not there before: `path`, or where somebody has that name already, `path`
/// with the first free number from 2 on before its suffix. Others may do the same meanwhile, in
/// this program or another: everybody gets a name of their own. A file has its name only once the
/// disk has all of it.
PROJECTOR_FLEET_EXPORT NewFile WriteNewFile(const QString& path, const QByteArray& bytes);

struct FileBytes {
  QByteArray bytes;
  QString error;  ///< Of the system; empty when all is well.
};

/// Reads a file, a device or a pipe to its end, however slowly it is written, or its first `most`
/// bytes. "-" is standard input, whose mode (blocking or not) is used as it is.
PROJECTOR_FLEET_EXPORT FileBytes ReadToEnd(const QString& path, qsizetype most);

}  // namespace AdvancedControl
