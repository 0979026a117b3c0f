#include "fleet/SearchProfiles.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "device/ModelData.h"
#include "fleet/OneLine.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"

namespace AdvancedControl {

namespace {

/// Bytes of what a projector says that a profile takes. What is made of it may have a bit more.
constexpr std::size_t kLongest = 200;

QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString Shortened(const std::string& utf8) { return Text(CutText(utf8, kLongest)); }

/// What is too long to be kept identifies nothing.
QString SerialIdentity(const FoundProjector& found) {
  const bool isNumber = found.serial.find_first_not_of("0 -") != std::string::npos;
  const std::string whole = found.maker + '/' + found.serial;
  return isNumber && whole.size() <= kLongest ? Text("serial:" + whole) : QString();
}

/// The identity that a table of serial numbers gives, which does not know makers.
QString BareIdentity(const FoundProjector& found) {
  return SerialIdentity(found).isEmpty() ? QString() : Text("serial:" + found.serial);
}

/// Takes projectors into a profile file, one after the other.
class Taker {
 public:
  Taker(const QByteArray& profiles, const std::vector<FoundProjector>& found, std::string password);

  void Take(const FoundProjector& found);
  TakenProjectors Result() &&;

 private:
  QStringList IdentitiesOf(const FoundProjector& found) const;
  std::optional<std::size_t> Find(const FoundProjector& found, const QStringList& identities) const;
  void Update(std::size_t profile, const FoundProjector& found, const QStringList& identities);
  void Add(const FoundProjector& found, const QStringList& identities);
  QString FamilyOf(const FoundProjector& found);
  QString FreeName(const FoundProjector& found) const;
  QJsonValue NetworkOf(const FoundProjector& found) const;

  const QByteArray original_;
  const std::string password_;
  ProfileEdits edits_;
  ProfileChecker checker_;
  QJsonObject families_;
  std::vector<QJsonObject> entries_;
  std::vector<ProjectorLink> links_;  // of the entries, also if inherited
  std::map<QString, std::size_t> byIdentity_;
  std::map<QString, std::size_t> byAddress_;
  std::set<QString> names_;
  std::set<QString> sharedSerials_;  // which some makers give to all of a model
  TakenProjectors result_;
  bool hasChanged_ = false;
};

// An IPv6 address can be written in several ways.
QString AddressKey(const QString& address, int port) {
  const QHostAddress numeric(address);
  return (numeric.isNull() ? address : numeric.toString()) + QLatin1Char(':') +
         QString::number(port);
}

/// A password that a profile may have; otherwise nothing.
std::string KeptPassword(std::string password) {
  const QString text = Text(password);
  return password.size() <= NameSlot{}.size() && OneLine(text) == text ? std::move(password)
                                                                       : std::string();
}

Taker::Taker(const QByteArray& profiles, const std::vector<FoundProjector>& found,
             std::string password)
    : original_(profiles),
      password_(KeptPassword(std::move(password))),
      edits_(profiles),
      checker_(profiles) {
  const QJsonObject file = QJsonDocument::fromJson(profiles).object();
  families_ = file["families"].toObject();
  for (const auto& value : file["projectors"].toArray()) {
    const QJsonObject entry = value.toObject();
    const QJsonObject network = entry["connection"].toObject()["network"].toObject();
    names_.insert(entry["name"].toString());
    byIdentity_.emplace(entry["identity"].toString(), entries_.size());
    byAddress_.emplace(AddressKey(network["address"].toString(), network["port"].toInt()),
                       entries_.size());
    entries_.push_back(entry);
  }
  for (const FleetProfile& profile : ParseProfileList(profiles, {}).profiles) {
    links_.push_back(profile.link);
  }
  std::map<QString, std::string> serials;
  for (const FoundProjector& projector : found) {
    for (const QString& serial : {SerialIdentity(projector), BareIdentity(projector)}) {
      const auto [first, isNew] = serials.emplace(serial, projector.address);
      if (!isNew && first->second != projector.address) sharedSerials_.insert(serial);
    }
  }
}

QStringList Taker::IdentitiesOf(const FoundProjector& found) const {
  QStringList identities;
  const QString serial = SerialIdentity(found);
  if (!serial.isEmpty() && !sharedSerials_.contains(serial)) identities.append(serial);
  if (!found.mac.empty()) identities.append(Text("mac:" + found.mac));
  return identities;
}

std::optional<std::size_t> Taker::Find(const FoundProjector& found,
                                       const QStringList& identities) const {
  for (const QString& identity : identities) {
    if (const auto known = byIdentity_.find(identity); known != byIdentity_.end()) {
      return known->second;
    }
  }
  const QString bare = BareIdentity(found);
  if (!bare.isEmpty() && !sharedSerials_.contains(bare)) {
    const auto known = byIdentity_.find(bare);
    if (known != byIdentity_.end()) return known->second;
  }
  auto there = byAddress_.find(AddressKey(Text(found.address), found.port));
  for (const std::string& name : found.hostNames) {
    if (there != byAddress_.end()) break;
    there = byAddress_.find(AddressKey(Text(name), found.port));
  }
  if (there == byAddress_.end()) return std::nullopt;
  // A projector with another identity of the same kind is a different one, even at the same
  // address. Identities of different kinds (a serial number, a MAC, a made-up one) cannot be
  // compared.
  const QString present = entries_[there->second]["identity"].toString();
  const QString kind = present.section(QLatin1Char(':'), 0, 0);
  const bool isOther =
      present != bare && std::ranges::any_of(identities, [&](const QString& identity) {
        return identity.section(QLatin1Char(':'), 0, 0) == kind;
      });
  return isOther ? std::nullopt : std::optional(there->second);
}

QJsonValue Taker::NetworkOf(const FoundProjector& found) const {
  return ConnectionValue({.address = found.address,
                          .port = found.port,
                          .secret = found.needsPassword ? std::string() : password_});
}

void Taker::Update(std::size_t profile, const FoundProjector& found,
                   const QStringList& identities) {
  QJsonObject& entry = entries_[profile];
  JsonEdit::Members members;
  if (!entry.contains("identity") && !identities.isEmpty()) {
    members.push_back({"identity", identities.first()});
    byIdentity_.emplace(identities.first(), profile);
  }
  QJsonObject connection = entry["connection"].toObject();
  QJsonObject network = connection["network"].toObject();
  // What was found is the port of PJLink.
  const int port = links_[profile] == ProjectorLink::PjLink ? found.port : network["port"].toInt();
  const bool isElsewhere = AddressKey(network["address"].toString(), network["port"].toInt()) !=
                           AddressKey(Text(found.address), port);
  // A host name follows the projector by itself.
  const bool isNumeric = !QHostAddress(network["address"].toString()).isNull();
  if (isElsewhere && isNumeric) {
    network["address"] = Text(found.address);
    network["port"] = port;
    connection["network"] = network;
    members.push_back({"connection", connection});
    result_.moved.append(entry["name"].toString());
  } else {
    ++result_.known;
  }
  hasChanged_ = hasChanged_ || !members.empty();
  for (const JsonEdit::Member& member : members) entry[member.key] = member.value;
  edits_.Change(profile, members);
}

QString Taker::FreeName(const FoundProjector& found) const {
  QString name = Shortened(found.name).trimmed();
  if (name.isEmpty()) {
    name = (Shortened(found.model) + QLatin1Char(' ') + Text(found.address)).trimmed();
  }
  QString free = name;
  for (int i = 2; names_.contains(free); ++i) free = QStringLiteral("%1 (%2)").arg(name).arg(i);
  return free;
}

/// A family of the model that lacks nothing; otherwise nothing.
QString Taker::FamilyOf(const FoundProjector& found) {
  if (found.model.empty()) return {};
  for (auto known = families_.begin(); known != families_.end(); ++known) {
    const QJsonObject entry{{"name", "?"}, {"like", known.key()}, {"connection", NetworkOf(found)}};
    const bool isOfModel = known->toObject()["model"].toString() == Text(found.model);
    if (FleetProfile profile; isOfModel && checker_.Check(entry, profile).isEmpty())
      return known.key();
  }
  return {};
}

void Taker::Add(const FoundProjector& found, const QStringList& identities) {
  const QString name = FreeName(found);
  const QString identity = identities.isEmpty() ? Text(MakeIdentity()) : identities.first();
  JsonEdit::Members members{{"name", name}, {"identity", identity}};
  if (const QString family = FamilyOf(found); !family.isEmpty()) {
    members.push_back({"like", family});
  } else {
    members.push_back(
        {"model", found.model.empty() ? QStringLiteral("PJLink") : Shortened(found.model)});
    members.push_back({"dialogType", 0});
    members.push_back({"modelCode", 0});
  }
  members.push_back({"link", LinkName(ProjectorLink::PjLink)});
  members.push_back({"connection", NetworkOf(found)});
  const SourceList sources = SourcesOf(found.inputs, InputCodes::SharedNames);
  QJsonArray inputs;
  for (std::size_t i = 0; i < static_cast<std::size_t>(sources.Size()); ++i) {
    inputs.append(
        QJsonObject{{"name", Text(NameText(sources.names[i]))}, {"value", sources.firstValues[i]}});
  }
  // If it reported none, it is asked later.
  members.push_back({"mySources", inputs});
  edits_.Add(members);
  names_.insert(name);
  byIdentity_.emplace(identity, entries_.size());
  QJsonObject entry;
  for (const JsonEdit::Member& member : members) entry[member.key] = member.value;
  entries_.push_back(entry);
  links_.push_back(ProjectorLink::PjLink);
  result_.added.append(name);
  hasChanged_ = true;
}

void Taker::Take(const FoundProjector& found) {
  const QStringList identities = IdentitiesOf(found);
  if (const auto known = Find(found, identities)) {
    Update(*known, found, identities);
  } else {
    Add(found, identities);
  }
}

TakenProjectors Taker::Result() && {
  result_.text = hasChanged_ ? edits_.Text() : original_;
  return std::move(result_);
}

}  // namespace

std::vector<std::string> HostNamesOf(const std::vector<FleetProfile>& profiles,
                                     std::uint16_t port) {
  std::vector<std::string> names;
  for (const FleetProfile& profile : profiles) {
    const ProfileConnection& connection = profile.connection;
    const bool isName = QHostAddress(QString::fromStdString(connection.address)).isNull();
    if (connection.isNetwork && connection.port == port && isName)
      names.push_back(connection.address);
  }
  return names;
}

TakenProjectors TakeFound(const QByteArray& profiles, const std::vector<FoundProjector>& found,
                          const std::string& password) {
  Taker taker(profiles, found, password);
  for (const FoundProjector& projector : found) taker.Take(projector);
  return std::move(taker).Result();
}

}  // namespace AdvancedControl
