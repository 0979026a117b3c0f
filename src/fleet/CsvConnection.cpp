#include "fleet/CsvConnection.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <variant>

#include <QRegularExpression>

#include "device/Connect.h"
#include "fleet/ExportedCell.h"

namespace AdvancedControl {

namespace {

constexpr CsvColumn kColumns[] = {CsvColumn::Address, CsvColumn::Port, CsvColumn::Link,
                                  CsvColumn::Password};

std::optional<QString> LinkOf(const QString& text) {
  const QString word = text.toLower();
  if (word == QLatin1String("tcp") || word == QLatin1String("wire"))
    return QStringLiteral("network");
  for (const char* link : {"pjlink", "network", "serial", "simulated"}) {
    if (word == QLatin1String(link)) return word;
  }
  return std::nullopt;
}

QString SchemeOf(const QString& address) {
  static const QRegularExpression kScheme(QStringLiteral("^[a-z]+://"));
  return kScheme.match(address).captured();
}

// Empty if the link does not say it.
QString SchemeFor(const QString& link) {
  if (link == QLatin1String("pjlink")) return QStringLiteral("pjlink://");
  if (link == QLatin1String("network")) return QStringLiteral("tcp://");
  return link == QLatin1String("serial") ? QStringLiteral("serial://") : QString();
}

bool IsSerial(const QString& address) {
  return address.startsWith(QLatin1Char('/')) || SchemeOf(address) == QLatin1String("serial://");
}

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

}  // namespace

bool IsOfConnection(CsvColumn column) {
  return std::ranges::find(kColumns, column) != std::end(kColumns);
}

CsvConnection ConnectionOf(const CsvCells& cells) {
  const QString address = One(cells, CsvColumn::Address);
  const QString port = One(cells, CsvColumn::Port);
  QString link;
  if (const QString text = One(cells, CsvColumn::Link); !text.isEmpty()) {
    const auto known = LinkOf(text);
    if (!known) throw WrongRow{ProfileCsv::tr("\"%1\" is not a kind of link").arg(text)};
    link = *known;
  }
  // What contradicts the link is refused as a part of the address.
  const QString scheme = SchemeFor(link).isEmpty() ? SchemeOf(address) : SchemeFor(link);
  QString host = address.startsWith(scheme) ? address.sliced(scheme.size()) : address;
  if (!port.isEmpty() && !HasPort(host)) host = WithPort(host, port);
  const QString text = scheme + host;
  const ProjectorAddress parsed =
      ParseAddress(text.toStdString(), One(cells, CsvColumn::Password).toStdString());
  if (const auto* error = std::get_if<AddressError>(&parsed)) {
    throw WrongRow{QString::fromStdString(error->text)};
  }
  CsvConnection reached;
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

void CompleteConnection(CsvCells& cells, const FleetProfile& present) {
  if (const auto link = LinkOf(One(cells, CsvColumn::Link))) cells[CsvColumn::Link] = {*link};
  const auto isNew = [&](CsvColumn column) {
    return cells.contains(column) && One(cells, column) != ExportedCell(present, column);
  };
  if (std::ranges::none_of(kColumns, isNew)) {
    std::erase_if(cells, [](const auto& cell) { return IsOfConnection(cell.first); });
    return;
  }
  const QString address = One(cells, CsvColumn::Address);
  const bool isNetwork = present.connection.isNetwork;
  if (!isNetwork && IsSerial(address) && present.connection.baud != 0 &&
      !address.contains(QLatin1Char('?'))) {
    cells[CsvColumn::Address] = {QStringLiteral("%1?%2").arg(address).arg(present.connection.baud)};
  }
  const bool isHost = SchemeOf(address).isEmpty() && !IsSerial(address);
  if (!address.isEmpty() && !(isNetwork && isHost)) return;
  // Another link usually has another port.
  if (!isNew(CsvColumn::Link)) {
    cells.try_emplace(CsvColumn::Port, ExportedCell(present, CsvColumn::Port));
  }
  cells.try_emplace(CsvColumn::Link, ExportedCell(present, CsvColumn::Link));
  // A serial port has none of this.
  cells.try_emplace(CsvColumn::Address,
                    isNetwork ? ExportedCell(present, CsvColumn::Address) : QString());
}

}  // namespace AdvancedControl
