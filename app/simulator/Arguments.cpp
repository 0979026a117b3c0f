#include "app/simulator/Arguments.h"

#include <cmath>
#include <optional>

#include <QCommandLineParser>

#include "device/ModelData.h"

namespace {

constexpr std::size_t kMostProjectors = 100'000;
constexpr int kMostChanges = 100'000;
constexpr double kLongestSwitching = 3600;

/// Thrown while arguments are read, caught before the reader returns.
struct WrongArgument {
  QString error;
};

std::optional<std::uint16_t> Port(const QString& text) {
  bool isNumber = false;
  const std::uint16_t port = text.toUShort(&isNumber);
  return isNumber ? std::optional(port) : std::nullopt;
}

class Reader {
 public:
  Arguments Read(const QStringList& arguments);

 private:
  QString Value(const QCommandLineOption& option) const { return parser_.value(option); }
  [[noreturn]] void ThrowWrong(const QCommandLineOption& option, const QString& what) const {
    throw WrongArgument{
        QStringLiteral("--%1: '%2' %3.").arg(option.names().constFirst(), Value(option), what)};
  }
  std::uint16_t PortOf(const QCommandLineOption& option) const {
    const auto port = Port(Value(option));
    if (!port) ThrowWrong(option, QStringLiteral("is no port"));
    return *port;
  }
  std::uint64_t Number(const QCommandLineOption& option, std::uint64_t least,
                       std::uint64_t most) const {
    bool isNumber = false;
    const std::uint64_t number = Value(option).toULongLong(&isNumber);
    if (isNumber && number >= least && number <= most) return number;
    ThrowWrong(option, QStringLiteral("is no number from %1 to %2").arg(least).arg(most));
  }
  std::chrono::milliseconds Seconds(const QCommandLineOption& option) const {
    bool isNumber = false;
    const double seconds = Value(option).toDouble(&isNumber);
    if (!isNumber || !(seconds >= 0 && seconds <= kLongestSwitching)) {
      ThrowWrong(option, QStringLiteral("is no time up to an hour"));
    }
    return std::chrono::milliseconds(std::lround(1000 * seconds));
  }
  ServiceOptions Service() const;
  FleetOptions Fleet(const ServiceOptions& service) const;

  QCommandLineParser parser_;
  const QCommandLineOption help_{{"h", "help"}, "Display this help."};
  const QCommandLineOption profiles_{"profiles", "Serve the projectors of <file>.", "file"};
  const QCommandLineOption projector_{
      "projector", "Serve only the projector <name>; may be given several times.", "name"};
  const QCommandLineOption address_{"address",
                                    "Listen on <address> instead of 127.0.0.1; with --fleet, the "
                                    "address of the first projector instead of 127.64.0.1.",
                                    "address", "127.0.0.1"};
  const QCommandLineOption port_{
      "port",
      "The first projector is at port <n>, the others at those that follow; 0, as without it, "
      "takes any that are free. With --fleet, <n> is the port of every projector for our own "
      "protocol, and the next one for PJLink.",
      "n", "0"};
  const QCommandLineOption password_{"password", "PJLink asks for <text>.", "text"};
  const QCommandLineOption serial_{"serial", "Serve each projector on a pseudo terminal too."};
  const QCommandLineOption fault_{"fault",
                                  "Begin with a fault: " + QString::fromLatin1(kFaultNames) +
                                      ". Of a share of the projectors: 'silent 5%'. May be given "
                                      "several times.",
                                  "fault"};
  const QCommandLineOption seed_{"seed", "Everything that is left to chance depends on <n>.", "n",
                                 "1"};
  const QCommandLineOption control_{
      "control",
      "Listen at port <n> of the loopback address for faults, a line each: projector's number from "
      "1, or *, and the fault.",
      "n", "0"};
  const QCommandLineOption write_{
      "write-profiles", "Write profiles that lead a host to the served projectors to <file>.",
      "file"};
  const QCommandLineOption fleet_{
      "fleet",
      "Serve <n> projectors, made after those of the profiles, each at a loopback address of its "
      "own.",
      "n"};
  const QCommandLineOption link_{
      "link", "Of a fleet: what --write-profiles uses; pjlink, network or mixed.", "way", "pjlink"};
  const QCommandLineOption warmUp_{"warm-up", "Of a fleet: seconds until a projector is on.",
                                   "seconds", "20"};
  const QCommandLineOption coolDown_{
      "cool-down", "Of a fleet: seconds until a projector is in standby.", "seconds", "30"};
  const QCommandLineOption changes_{
      "changes", "Of a fleet: so many changes of state in a second happen by themselves.", "n",
      "0"};
  const QCommandLineOption notices_{
      "notices", "Of a fleet: send PJLink's status notices to this address.", "address:port"};
  const QCommandLineOption counts_{
      "counts", "Of a fleet: at the end, write how often each projector was asked to <file>.",
      "file"};
};

Arguments Reader::Read(const QStringList& arguments) {
  parser_.setApplicationDescription(
      "Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a "
      "line, then \"ready\".");
  parser_.addOptions({help_, profiles_, projector_, address_, port_, password_, serial_, fault_,
                      seed_, control_, write_, fleet_, link_, warmUp_, coolDown_, changes_,
                      notices_, counts_});
  if (!parser_.parse(arguments)) throw WrongArgument{parser_.errorText()};
  if (const QStringList rest = parser_.positionalArguments(); !rest.isEmpty()) {
    throw WrongArgument{QStringLiteral("Unexpected argument '%1'.").arg(rest.first())};
  }
  Arguments result;
  if (parser_.isSet(help_)) {
    result.help = parser_.helpText();
    return result;
  }
  result.profiles = Value(profiles_);
  result.projectors = parser_.values(projector_);
  result.writeProfiles = Value(write_);
  result.control = parser_.isSet(control_);
  result.controlPort = PortOf(control_);
  result.service = Service();
  if (parser_.isSet(fleet_)) {
    result.fleet = Fleet(result.service);
    return result;
  }
  for (const auto* option : {&link_, &warmUp_, &coolDown_, &changes_, &notices_, &counts_}) {
    if (parser_.isSet(*option)) {
      throw WrongArgument{QStringLiteral("--%1 needs --fleet.").arg(option->names().constFirst())};
    }
  }
  return result;
}

ServiceOptions Reader::Service() const {
  ServiceOptions service;
  if (!service.address.setAddress(Value(address_))) {
    ThrowWrong(address_, QStringLiteral("is no address"));
  }
  service.password = Value(password_).toStdString();
  if (constexpr std::size_t most = NameSlot{}.size(); service.password.size() > most) {
    throw WrongArgument{QStringLiteral("--password: is longer than %1 bytes.").arg(most)};
  }
  service.serial = parser_.isSet(serial_);
  service.firstPort = PortOf(port_);
  service.seed = Number(seed_, 0, UINT64_MAX);
  for (const QString& text : parser_.values(fault_)) {
    const auto fault = ParseFault(text);
    if (!fault) {
      throw WrongArgument{
          QStringLiteral("--fault: '%1' is none of %2.").arg(text, QLatin1String(kFaultNames))};
    }
    service.faults.push_back(*fault);
  }
  return service;
}

FleetOptions Reader::Fleet(const ServiceOptions& service) const {
  constexpr std::uint32_t kLastAddress = 0x7FFFFFFE;
  if (service.serial) throw WrongArgument{QStringLiteral("--fleet has no serial lines.")};
  FleetOptions fleet{.faults = service.faults};
  FleetProjectors::Options& projectors = fleet.projectors;
  projectors.count = Number(fleet_, 1, kMostProjectors);
  if (parser_.isSet(address_)) {
    if (!service.address.isLoopback() || service.address.protocol() != QHostAddress::IPv4Protocol) {
      ThrowWrong(address_, QStringLiteral("is no IPv4 loopback address"));
    }
    projectors.firstAddress = service.address.toIPv4Address();
  }
  if (kLastAddress - projectors.firstAddress + 1 < projectors.count) {
    ThrowWrong(address_, QStringLiteral("leaves too few addresses"));
  }
  projectors.seed = service.seed;
  projectors.warmUp = Seconds(warmUp_);
  projectors.coolDown = Seconds(coolDown_);
  if (service.firstPort == UINT16_MAX) ThrowWrong(port_, QStringLiteral("leaves none for PJLink"));
  fleet.server.wirePort = service.firstPort;
  fleet.server.pjLinkPort =
      static_cast<std::uint16_t>(service.firstPort == 0 ? 0 : service.firstPort + 1);
  fleet.server.password = service.password;
  if (parser_.isSet(notices_)) {
    const QHostAddress host(Value(notices_).section(QLatin1Char(':'), 0, -2));
    const auto port = Port(Value(notices_).section(QLatin1Char(':'), -1));
    if (!port || host.protocol() != QHostAddress::IPv4Protocol || !host.isLoopback()) {
      ThrowWrong(notices_, QStringLiteral("is no IPv4 loopback address with a port"));
    }
    fleet.server.notices = FleetSockets::Endpoint{host.toIPv4Address(), *port};
  }
  fleet.changes = static_cast<int>(Number(changes_, 0, kMostChanges));
  fleet.countsFile = Value(counts_);
  const QStringList ways{"pjlink", "network", "mixed"};
  const auto way = ways.indexOf(Value(link_));
  if (way < 0) ThrowWrong(link_, QStringLiteral("is none of pjlink, network and mixed"));
  fleet.link = static_cast<FleetLink>(way);
  return fleet;
}

}  // namespace

Arguments ParseArguments(const QStringList& arguments) {
  try {
    return Reader().Read(arguments);
  } catch (const WrongArgument& wrong) {
    Arguments result;
    result.error = wrong.error;
    return result;
  }
}
