#pragma once

#include <QByteArray>
#include <QString>

/// Who may read and write a file that is written.
enum class FileAccess {
  Usual,      ///< Those who could before; of a new file, whoever the system's usual mask lets.
  OwnerOnly,  ///< Its owner alone, whatever it was before.
};

/// Writes a file as a whole, or leaves the one that is there untouched; a device or a pipe is
/// written to, and never replaced. One line that says what is wrong; empty when all is well.
QString WriteWholeFile(const QString& path, const QByteArray& bytes,
                       FileAccess access = FileAccess::Usual);

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
