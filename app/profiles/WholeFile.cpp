#include "app/profiles/WholeFile.h"

#include <QSaveFile>

QString WriteWholeFile(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  // What is still in the buffer when the file is committed may get lost unnoticed.
  if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
      file.commit()) {
    return {};
  }
  return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
}
