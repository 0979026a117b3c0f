#include "fleet/ExportedCell.h"

#include <string>

#include <QStringList>

#include "device/Connect.h"
#include "fleet/ProfileEdits.h"

namespace AdvancedControl {

namespace {

QString Text(const std::string& utf8) { return QString::fromStdString(utf8); }

// As `ParseAddress` reads it.
QString SerialText(const ProfileConnection& connection) {
  const QString device =
      Text(connection.address.empty() ? SerialDevice(connection.port) : connection.address);
  return connection.baud == 0 ? device : QStringLiteral("%1?%2").arg(device).arg(connection.baud);
}

QString TagsText(const FleetProfile& profile) {
  QStringList tags;
  for (const std::string& tag : profile.tags) tags.append(Text(tag));
  return tags.join(kTagSeparator);
}

}  // namespace

QString ExportedCell(const FleetProfile& profile, CsvColumn column) {
  const ProfileConnection& connection = profile.connection;
  switch (column) {
    case CsvColumn::Name:
      return Text(profile.name);
    case CsvColumn::Address:
      return connection.isNetwork ? Text(connection.address) : SerialText(connection);
    case CsvColumn::Port:
      return connection.isNetwork ? QString::number(connection.port) : QString();
    case CsvColumn::Link:
      return LinkName(profile.link);
    case CsvColumn::Model:
      return Text(profile.model->info.ModelName);
    case CsvColumn::Identity:
      return Text(profile.identity);
    case CsvColumn::Tags:
      return TagsText(profile);
    case CsvColumn::Notes:
      return Text(profile.notes);
    case CsvColumn::RatedLampHours:
      return profile.ratedLampHours > 0 ? QString::number(profile.ratedLampHours) : QString();
    case CsvColumn::Snapshot:
      return Text(profile.snapshot);
    default:
      return {};
  }
}

}  // namespace AdvancedControl
