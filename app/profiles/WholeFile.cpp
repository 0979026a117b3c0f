#include "app/profiles/WholeFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// Unbuffered: what is still in a buffer when the file is committed may get lost unnoticed.
bool OpenAndWrite(QFileDevice& file, const QByteArray& bytes) {
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return false;
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

}  // namespace

QString WriteWholeFile(const QString& path, const QByteArray& bytes) {
  if (IsDevice(path)) {
    QFile device(path);
    return OpenAndWrite(device, bytes) ? QString() : CannotWrite(device);
  }
  QSaveFile file(path);
  return OpenAndWrite(file, bytes) && file.commit() ? QString() : CannotWrite(file);
}

QString CheckWholeFile(const QString& path) {
  if (IsDevice(path)) return {};
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) ? QString() : CannotWrite(file);
}
