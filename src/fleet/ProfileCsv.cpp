#include "fleet/ProfileCsv.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "fleet/CsvColumn.h"
#include "fleet/ExportedCell.h"
#include "fleet/OneLine.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"

namespace AdvancedControl {

namespace {

struct ProfileCsv {
  Q_DECLARE_TR_FUNCTIONS(ProfileCsv)
};

/// Thrown for a row that cannot be taken.
struct WrongRow {
  QString reason;
};

/// The cells of a row by their meaning; an empty cell changes nothing. Several columns may be tags.
using Cells = std::map<CsvColumn, QStringList>;

QString One(const Cells& cells, CsvColumn column) {
  const auto found = cells.find(column);
  return found == cells.end() ? QString() : found->second.first();
}

QString Identity(const Cells& cells) {
  if (QString identity = One(cells, CsvColumn::Identity); !identity.isEmpty()) return identity;
  if (const QString serial = One(cells, CsvColumn::Serial); !serial.isEmpty()) {
    return QStringLiteral("serial:") + serial;
  }
  QString mac = One(cells, CsvColumn::Mac).toLower();
  if (mac.isEmpty()) return {};
  mac.replace(QLatin1Char('-'), QLatin1Char(':'));
  static const QRegularExpression kMac(QStringLiteral("^([0-9a-f]{2}:){5}[0-9a-f]{2}$"));
  if (!kMac.match(mac).hasMatch()) {
    throw WrongRow{ProfileCsv::tr("\"%1\" is not a MAC address").arg(One(cells, CsvColumn::Mac))};
  }
  return QStringLiteral("mac:") + mac;
}

std::optional<QString> LinkOf(const QString& text) {
  const QString word = text.toLower();
  if (word == QLatin1String("tcp") || word == QLatin1String("wire"))
    return QStringLiteral("network");
  for (const char* link : {"pjlink", "network", "serial", "simulated"}) {
    if (word == QLatin1String(link)) return word;
  }
  return std::nullopt;
}

struct Reached {
  QString link;
  ProfileConnection connection;
};

// A serial port has none to add.
bool HasPort(const QString& host) {
  if (host.startsWith(QLatin1Char('/'))) return true;
  if (host.startsWith(QLatin1Char('['))) return host.contains(QLatin1String("]:"));
  return host.count(QLatin1Char(':')) == 1;
}

QString WithPort(const QString& host, const QString& port) {
  const bool isIpv6 = host.contains(QLatin1Char(':')) && !host.startsWith(QLatin1Char('['));
  return (isIpv6 ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2")).arg(host, port);
}

// An address as people write it, with its port in it or in a column of its own.
Reached Reach(const Cells& cells) {
  const QString address = One(cells, CsvColumn::Address);
  const QString port = One(cells, CsvColumn::Port);
  QString link;
  if (const QString text = One(cells, CsvColumn::Link); !text.isEmpty()) {
    const auto known = LinkOf(text);
    if (!known) throw WrongRow{ProfileCsv::tr("\"%1\" is not a kind of link").arg(text)};
    link = *known;
  }
  static const QRegularExpression kScheme(QStringLiteral("^[a-z]+://"));
  QString scheme = kScheme.match(address).captured();
  if (scheme.isEmpty() && link == QLatin1String("pjlink")) scheme = QStringLiteral("pjlink://");
  if (scheme.isEmpty() && link == QLatin1String("network")) scheme = QStringLiteral("tcp://");
  QString host = kScheme.match(address).hasMatch() ? address.sliced(scheme.size()) : address;
  if (!port.isEmpty() && !HasPort(host)) host = WithPort(host, port);
  const QString text = scheme + host;
  const ProjectorAddress parsed =
      ParseAddress(text.toStdString(), One(cells, CsvColumn::Password).toStdString());
  if (const auto* error = std::get_if<AddressError>(&parsed)) {
    throw WrongRow{QString::fromStdString(error->text)};
  }
  Reached reached;
  if (const auto* pjLink = std::get_if<PjLinkAddress>(&parsed)) {
    reached.link = QStringLiteral("pjlink");
    reached.connection = {
        .address = pjLink->host, .port = pjLink->port, .secret = pjLink->password};
  } else if (const auto* tcp = std::get_if<TcpAddress>(&parsed)) {
    reached.link = QStringLiteral("network");
    reached.connection = {.address = tcp->host, .port = tcp->port};
  } else {
    const auto& serial = std::get<SerialAddress>(parsed);
    reached.link = QStringLiteral("serial");
    reached.connection = {.isNetwork = false, .address = serial.device, .baud = serial.baud};
  }
  if (link == QLatin1String("simulated")) reached.link = link;
  return reached;
}

/// The cells that differ from what the projector has now, whatever it has inherited or from a tag.
/// Where it is counts as one: what is not given of it stays.
Cells News(Cells cells, const FleetProfile& present) {
  constexpr CsvColumn kWhere[] = {CsvColumn::Address, CsvColumn::Port, CsvColumn::Link,
                                  CsvColumn::Password};
  const auto isNew = [&](CsvColumn column) {
    return cells.contains(column) && One(cells, column) != ExportedCell(present, column);
  };
  const bool isElsewhere = std::ranges::any_of(kWhere, isNew);
  if (isElsewhere && !cells.contains(CsvColumn::Address)) {
    // Another link usually has another port.
    if (!isNew(CsvColumn::Link)) {
      cells.try_emplace(CsvColumn::Port, ExportedCell(present, CsvColumn::Port));
    }
    cells.try_emplace(CsvColumn::Link, ExportedCell(present, CsvColumn::Link));
    // A serial port has none of this.
    const bool isNetwork = present.connection.isNetwork;
    cells.emplace(CsvColumn::Address,
                  isNetwork ? ExportedCell(present, CsvColumn::Address) : QString());
  }
  const bool hasFamily = cells.contains(CsvColumn::Family);
  std::erase_if(cells, [&](const auto& cell) {
    const auto& [column, texts] = cell;
    if (std::ranges::count(kWhere, column) > 0) return !isElsewhere;
    const bool isSame = texts.size() == 1 && texts.first() == ExportedCell(present, column);
    return isSame && column != CsvColumn::Identity && !(column == CsvColumn::Model && hasFamily);
  });
  return cells;
}

/// Takes rows into a profile file.
class Importer {
 public:
  explicit Importer(const QByteArray& profiles)
      : edits_(profiles),
        checker_(profiles),
        families_(QJsonDocument::fromJson(profiles).object()["families"].toObject()) {
    for (FleetProfile& profile : ParseProfileList(profiles, {}).profiles) {
      present_.emplace_back(std::move(profile));
    }
    const QJsonArray entries = QJsonDocument::fromJson(profiles).object()["projectors"].toArray();
    for (const auto& entry : entries) Remember(entry.toObject());
  }

  CsvImport Import(const CsvTable& table);

 private:
  void Remember(const QJsonObject& entry) {
    byName_.emplace(entry["name"].toString(), entries_.size());
    if (entry.contains("identity")) {
      byIdentity_.emplace(entry["identity"].toString(), entries_.size());
    }
    entries_.push_back(entry);
  }
  std::optional<std::size_t> Find(const QString& identity, const QString& name) const;
  JsonEdit::Members MembersOf(const Cells& cells, bool isNew) const;
  void SetModel(const Cells& cells, bool isNew, JsonEdit::Members& members) const;
  bool Take(Cells cells);

  ProfileEdits edits_;
  ProfileChecker checker_;
  const QJsonObject families_;
  std::vector<QJsonObject> entries_;
  std::vector<std::optional<FleetProfile>> present_;  ///< Of entries that no row has changed yet.
  std::map<QString, std::size_t> byName_;
  std::map<QString, std::size_t> byIdentity_;
};

std::optional<std::size_t> Importer::Find(const QString& identity, const QString& name) const {
  if (const auto found = byIdentity_.find(identity); found != byIdentity_.end()) {
    return found->second;
  }
  const auto found = byName_.find(name);
  if (found == byName_.end()) return std::nullopt;
  const QString other = entries_[found->second]["identity"].toString();
  if (!identity.isEmpty() && !other.isEmpty()) {
    throw WrongRow{ProfileCsv::tr("\"%1\" is the name of another projector, with the identity %2")
                       .arg(name, other)};
  }
  return found->second;
}

void Importer::SetModel(const Cells& cells, bool isNew, JsonEdit::Members& members) const {
  QString family = One(cells, CsvColumn::Family);
  const QString model = One(cells, CsvColumn::Model);
  for (auto known = families_.begin(); family.isEmpty() && known != families_.end(); ++known) {
    if (!model.isEmpty() && known->toObject()["model"].toString() == model) family = known.key();
  }
  if (!family.isEmpty()) members.push_back({"like", family});
  const QJsonObject like = families_[family].toObject();
  if (!model.isEmpty() && like["model"].toString() != model) members.push_back({"model", model});
  if (!isNew || !family.isEmpty()) return;
  // Nothing is known of it but what the protocol reports.
  if (model.isEmpty()) members.push_back({"model", "PJLink"});
  members.push_back({"dialogType", 0});
  members.push_back({"modelCode", 0});
}

JsonEdit::Members Importer::MembersOf(const Cells& cells, bool isNew) const {
  JsonEdit::Members members;
  const auto tell = [&members](const char* key, const QString& text) {
    if (!text.isEmpty()) members.push_back({key, text});
  };
  tell("name", One(cells, CsvColumn::Name));
  tell("identity", Identity(cells));
  SetModel(cells, isNew, members);
  if (cells.contains(CsvColumn::Address)) {
    const Reached reached = Reach(cells);
    members.push_back({"link", reached.link});
    members.push_back({"connection", ConnectionValue(reached.connection)});
  }
  if (const auto tags = cells.find(CsvColumn::Tags); tags != cells.end()) {
    QJsonArray all;
    for (const QString& cell : tags->second) {
      for (const QString& tag : cell.split(kTagSeparator, Qt::SkipEmptyParts)) {
        all.append(tag.trimmed());
      }
    }
    members.push_back({"tags", all});
  }
  tell("notes", One(cells, CsvColumn::Notes));
  if (const QString hours = One(cells, CsvColumn::RatedLampHours); !hours.isEmpty()) {
    bool isNumber = false;
    const int number = hours.toInt(&isNumber);
    if (!isNumber) throw WrongRow{ProfileCsv::tr("\"%1\" is not a number of hours").arg(hours)};
    members.push_back({"ratedLampHours", number});
  }
  tell("snapshot", One(cells, CsvColumn::Snapshot));
  return members;
}

// Whether the projector is new.
bool Importer::Take(Cells cells) {
  const auto known = Find(Identity(cells), One(cells, CsvColumn::Name));
  if (known && *known < present_.size() && present_[*known]) {
    cells = News(std::move(cells), *present_[*known]);
  }
  const JsonEdit::Members members = MembersOf(cells, !known);
  QJsonObject entry = known ? entries_[*known] : QJsonObject();
  for (const auto& [key, value] : members) {
    const auto before = entry[key].toObject()["network"].toObject();
    entry[key] = value;
    // Tables seldom have passwords, so a table without one does not remove it.
    QJsonObject network = value.toObject()["network"].toObject();
    if (network.isEmpty() || network.contains("secret")) continue;
    network["secret"] = before["secret"];
    entry[key] = QJsonObject{{"network", network}};
  }
  if (const QString wrong = checker_.Check(entry); !wrong.isEmpty()) throw WrongRow{wrong};
  const QString newName = entry["name"].toString();
  const auto named = byName_.find(newName);
  if (named != byName_.end() && named->second != known) {
    throw WrongRow{ProfileCsv::tr("\"%1\" is the name of another projector").arg(newName)};
  }
  if (!known) {
    edits_.Add(WithIdentity(members));
    Remember(entry);
    return true;
  }
  JsonEdit::Members changed;
  for (const JsonEdit::Member& member : members) {
    if (entries_[*known][member.key] != entry[member.key]) {
      changed.push_back({member.key, entry[member.key]});
    }
  }
  edits_.Change(*known, changed);
  if (!changed.empty() && *known < present_.size()) present_[*known].reset();
  byName_.erase(entries_[*known]["name"].toString());
  byName_.emplace(newName, *known);
  if (entry.contains("identity")) byIdentity_.emplace(entry["identity"].toString(), *known);
  entries_[*known] = entry;
  return false;
}

CsvImport Importer::Import(const CsvTable& table) {
  CsvImport result{.text = {}, .faults = table.faults};
  std::vector<std::optional<CsvColumn>> columns;
  for (const QString& heading : table.header) {
    columns.push_back(CsvColumnOf(heading));
    if (!columns.back() && !heading.isEmpty()) result.unused.append(heading);
  }
  for (const CsvRow& row : table.rows) {
    Cells cells;
    for (qsizetype i = 0; i < row.cells.size(); ++i) {
      const auto column = columns[static_cast<std::size_t>(i)];
      const QString text = OneLine(row.cells[i]);
      if (column && !text.isEmpty()) cells[*column].append(text);
    }
    try {
      ++(Take(std::move(cells)) ? result.added : result.changed);
    } catch (const WrongRow& wrong) {
      result.faults.push_back({row.line, wrong.reason});
    }
  }
  std::ranges::stable_sort(result.faults, {}, &CsvFault::line);
  result.text = edits_.Text();
  return result;
}

}  // namespace

CsvImport ImportCsv(const QByteArray& profiles, const QByteArray& csv) {
  const CsvTable table = ParseCsv(csv);
  const bool hasNames = std::ranges::any_of(
      table.header, [](const QString& heading) { return CsvColumnOf(heading) == CsvColumn::Name; });
  if (!hasNames) {
    const bool isHeader = !table.header.isEmpty();
    return {.text = profiles,
            .faults = table.faults,
            .error = isHeader ? ProfileCsv::tr("the header has no column \"name\"")
                              : table.faults.front().reason};
  }
  CsvImport result = Importer(profiles).Import(table);
  if (result.added + result.changed == 0) result.text = profiles;
  return result;
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
