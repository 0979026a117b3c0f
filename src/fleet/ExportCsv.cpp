#include "fleet/ExportCsv.h"

#include <string>
#include <utility>
#include <vector>

#include <QStringList>

#include "device/Connect.h"
#include "fleet/Csv.h"
#include "fleet/ProfileCsv.h"
#include "fleet/ProfileEdits.h"

namespace AdvancedControl {

namespace {

constexpr std::pair<CsvColumn, const char*> kExported[] = {
    {CsvColumn::Name, "name"},
    {CsvColumn::Address, "address"},
    {CsvColumn::Port, "port"},
    {CsvColumn::Link, "link"},
    {CsvColumn::Model, "model"},
    {CsvColumn::Identity, "identity"},
    {CsvColumn::Tags, "tags"},
    {CsvColumn::Notes, "notes"},
    {CsvColumn::RatedLampHours, "rated lamp hours"},
    {CsvColumn::Snapshot, "snapshot"}};

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

QByteArray ExportCsv(const std::vector<FleetProfile>& profiles) {
  std::vector<QStringList> rows(1);
  for (const auto& [column, heading] : kExported) rows.front().append(heading);
  for (const FleetProfile& profile : profiles) {
    QStringList& row = rows.emplace_back();
    for (const auto& [column, heading] : kExported) row.append(ExportedCell(profile, column));
  }
  return WriteCsv(rows);
}

}  // namespace AdvancedControl
