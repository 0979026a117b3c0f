#include "app/desktop/presets/PresetFolder.h"

#include <QCoreApplication>
#include <QDir>
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
  names.sort(Qt::CaseInsensitive);
  return names;
}

QString FileOf(const QString& name) {
  return Path() + QLatin1Char('/') + name + QStringLiteral(".json");
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

}  // namespace PresetFolder
