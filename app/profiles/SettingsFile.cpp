#include "app/profiles/SettingsFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include "app/profiles/WholeFile.h"

SnapshotContents ReadSettingsFile(const QString& path) {
  constexpr qsizetype kMost = (qsizetype{4} << 20) + 1;  // one more than the reader takes
  const FileBytes file = ReadToEnd(path, kMost);
  if (!file.error.isEmpty()) {
    return {
        {},
        QCoreApplication::translate("SettingsFile", "cannot read %1: %2").arg(path, file.error)};
  }
  SnapshotContents contents = ReadSnapshot(file.bytes);
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

UndoFile::UndoFile(const QString& file, const QString& folder, const std::string& projector) {
  const QFileInfo info(file);
  const QDir place(folder.isEmpty() ? info.path() : folder);
  const QString base = file == "-" ? QString() : info.completeBaseName() + '.';
  const QString time = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss'Z'");
  path_ = place.filePath(base + QStringLiteral("undo.%1.%2.json").arg(FileNameOf(projector), time));
}

bool UndoFile::Keep(const Snapshot& undo) {
  Snapshot kept = undo;
  kept.isUndo = true;
  const QByteArray bytes = WriteSnapshot(kept);
  if (isThere_) {
    error_ = WriteWholeFile(path_, bytes);
  } else {
    const NewFile made = WriteNewFile(path_, bytes);
    error_ = made.error;
    isThere_ = error_.isEmpty();
    if (isThere_) path_ = made.path;
  }
  return error_.isEmpty();
}

QString UndoFile::Error() const {
  if (error_.isEmpty()) return {};
  return isThere_ ? QCoreApplication::translate("SettingsFile", "%1; no more was sent").arg(error_)
                  : QCoreApplication::translate("SettingsFile", "%1; nothing was sent").arg(error_);
}
