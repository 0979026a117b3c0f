#include "app/simulator/ServedProjectors.h"

#include <utility>

#include <QJsonArray>
#include <QJsonDocument>

#include "app/profiles/ProjectorAccess.h"
#include "app/profiles/WrittenMark.h"
#include "app/simulator/PseudoTerminal.h"
#include "device/ModelDataIntake.h"
#include "simulator/SimulatedProjector.h"

namespace {

std::shared_ptr<FaultChannel> Simulate(const FleetProfile& profile) {
  return std::make_shared<FaultChannel>(
      std::make_shared<SimulatedProjector>(SimulatedModelOf(profile)));
}

PjLinkServer::Options PjLinkOptions(const FleetProfile& profile, const std::string& password) {
  ServedProjector served;
  served.inputs = InputsOf(profile.model->info.MySourceList);
  served.texts["NAME"] = profile.name;
  served.texts["INF2"] = profile.model->info.ModelName;
  return {.password = password, .served = std::move(served)};
}

// Adds "NAME (CONNECTION)", or "NAME (CONNECTION 2)" and so on if the name is taken.
QString AddName(QStringList& names, const QString& name, const QString& connection) {
  QString added = QStringLiteral("%1 (%2)").arg(name, connection);
  for (int i = 2; names.contains(added); ++i) {
    added = QStringLiteral("%1 (%2 %3)").arg(name, connection).arg(i);
  }
  names.append(added);
  return added;
}

}  // namespace

ServedProjectors::ServedProjectors(const std::vector<FleetProfile>& profiles,
                                   const ServiceOptions& options)
    : options_(options) {
  for (const FleetProfile& profile : profiles) {
    if (!Serve(profile)) return;
  }
  const auto faults = Distribute(options_.faults, Count(), options_.seed);
  for (std::size_t i = 0; i < faults.size(); ++i) SetFault(i, faults[i]);
}

bool ServedProjectors::Serve(const FleetProfile& profile) {
  Service service{.name = profile.name, .channel = Simulate(profile), .wire = {}, .pjLink = {}};
  const auto port = [this](std::size_t offset) {
    const std::size_t place = options_.firstPort + 2 * services_.size() + offset;
    return static_cast<std::uint16_t>(options_.firstPort == 0 ? 0 : place);
  };
  const auto cannot = [&](const QString& what) {
    error_ = QString::fromStdString(profile.name) + QStringLiteral(": ") + what;
    return false;
  };
  if (options_.firstPort + 2 * services_.size() + 1 > UINT16_MAX) {
    return cannot(QStringLiteral("no ports are left; the last is %1").arg(UINT16_MAX));
  }
  service.wire = std::make_unique<WireServer>(service.channel);
  service.wirePort = service.wire->Listen(options_.address, port(0));
  if (service.wirePort == 0) {
    return cannot(QStringLiteral("port %1: %2")
                      .arg(port(0))
                      .arg(QString::fromStdString(service.wire->ErrorText())));
  }
  service.pjLink =
      std::make_unique<PjLinkServer>(service.channel, PjLinkOptions(profile, options_.password));
  if (!service.pjLink->Listen(options_.address.toString().toStdString(), port(1))) {
    return cannot(QStringLiteral("port %1 cannot be had").arg(port(1)));
  }
  service.pjLinkPort = service.pjLink->Port();
  if (options_.serial) {
    auto terminal = std::make_unique<PseudoTerminal>();
    if (!terminal->IsOpen()) return cannot(terminal->errorString());
    service.terminal = terminal->Path();
    service.wire->Serve(std::move(terminal));
  }
  services_.push_back(std::move(service));
  return true;
}

/// In the form that an address needs.
std::string ServedProjectors::Host() const {
  QString host = options_.address.toString();
  if (host.contains(QLatin1Char(':'))) host = QLatin1Char('[') + host + QLatin1Char(']');
  return host.toStdString();
}

ServedAddresses ServedProjectors::WireAddresses() const {
  ServedAddresses addresses;
  for (const Service& service : services_) {
    addresses[service.name] = "tcp://" + Host() + ':' + std::to_string(service.wirePort);
  }
  return addresses;
}

std::string ServedProjectors::Addresses() const {
  const std::string address = Host();
  std::string lines;
  for (const Service& service : services_) {
    const std::string name = service.name + ": ";
    const auto add = [&](const char* kind, int port) {
      lines.append(name).append(kind).append(address).append(":").append(std::to_string(port)) +=
          '\n';
    };
    add("tcp://", service.wirePort);
    add("pjlink://", service.pjLinkPort);
    if (!service.terminal.empty()) lines += name + "serial://" + service.terminal + '\n';
  }
  return lines;
}

QJsonObject ServedProjectors::NetworkConnection(int port, const std::string& password) const {
  QJsonObject network{{"address", options_.address.toString()}, {"port", port}};
  if (!password.empty()) network["secret"] = QString::fromStdString(password);
  return {{"network", network}};
}

// Lists each projector over TCP, and again for each of its other connections.
QByteArray ServedProjectors::Profiles(const QByteArray& original) const {
  QJsonObject file = QJsonDocument::fromJson(original).object();
  QJsonArray entries;
  QStringList names;
  for (const Service& service : services_) names.append(QString::fromStdString(service.name));
  for (const auto& value : file["projectors"].toArray()) {
    QJsonObject entry = value.toObject();
    MarkWritten(entry);
    const QString name = entry["name"].toString();
    const auto service = std::ranges::find(services_, name.toStdString(), &Service::name);
    if (service == services_.end()) continue;
    const auto add = [&](const QString& kind, const char* link, const QJsonObject& connection) {
      if (!kind.isEmpty()) entry["name"] = AddName(names, name, kind);
      entry["link"] = QLatin1String(link);
      entry["connection"] = connection;
      entries.append(entry);
    };
    add({}, "network", NetworkConnection(service->wirePort, {}));
    entry.remove("identity");  // which must be unique
    // PJLink numbers the inputs differently, and the projector reports those numbers.
    const QJsonValue sources = entry.value("mySources");
    entry["mySources"] = QJsonArray();
    add("PJLink", "pjlink", NetworkConnection(service->pjLinkPort, options_.password));
    entry.remove("mySources");
    if (!sources.isUndefined()) entry["mySources"] = sources;
    if (service->terminal.empty()) continue;
    const QJsonObject serial{{"port", 1}, {"device", QString::fromStdString(service->terminal)}};
    add("serial", "serial", {{"serial", serial}});
  }
  file["projectors"] = entries;
  return QJsonDocument(file).toJson();
}

void ServedProjectors::SetFault(std::size_t projector, const ServiceFault& fault) {
  services_[projector].channel->SetFault(Fault{.kind = fault.projector});
  services_[projector].wire->SetFault(fault.line);
  services_[projector].pjLink->SetFault(fault.line);
}
