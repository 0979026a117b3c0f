#include "app/profiles/WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// Unbuffered: what is still in a buffer when the file is committed may get lost unnoticed.
bool OpenAndWrite(QFileDevice& file, const QByteArray& bytes, FileAccess access) {
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return false;
  // Before there is anything to read.
  if (access == FileAccess::OwnerOnly &&
      !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
    return false;
  }
  qsizetype written = 0;
  while (written < bytes.size()) {  // a disk that fills up takes a part first
    const qint64 part = file.write(bytes.constData() + written, bytes.size() - written);
    if (part <= 0) return false;
    written += part;
  }
  return true;
}

bool IsDevice(const QString& path) {
  const QFileInfo target(path);
  return target.exists() && !target.isFile() && !target.isDir();
}

QString CannotWrite(const QFileDevice& file) {
  return QCoreApplication::translate("WholeFile", "cannot write %1: %2")
      .arg(file.fileName(), file.errorString());
}

// Also a link that leads nowhere is in the way.
bool IsTaken(const QString& path) {
  const QFileInfo info(path);
  return info.exists() || info.isSymLink();
}

QString Numbered(const QString& path, int number) {
  const QFileInfo info(path);
  return info.dir().filePath(
      QStringLiteral("%1-%2.%3")
          .arg(info.completeBaseName(), QString::number(number), info.suffix()));
}

}  // namespace

QString WriteWholeFile(const QString& path, const QByteArray& bytes, FileAccess access) {
  if (IsDevice(path)) {
    QFile device(path);
    return OpenAndWrite(device, bytes, FileAccess::Kept) ? QString() : CannotWrite(device);
  }
  QSaveFile file(path);
  return OpenAndWrite(file, bytes, access) && file.commit() ? QString() : CannotWrite(file);
}

QString CheckWholeFile(const QString& path) {
  if (IsDevice(path)) return {};
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) ? QString() : CannotWrite(file);
}

NewFile WriteNewFile(const QString& path, const QByteArray& bytes) {
  NewFile made{path, {}};
  for (int number = 2;; ++number) {
    QFile reserved(made.path);
    if (reserved.open(QIODevice::WriteOnly | QIODevice::NewOnly)) break;
    if (!IsTaken(made.path)) return {made.path, CannotWrite(reserved)};
    made.path = Numbered(path, number);
  }
  made.error = WriteWholeFile(made.path, bytes);
  if (!made.error.isEmpty()) QFile::remove(made.path);
  return made;
}
