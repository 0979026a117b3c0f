#include "app/simulator/fleet/FleetService.h"

#include <algorithm>
#include <utility>

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "app/profiles/WrittenMark.h"
#include "fleet/ProfileFile.h"
#include "fleet/WholeFile.h"

namespace {

constexpr int kChangesEvery = 10;  // milliseconds
const QString kDone = QStringLiteral("ok");

QString Unknown() {
  return QStringLiteral("error: lines are a fault (%1), count, counts, address, power and errors")
      .arg(QLatin1String(kFaultNames));
}

}  // namespace

FleetService::FleetService(std::vector<FleetProfile> profiles, const FleetOptions& options)
    : options_(options),
      projectors_(std::move(profiles), options.projectors),
      server_(projectors_, options.server) {
  const auto faults = Distribute(options_.faults, Count(), options_.projectors.seed);
  for (std::size_t i = 0; i < faults.size(); ++i) SetFault(i, faults[i]);
  QObject::connect(&changing_, &QTimer::timeout, &changing_, [this, due = 0.0]() mutable {
    due += options_.changes * kChangesEvery / 1000.0;
    const int whole = static_cast<int>(due);
    due -= whole;
    for (int i = 0; i < whole; ++i) {
      server_.Notices().SendChanges(
          projectors_.ChangeOne(Scrambled(options_.projectors.seed, ++changed_)));
    }
  });
}

QString FleetService::Start() {
  if (!server_.Listen()) {
    return QStringLiteral("cannot open the ports of the fleet: %1").arg(qt_error_string());
  }
  if (options_.changes > 0) changing_.start(kChangesEvery);
  return {};
}

std::string FleetService::Addresses() const {
  const std::string all = std::to_string(Count()) + " projectors: ";
  const std::string range =
      AddressText(options_.projectors.firstAddress) + '-' +
      AddressText(options_.projectors.firstAddress + static_cast<std::uint32_t>(Count()) - 1) + ':';
  return all + "tcp://" + range + std::to_string(server_.WirePort()) + '\n' + all + "pjlink://" +
         range + std::to_string(server_.PjLinkPort()) + '\n';
}

QByteArray FleetService::Profiles(const QByteArray& original) const {
  constexpr std::size_t kInABuilding = 100;
  QJsonObject file = QJsonDocument::fromJson(original).object();
  QJsonObject originals;
  for (const auto& value : file["projectors"].toArray()) {
    originals[value.toObject()["name"].toString()] = value;
  }
  QJsonArray entries;
  for (std::size_t i = 0; i < Count(); ++i) {
    const FleetProjector& projector = projectors_.At(i);
    const bool isPjLink =
        options_.link == FleetLink::PjLink || (options_.link == FleetLink::Mixed && i % 2 == 0);
    QJsonObject entry = originals[QString::fromStdString(projectors_.ProfileOf(i).name)].toObject();
    QJsonObject network{{"address", QString::fromStdString(AddressText(projector.address))},
                        {"port", isPjLink ? server_.PjLinkPort() : server_.WirePort()}};
    if (isPjLink && !options_.server.password.empty()) {
      network["secret"] = QString::fromStdString(options_.server.password);
    }
    MarkWritten(entry);
    entry["name"] = QString::fromStdString(projector.name);
    entry["link"] = isPjLink ? QStringLiteral("pjlink") : QStringLiteral("network");
    entry["connection"] = QJsonObject{{"network", network}};
    entry["identity"] = QString::fromStdString(projectors_.IdentityOf(i));
    entry["tags"] = QJsonArray{QStringLiteral("Building %1").arg(i / kInABuilding + 1)};
    // The projector reports its inputs itself, with PJLink's numbers.
    if (isPjLink) entry["mySources"] = QJsonArray();
    entries.append(entry);
  }
  file["projectors"] = entries;
  return QJsonDocument(file).toJson(QJsonDocument::Compact);
}

QString FleetService::WriteCounts() const {
  if (options_.countsFile.isEmpty()) return {};
  QByteArray text =
      "projector,address,connections,most at once,requests,changes,polls,shortest pause in ms\n";
  for (std::size_t i = 0; i < Count(); ++i) {
    const FleetProjector& projector = projectors_.At(i);
    const RequestCounts& counts = projector.counts;
    const bool hasPause = counts.polls > 1;
    text += QByteArray::fromStdString(std::to_string(i + 1)) + ',' +
            QByteArray::fromStdString(AddressText(projector.address));
    for (const std::uint32_t count :
         {counts.connections, counts.mostOpen, counts.requests, counts.changes, counts.polls}) {
      text += ',' + QByteArray::number(count);
    }
    text += ',';
    if (hasPause) text += QByteArray::number(static_cast<qlonglong>(counts.shortestPause.count()));
    text += '\n';
  }
  return WriteWholeFile(options_.countsFile, text);
}

void FleetService::SetFault(std::size_t projector, const ServiceFault& fault) {
  projectors_.SetFault(projector, fault);
}

std::optional<QString> FleetService::Obey(std::optional<std::size_t> projector,
                                          const QString& line) {
  const QString verb = line.section(QLatin1Char(' '), 0, 0);
  const QString what = line.section(QLatin1Char(' '), 1);
  if (verb == QLatin1String("count")) return Count(projector);
  if (projector) return ObeyOne(*projector, verb, what);
  if (verb != QLatin1String("counts")) return Unknown();
  const QString error = WriteCounts();
  return error.isEmpty() ? kDone : QStringLiteral("error: ") + error;
}

QString FleetService::ObeyOne(std::size_t projector, const QString& verb, const QString& what) {
  if (verb == QLatin1String("power") &&
      (what == QLatin1String("0") || what == QLatin1String("1"))) {
    const auto switching =
        what == QLatin1String("1") ? PjtOperation::SetPowerOn : PjtOperation::SetPowerOff;
    projectors_.At(projector).simulated->Execute({switching});
  } else if (verb == QLatin1String("errors") && what.size() == 6 &&
             !what.contains(QRegularExpression(QStringLiteral("[^012]")))) {
    projectors_.SetErrors(projector, what.toStdString());
  } else if (verb == QLatin1String("address")) {
    const QHostAddress address(what);
    const bool isNone = what == QLatin1String("none");
    if (!isNone && (!address.isLoopback() || address.protocol() != QHostAddress::IPv4Protocol)) {
      return QStringLiteral("error: '%1' is not an IPv4 loopback address").arg(what);
    }
    if (!projectors_.Move(projector, isNone ? 0 : address.toIPv4Address())) {
      return QStringLiteral("error: another projector has %1").arg(what);
    }
    server_.Disconnect(projector);
    server_.Notices().Announce(projector);
    return kDone;
  } else {
    return Unknown();
  }
  server_.Notices().SendChanges(projector);
  return kDone;
}

QString FleetService::Count(std::optional<std::size_t> projector) const {
  RequestCounts total;
  const auto add = [&total](const RequestCounts& counts) {
    total.connections += counts.connections;
    total.open += counts.open;
    total.mostOpen = std::max(total.mostOpen, counts.mostOpen);
    total.requests += counts.requests;
    total.changes += counts.changes;
    total.polls += counts.polls;
    total.shortestPause = std::min(total.shortestPause, counts.shortestPause);
  };
  if (projector) {
    add(projectors_.At(*projector).counts);
  } else {
    for (std::size_t i = 0; i < projectors_.Count(); ++i) add(projectors_.At(i).counts);
  }
  const bool hasPause = total.shortestPause != std::chrono::milliseconds::max();
  return QStringLiteral(
             "connections %1 open %2 at-once %3 requests %4 changes %5 polls %6 pause %7")
      .arg(total.connections)
      .arg(total.open)
      .arg(total.mostOpen)
      .arg(total.requests)
      .arg(total.changes)
      .arg(total.polls)
      .arg(hasPause ? QString::number(total.shortestPause.count()) : QStringLiteral("-"));
}
