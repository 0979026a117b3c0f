#include "fleet/ProfileCsv.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "fleet/CsvCells.h"
#include "fleet/CsvColumn.h"
#include "fleet/CsvConnection.h"
#include "fleet/ExportedCell.h"
#include "fleet/OneLine.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"

namespace AdvancedControl {

namespace {

constexpr QLatin1String kSerial("serial:");

/// "serial:NUMBER" for "serial:MAKER/NUMBER"; empty for any other identity.
QString WithoutMaker(const QString& identity) {
  const QString number = identity.section(QLatin1Char('/'), 1);
  return identity.startsWith(kSerial) && !number.isEmpty() ? kSerial + number : QString();
}

QString Identity(const CsvCells& cells) {
  if (QString identity = One(cells, CsvColumn::Identity); !identity.isEmpty()) return identity;
  if (const QString serial = One(cells, CsvColumn::Serial); !serial.isEmpty()) {
    return kSerial + serial;
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

/// The cells that differ from what the projector has now, whatever it has inherited or from a tag.
CsvCells News(CsvCells cells, const FleetProfile& present) {
  CompleteConnection(cells, present);
  const bool hasFamily = cells.contains(CsvColumn::Family);
  std::erase_if(cells, [&](const auto& cell) {
    const auto& [column, texts] = cell;
    if (IsOfConnection(column)) return false;
    const bool isSame = texts.size() == 1 && texts.first() == ExportedCell(present, column);
    return isSame && column != CsvColumn::Identity && !(column == CsvColumn::Model && hasFamily);
  });
  return cells;
}

/// Returns false if an earlier column has said it already. Tags and notes add up.
bool AddCell(CsvColumn column, const QString& text, CsvCells& cells) {
  QStringList& texts = cells[column];
  if (texts.isEmpty() || column == CsvColumn::Tags) {
    texts.append(text);
    return true;
  }
  if (column != CsvColumn::Notes) return false;
  texts.first() += QLatin1Char(' ') + text;
  return true;
}

/// Takes rows into a profile file.
class Importer {
 public:
  explicit Importer(const QByteArray& profiles)
      : edits_(profiles),
        checker_(profiles),
        present_(ParseProfileList(profiles, {}).profiles),
        families_(QJsonDocument::fromJson(profiles).object()["families"].toObject()) {
    const QJsonArray entries = QJsonDocument::fromJson(profiles).object()["projectors"].toArray();
    for (const auto& entry : entries) Remember(entry.toObject());
  }

  CsvImport Import(const CsvTable& table);

 private:
  void Remember(const QJsonObject& entry) {
    byName_.emplace(entry["name"].toString(), entries_.size());
    if (entry.contains("identity")) {
      const QString identity = entry["identity"].toString();
      byIdentity_.emplace(identity, entries_.size());
      if (const QString bare = WithoutMaker(identity); !bare.isEmpty()) {
        byNumber_.emplace(bare, entries_.size());
      }
    }
    entries_.push_back(entry);
  }
  std::optional<std::size_t> Find(const QString& identity, const QString& name) const;
  JsonEdit::Members MembersOf(const CsvCells& cells, bool isNew) const;
  void SetModel(const CsvCells& cells, bool isNew, JsonEdit::Members& members) const;
  bool Take(CsvCells cells);

  ProfileEdits edits_;
  ProfileChecker checker_;
  std::vector<FleetProfile> present_;  ///< Of the entries.
  const QJsonObject families_;
  std::vector<QJsonObject> entries_;
  std::map<QString, std::size_t> byName_;
  std::map<QString, std::size_t> byIdentity_;
  std::multimap<QString, std::size_t> byNumber_;  ///< By the identity without its maker.
};

std::optional<std::size_t> Importer::Find(const QString& identity, const QString& name) const {
  if (const auto found = byIdentity_.find(identity); found != byIdentity_.end()) {
    return found->second;
  }
  const auto [first, end] = byNumber_.equal_range(identity);
  if (std::distance(first, end) == 1) return first->second;
  const auto found = byName_.find(name);
  if (found == byName_.end()) return std::nullopt;
  const QString other = entries_[found->second]["identity"].toString();
  if (!identity.isEmpty() && !other.isEmpty() && identity != WithoutMaker(other)) {
    throw WrongRow{ProfileCsv::tr("\"%1\" is the name of another projector, with the identity %2")
                       .arg(name, other)};
  }
  return found->second;
}

void Importer::SetModel(const CsvCells& cells, bool isNew, JsonEdit::Members& members) const {
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

JsonEdit::Members Importer::MembersOf(const CsvCells& cells, bool isNew) const {
  JsonEdit::Members members;
  const auto tell = [&members](const char* key, const QString& text) {
    if (!text.isEmpty()) members.push_back({key, text});
  };
  tell("name", One(cells, CsvColumn::Name));
  tell("identity", Identity(cells));
  SetModel(cells, isNew, members);
  if (cells.contains(CsvColumn::Address)) {
    const CsvConnection reached = ConnectionOf(cells);
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
bool Importer::Take(CsvCells cells) {
  const auto known = Find(Identity(cells), One(cells, CsvColumn::Name));
  if (known) {
    const QString identity = entries_[*known].value("identity").toString();
    if (!identity.isEmpty() && WithoutMaker(identity) == Identity(cells)) {
      cells[CsvColumn::Identity] = {identity};
    }
    cells = News(std::move(cells), present_[*known]);
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
  FleetProfile now;
  if (const QString wrong = checker_.Check(entry, now); !wrong.isEmpty()) throw WrongRow{wrong};
  const QString newName = entry["name"].toString();
  const auto named = byName_.find(newName);
  if (named != byName_.end() && named->second != known) {
    throw WrongRow{ProfileCsv::tr("\"%1\" is the name of another projector").arg(newName)};
  }
  if (!known) {
    edits_.Add(WithIdentity(members));
    Remember(entry);
    present_.push_back(std::move(now));
    return true;
  }
  JsonEdit::Members changed;
  for (const JsonEdit::Member& member : members) {
    if (entries_[*known][member.key] != entry[member.key]) {
      changed.push_back({member.key, entry[member.key]});
    }
  }
  edits_.Change(*known, changed);
  if (!changed.empty()) present_[*known] = std::move(now);
  byName_.erase(entries_[*known]["name"].toString());
  byName_.emplace(newName, *known);
  if (entry.contains("identity")) byIdentity_.emplace(entry["identity"].toString(), *known);
  entries_[*known] = entry;
  return false;
}

CsvImport Importer::Import(const CsvTable& table) {
  CsvImport result{.text = {}, .faults = table.faults};
  std::vector<std::optional<CsvColumn>> columns;
  std::vector<bool> isUnused;
  for (const QString& heading : table.header) {
    columns.push_back(CsvColumnOf(heading));
    isUnused.push_back(!columns.back() && !heading.isEmpty());
  }
  for (const CsvRow& row : table.rows) {
    CsvCells cells;
    for (std::size_t i = 0; i < static_cast<std::size_t>(row.cells.size()); ++i) {
      const QString text = OneLine(row.cells[static_cast<qsizetype>(i)]);
      if (!columns[i] || text.isEmpty()) continue;
      if (!AddCell(*columns[i], text, cells)) isUnused[i] = true;
    }
    try {
      ++(Take(std::move(cells)) ? result.added : result.changed);
    } catch (const WrongRow& wrong) {
      result.faults.push_back({row.line, wrong.reason});
    }
  }
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (isUnused[i]) result.unused.append(table.header[static_cast<qsizetype>(i)]);
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
