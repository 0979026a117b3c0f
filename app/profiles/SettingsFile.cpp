#include "app/profiles/SettingsFile.h"

#include <cstdio>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

SnapshotContents ReadSettingsFile(const QString& path) {
  QFile file(path);
  const bool isOpen = path == "-" ? file.open(stdin, QIODevice::ReadOnly)  //
                                  : file.open(QIODevice::ReadOnly);
  if (!isOpen) {
    return {{},
            QCoreApplication::translate("SettingsFile", "cannot read %1: %2")
                .arg(path, file.errorString())};
  }
  constexpr qint64 kMost = (qint64{4} << 20) + 1;  // one more than the reader takes
  SnapshotContents contents = ReadSnapshot(file.read(kMost));
  if (!contents.error.isEmpty()) contents.error.prepend(path + ": ");
  return contents;
}

QString FileNameOf(const std::string& projector) {
  QString name = QString::fromStdString(projector).left(64);
  for (QChar& character : name) {
    if (!character.isLetterOrNumber() && character != '-') character = '_';
  }
  return name;
}

QString UndoPath(const QString& file, const QString& folder, const std::string& projector) {
  const QFileInfo info(file);
  const QDir place(folder.isEmpty() ? info.path() : folder);
  const QString base = file == "-" ? QString() : info.completeBaseName() + '.';
  const QString time = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss'Z'");
  return place.filePath(base + QStringLiteral("undo.%1.%2.json").arg(FileNameOf(projector), time));
}
