#pragma once

#include <QByteArray>
#include <QString>

/// Who may read a file that is written.
enum class FileAccess {
  Kept,       ///< As the file that is there; a new one as the process has it (umask).
  OwnerOnly,  ///< Nobody else, whatever the file that is there says: for passwords.
};

/// Writes a file as a whole, or leaves the one that is there untouched; a device or a pipe is
/// written to, and never replaced. One line that says what is wrong; empty when all is well.
QString WriteWholeFile(const QString& path, const QByteArray& bytes,
                       FileAccess access = FileAccess::Kept);

/// Says whether a file could be written there, in the same way; changes nothing.
QString CheckWholeFile(const QString& path);

struct NewFile {
  QString path;   ///< Of the file that was written.
  QString error;  ///< One line; empty when all is well.
};

/// Writes a file that was not there before: `path`, or where somebody has that name already, `path`
/// with the first free number from 2 on before its suffix. Others may do the same meanwhile, in
/// this program or another: everybody gets a name of their own.
NewFile WriteNewFile(const QString& path, const QByteArray& bytes);
