#include "app/profiles/WholeFile.h"

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

QString ErrorOf(const QString& path, const QFileDevice& file) {
  return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
}

}  // namespace

QString WriteWholeFile(const QString& path, const QByteArray& bytes) {
  const QFileInfo target(path);
  if (target.exists() && !target.isFile() && !target.isDir()) {
    QFile device(path);
    return OpenAndWrite(device, bytes) ? QString() : ErrorOf(path, device);
  }
  QSaveFile file(path);
  return OpenAndWrite(file, bytes) && file.commit() ? QString() : ErrorOf(path, file);
}
