#include "app/profiles/SettingsFile.h"

#include <utility>

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

#include "fleet/JsonLines.h"
#include "fleet/WholeFile.h"

namespace {

/// "picture.tint: " for the path of a value that is part of this setting; else empty.
QString KeyAt(const Snapshot& snapshot, const QString& path) {
  const bool isBeforehand = path.startsWith("beforehand[");
  if (!isBeforehand && !path.startsWith("settings[")) return {};
  const auto& settings = isBeforehand ? snapshot.beforehand : snapshot.settings;
  const auto index = path.section('[', 1).section(']', 0, 0).toULongLong();
  return index < settings.size() ? QString::fromStdString(settings[index].key) + ": " : QString();
}

}  // namespace

SettingsFileContents ReadSettingsFile(const QString& path) {
  // One byte more than the reader takes shows that the file is too large.
  const FileBytes file = ReadToEnd(path, JsonLines::Limits().bytes + 1);
  if (!file.error.isEmpty()) {
    return {.error = QCoreApplication::translate("SettingsFile", "cannot read %1: %2")
                         .arg(path, file.error)};
  }
  const bool isStream = path == "-";
  return ParseSettingsFile(
      file.bytes, isStream ? QCoreApplication::translate("SettingsFile", "standard input") : path);
}

SettingsFileContents ParseSettingsFile(const QByteArray& text, const QString& name) {
  SettingsFileContents contents{.name = name, .text = text};
  const auto wrong = [&](int line, const QString& message) {
    contents.error = QStringLiteral("%1:%2: ").arg(name).arg(line) + message;
    return contents;
  };
  if (const auto fault = JsonLines::FaultOf(text, {})) {
    return wrong(JsonLines::PlaceOf(text, fault->offset).line, fault->message);
  }
  QJsonParseError syntax;
  QJsonDocument::fromJson(text, &syntax);
  if (syntax.error != QJsonParseError::NoError) {
    return wrong(JsonLines::PlaceOf(text, syntax.offset).line, syntax.errorString());
  }
  const JsonLines lines(text);
  SnapshotContents read = ReadSnapshot(text);
  if (!read.error.isEmpty()) return wrong(lines.LineOf(read.path), read.error);
  if (const auto twice = lines.RepeatedKey()) {
    const QString what = QCoreApplication::translate("SettingsFile", "%1 is here twice");
    return wrong(twice->line, KeyAt(read.snapshot, twice->path) + what.arg(twice->path));
  }
  contents.snapshot = std::move(read.snapshot);
  return contents;
}

QString FileNameOf(const std::string& projector) {
  QString name = QString::fromStdString(projector).left(64);
  for (QChar& character : name) {
    if (!character.isLetterOrNumber() && character != '-') character = '_';
  }
  return name;
}

QString OwnFileIn(const QDir& folder, const std::string& projector) {
  const QString base = folder.filePath(FileNameOf(projector));
  for (int number = 1;; ++number) {
    const QString path = base + (number == 1 ? QString() : '-' + QString::number(number)) + ".json";
    const QFileInfo info(path);
    if (!info.exists()) return {};
    const SettingsFileContents file =
        info.isFile() ? ReadSettingsFile(path) : SettingsFileContents();
    if (file.error.isEmpty() && file.snapshot.projector == projector && !file.snapshot.isUndo)
      return path;
  }
}

QString UndoFileOf(const QString& path) {
  const QFileInfo info(path);
  const QString time = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss'Z'");
  return info.dir().filePath(QStringLiteral("%1.undo.%2.json").arg(info.completeBaseName(), time));
}

bool IsUndoName(const QString& name) {
  static const QRegularExpression undo(QStringLiteral(R"(\.undo\.\d{8}T\d{6}Z(-\d+)?$)"));
  return undo.match(name).hasMatch();
}
