#include "app/profiles/WholeFile.h"

#include <QCoreApplication>
#include <QSaveFile>

namespace {

QString CannotWrite(const QSaveFile& file) {
  return QCoreApplication::translate("WholeFile", "cannot write %1: %2")
      .arg(file.fileName(), file.errorString());
}

}  // namespace

QString WriteWholeFile(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  // What is still in the buffer when the file is committed may get lost unnoticed.
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
                         file.flush() && file.commit();
  return isWritten ? QString() : CannotWrite(file);
}

QString CheckWholeFile(const QString& path) {
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) ? QString() : CannotWrite(file);
}
