#include "app/simulator/Arguments.h"

#include <optional>

#include <QCommandLineParser>

#include "app/simulator/ControlServer.h"
#include "device/ModelData.h"

namespace {

Arguments Wrong(const QString& error) {
  Arguments wrong;
  wrong.error = error;
  return wrong;
}

std::optional<std::uint16_t> Port(const QString& text) {
  bool isNumber = false;
  const std::uint16_t port = text.toUShort(&isNumber);
  return isNumber ? std::optional(port) : std::nullopt;
}

}  // namespace

Arguments ParseArguments(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a "
      "line, then \"ready\".");
  const QCommandLineOption help({"h", "help"}, "Display this help.");
  const QCommandLineOption profiles("profiles", "Serve the projectors of <file>.", "file");
  const QCommandLineOption projector(
      "projector", "Serve only the projector <name>; may be given several times.", "name");
  const QCommandLineOption address("address", "Listen on <address> instead of 127.0.0.1.",
                                   "address", "127.0.0.1");
  const QCommandLineOption port(
      "port",
      "The first projector is at port <n>, the others at those that follow; 0, as without "
      "it, takes any that are free.",
      "n", "0");
  const QCommandLineOption password("password", "PJLink asks for <text>.", "text");
  const QCommandLineOption serial("serial", "Serve each projector on a pseudo terminal too.");
  const QCommandLineOption fault(
      "fault", "Begin with a fault: " + QString::fromLatin1(kFaultNames) + ".", "fault");
  const QCommandLineOption control(
      "control",
      "Listen at port <n> of the loopback address for faults, a line each: projector's "
      "number from 1, or *, and the fault.",
      "n");
  const QCommandLineOption write(
      "write-profiles", "Write profiles that lead a host to the served projectors to <file>.",
      "file");
  parser.addOptions(
      {help, profiles, projector, address, port, password, serial, fault, control, write});
  if (!parser.parse(arguments)) return Wrong(parser.errorText());
  if (const QStringList rest = parser.positionalArguments(); !rest.isEmpty()) {
    return Wrong(QStringLiteral("Unexpected argument '%1'.").arg(rest.first()));
  }

  Arguments result;
  if (parser.isSet(help)) {
    result.help = parser.helpText();
    return result;
  }
  result.profiles = parser.value(profiles);
  result.projectors = parser.values(projector);
  result.writeProfiles = parser.value(write);
  ServiceOptions& service = result.service;
  if (!service.address.setAddress(parser.value(address))) {
    return Wrong(QStringLiteral("--address: '%1' is no address.").arg(parser.value(address)));
  }
  service.password = parser.value(password).toStdString();
  if (constexpr std::size_t most = NameSlot{}.size(); service.password.size() > most) {
    return Wrong(QStringLiteral("--password: is longer than %1 bytes.").arg(most));
  }
  service.serial = parser.isSet(serial);
  for (const QCommandLineOption& option : {port, control}) {
    if (!Port(parser.value(option)) && (parser.isSet(option))) {
      return Wrong(QStringLiteral("--%1: '%2' is no port.")
                       .arg(option.names().first(), parser.value(option)));
    }
  }
  service.firstPort = *Port(parser.value(port));
  result.control = parser.isSet(control);
  result.controlPort = Port(parser.value(control)).value_or(0);
  if (parser.isSet(fault)) {
    const auto parsed = ParseFault(parser.value(fault));
    if (!parsed) {
      return Wrong(QStringLiteral("--fault: '%1' is none of %2.")
                       .arg(parser.value(fault), QLatin1String(kFaultNames)));
    }
    service.fault = *parsed;
  }
  return result;
}
