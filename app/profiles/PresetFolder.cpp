#include "app/profiles/PresetFolder.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "app/profiles/SettingsFile.h"
#include "fleet/WholeFile.h"

namespace PresetFolder {

QString Path() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/advanced-control/presets");
}

QStringList Names() {
  QStringList names;
  for (const QString& file : QDir(Path()).entryList({QStringLiteral("*.json")}, QDir::Files))
    names += file.chopped(5);
  names.removeIf(IsUndoName);  // a preset was applied as a file
  names.sort(Qt::CaseInsensitive);
  return names;
}

// Files whose names begin with a dot are hidden, and most file systems take 255 bytes.
bool IsName(const QString& name) {
  constexpr qsizetype kMostBytes = 200;
  return !name.isEmpty() && name == name.trimmed() && !IsUndoName(name) &&
         !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/')) &&
         name.toUtf8().size() <= kMostBytes &&
         std::ranges::all_of(name, [](QChar one) { return one.isPrint(); });
}

QString FileOf(const QString& name) {
  return Path() + QLatin1Char('/') + name + QStringLiteral(".json");
}

QString FileMeantBy(const QString& text) {
  const bool isOther = text == QLatin1String("-") || QFileInfo::exists(text) || !IsName(text);
  const bool isPreset = !isOther && QFileInfo::exists(FileOf(text));
  return isPreset ? FileOf(text) : text;
}

Contents Read(const QString& name) {
  SettingsFileContents file = ReadSettingsFile(FileOf(name));
  if (!file.error.isEmpty()) return {nullptr, file.error};
  return {std::make_shared<const Snapshot>(std::move(file.snapshot)), {}};
}

QString Write(const QString& name, const Snapshot& snapshot) {
  if (!QDir().mkpath(Path()))
    return QCoreApplication::translate("PresetFolder", "cannot create the folder %1").arg(Path());
  return WriteWholeFile(FileOf(name), WriteSnapshot(snapshot));
}

QString Rename(const QString& from, const QString& to) {
  QFile file(FileOf(from));
  return file.rename(FileOf(to)) ? QString() : file.errorString();
}

QString Remove(const QString& name) {
  QFile file(FileOf(name));
  return file.remove() ? QString() : file.errorString();
}

}  // namespace PresetFolder
