#include "app/simulator/Arguments.h"

#include <cmath>
#include <optional>

#include <QCommandLineParser>
#include <QCoreApplication>

#include "device/ModelData.h"

namespace {

constexpr std::size_t kMostProjectors = 100'000;
constexpr int kMostChanges = 100'000;
constexpr double kLongestSwitching = 3600;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SimulatorArguments)
};

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
  /// `what` has %1 for the option's value.
  [[noreturn]] void ThrowWrong(const QCommandLineOption& option, const QString& what) const {
    throw WrongArgument{"--" + option.names().constFirst() + ": " + what.arg(Value(option))};
  }
  std::uint16_t PortOf(const QCommandLineOption& option) const {
    const auto port = Port(Value(option));
    if (!port) ThrowWrong(option, Texts::tr("'%1' is not a port."));
    return *port;
  }
  std::uint64_t Number(const QCommandLineOption& option, std::uint64_t least,
                       std::uint64_t most) const {
    bool isNumber = false;
    const std::uint64_t number = Value(option).toULongLong(&isNumber);
    if (isNumber && number >= least && number <= most) return number;
    ThrowWrong(option,
               Texts::tr("'%1' is not a number from %2 to %3.")
                   .arg(QStringLiteral("%1"), QString::number(least), QString::number(most)));
  }
  std::chrono::milliseconds Seconds(const QCommandLineOption& option) const {
    bool isNumber = false;
    const double seconds = Value(option).toDouble(&isNumber);
    if (!isNumber || !(seconds >= 0 && seconds <= kLongestSwitching)) {
      ThrowWrong(option, Texts::tr("'%1' is not a time up to an hour."));
    }
    return std::chrono::milliseconds(std::lround(1000 * seconds));
  }
  ServiceOptions Service() const;
  FleetOptions Fleet(const ServiceOptions& service) const;

  QCommandLineParser parser_;
  const QCommandLineOption help_{{"h", "help"}, Texts::tr("Display this help.")};
  const QCommandLineOption profiles_{"profiles", Texts::tr("Serve the projectors of <file>."),
                                     Texts::tr("file")};
  const QCommandLineOption projector_{
      "projector", Texts::tr("Serve only the projector <name>; may be given several times."),
      Texts::tr("name")};
  const QCommandLineOption address_{
      "address",
      Texts::tr("Listen on <address> instead of 127.0.0.1; with --fleet, the "
                "address of the first projector instead of 127.64.0.1."),
      Texts::tr("address"), "127.0.0.1"};
  const QCommandLineOption port_{
      "port",
      Texts::tr(
          "The first projector is at port <n>, the others at those that follow; 0, as without it, "
          "takes any that are free. With --fleet, <n> is the port of every projector for our own "
          "protocol, and the next one for PJLink."),
      Texts::tr("n"), "0"};
  const QCommandLineOption password_{"password", Texts::tr("PJLink asks for <text>."),
                                     Texts::tr("text")};
  const QCommandLineOption serial_{"serial",
                                   Texts::tr("Serve each projector on a pseudo terminal too.")};
  const QCommandLineOption fault_{"fault",
                                  Texts::tr("Begin with a fault: %1. Of a share of the projectors: "
                                            "'silent 5%'. May be given several times.")
                                      .arg(QLatin1String(kFaultNames)),
                                  Texts::tr("fault")};
  const QCommandLineOption seed_{
      "seed", Texts::tr("Everything that is left to chance depends on <n>."), Texts::tr("n"), "1"};
  const QCommandLineOption control_{"control",
                                    Texts::tr("Listen at port <n> of the loopback address for "
                                              "faults, a line each: projector's number from "
                                              "1, or *, and the fault."),
                                    Texts::tr("n"), "0"};
  const QCommandLineOption write_{
      "write-profiles",
      Texts::tr("Write profiles that lead a host to the served projectors to <file>."),
      Texts::tr("file")};
  const QCommandLineOption fleet_{"fleet",
                                  Texts::tr("Serve <n> projectors, made after those of the "
                                            "profiles, each at a loopback address of its "
                                            "own."),
                                  Texts::tr("n")};
  const QCommandLineOption link_{
      "link", Texts::tr("Of a fleet: what --write-profiles uses; pjlink, network or mixed."),
      Texts::tr("way"), "pjlink"};
  const QCommandLineOption warmUp_{"warm-up",
                                   Texts::tr("Of a fleet: seconds until a projector is on."),
                                   Texts::tr("seconds"), "20"};
  const QCommandLineOption coolDown_{
      "cool-down", Texts::tr("Of a fleet: seconds until a projector is in standby."),
      Texts::tr("seconds"), "30"};
  const QCommandLineOption changes_{
      "changes",
      Texts::tr("Of a fleet: so many changes of state in a second happen by themselves."),
      Texts::tr("n"), "0"};
  const QCommandLineOption notices_{
      "notices", Texts::tr("Of a fleet: send PJLink's status notices to this address."),
      Texts::tr("address:port")};
  const QCommandLineOption counts_{
      "counts",
      Texts::tr("Of a fleet: at the end, write how often each projector was asked to <file>."),
      Texts::tr("file")};
  const QCommandLineOption language_{
      "language", Texts::tr("Help and errors are in the language <name>, such as de or zh-TW."),
      Texts::tr("name")};
};

Arguments Reader::Read(const QStringList& arguments) {
  parser_.setApplicationDescription(Texts::tr(
      "Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a "
      "line, then \"ready\"."));
  parser_.addOptions({help_, profiles_, projector_, address_, port_, password_, serial_, fault_,
                      seed_, control_, write_, fleet_, link_, warmUp_, coolDown_, changes_,
                      notices_, counts_, language_});
  if (!parser_.parse(arguments)) throw WrongArgument{parser_.errorText()};
  if (const QStringList rest = parser_.positionalArguments(); !rest.isEmpty()) {
    throw WrongArgument{Texts::tr("Unexpected argument '%1'.").arg(rest.first())};
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
      throw WrongArgument{Texts::tr("--%1 needs --fleet.").arg(option->names().constFirst())};
    }
  }
  return result;
}

ServiceOptions Reader::Service() const {
  ServiceOptions service;
  if (!service.address.setAddress(Value(address_))) {
    ThrowWrong(address_, Texts::tr("'%1' is not an address."));
  }
  service.password = Value(password_).toStdString();
  if (constexpr std::size_t most = NameSlot{}.size(); service.password.size() > most) {
    throw WrongArgument{Texts::tr("--password: is longer than %1 bytes.").arg(most)};
  }
  service.serial = parser_.isSet(serial_);
  service.firstPort = PortOf(port_);
  service.seed = Number(seed_, 0, UINT64_MAX);
  for (const QString& text : parser_.values(fault_)) {
    const auto fault = ParseFault(text);
    if (!fault) {
      throw WrongArgument{
          Texts::tr("--fault: '%1' is none of %2.").arg(text, QLatin1String(kFaultNames))};
    }
    service.faults.push_back(*fault);
  }
  return service;
}

FleetOptions Reader::Fleet(const ServiceOptions& service) const {
  constexpr std::uint32_t kLastAddress = 0x7FFFFFFE;
  if (service.serial) throw WrongArgument{Texts::tr("--fleet has no serial lines.")};
  FleetOptions fleet{.faults = service.faults};
  FleetProjectors::Options& projectors = fleet.projectors;
  projectors.count = Number(fleet_, 1, kMostProjectors);
  if (parser_.isSet(address_)) {
    if (!service.address.isLoopback() || service.address.protocol() != QHostAddress::IPv4Protocol) {
      ThrowWrong(address_, Texts::tr("'%1' is not an IPv4 loopback address."));
    }
    projectors.firstAddress = service.address.toIPv4Address();
  }
  if (kLastAddress - projectors.firstAddress + 1 < projectors.count) {
    ThrowWrong(address_, Texts::tr("'%1' leaves too few addresses."));
  }
  projectors.seed = service.seed;
  projectors.warmUp = Seconds(warmUp_);
  projectors.coolDown = Seconds(coolDown_);
  if (service.firstPort == UINT16_MAX) ThrowWrong(port_, Texts::tr("'%1' leaves none for PJLink."));
  fleet.server.wirePort = service.firstPort;
  fleet.server.pjLinkPort =
      static_cast<std::uint16_t>(service.firstPort == 0 ? 0 : service.firstPort + 1);
  fleet.server.password = service.password;
  if (parser_.isSet(notices_)) {
    const QHostAddress host(Value(notices_).section(QLatin1Char(':'), 0, -2));
    const auto port = Port(Value(notices_).section(QLatin1Char(':'), -1));
    if (!port || host.protocol() != QHostAddress::IPv4Protocol || !host.isLoopback()) {
      ThrowWrong(notices_, Texts::tr("'%1' is not an IPv4 loopback address with a port."));
    }
    fleet.server.notices = FleetSockets::Endpoint{host.toIPv4Address(), *port};
  }
  fleet.changes = static_cast<int>(Number(changes_, 0, kMostChanges));
  fleet.countsFile = Value(counts_);
  const QStringList ways{"pjlink", "network", "mixed"};
  const auto way = ways.indexOf(Value(link_));
  if (way < 0) ThrowWrong(link_, Texts::tr("'%1' is none of pjlink, network and mixed."));
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
