#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include "app/profiles/DescriptorLimit.h"
#include "app/profiles/OutOfMemory.h"
#include "app/profiles/SignalFile.h"
#include "app/profiles/SimulatorNotice.h"
#include "app/profiles/Translations.h"
#include "app/profiles/WrittenMark.h"
#include "app/simulator/Arguments.h"
#include "app/simulator/ControlServer.h"
#include "app/simulator/ServedProjectors.h"
#include "app/simulator/fleet/FleetService.h"
#include "fleet/ProfileFile.h"
#include "fleet/ProfileLock.h"
#include "i18n/SystemLanguage.h"

namespace {

struct Program {
  Q_DECLARE_TR_FUNCTIONS(Simulator)
};

int Fail(const QString& message) {
  std::fprintf(stderr, "advanced-control-simulator: %s\n", qUtf8Printable(message));
  return 2;
}

QString ProfileFile(const Arguments& arguments) {
  if (!arguments.profiles.isEmpty()) return arguments.profiles;
  const QDir folder(QCoreApplication::applicationDirPath());
  const QString beside = folder.filePath("projectors.json");
  return QFile::exists(beside)
             ? beside
             : QDir::cleanPath(folder.filePath("../share/advanced-control/projectors.json"));
}

// Keeps the projectors with the given names. Returns the first name that no projector has.
std::optional<QString> Choose(std::vector<FleetProfile>& profiles, const QStringList& names) {
  for (const QString& name : names) {
    if (std::ranges::find(profiles, name.toStdString(), &FleetProfile::name) == profiles.end()) {
      return name;
    }
  }
  if (names.isEmpty()) return std::nullopt;
  std::erase_if(profiles, [&names](const FleetProfile& profile) {
    return !names.contains(QString::fromStdString(profile.name));
  });
  return std::nullopt;
}

// Says why the file of --write-profiles must not be replaced: it may have the only copy of
// somebody's work. Empty if it may.
QString RefuseToReplace(const Arguments& arguments) {
  const QString& file = arguments.writeProfiles;
  if (!QFileInfo(file).isFile()) return {};  // a pipe, or nothing yet
  const auto path = [](const QString& name) {
    return std::filesystem::path(QFile::encodeName(name).toStdString());
  };
  std::error_code fault;
  if (std::filesystem::equivalent(path(file), path(ProfileFile(arguments)), fault)) {
    return Program::tr("--write-profiles: the projectors are read from %1").arg(file);
  }
  const ProfileFileText present = ReadProfileText(file);
  if (!present.error.isEmpty()) return present.error;
  if (present.text.isEmpty() || IsWritten(present.text)) return {};
  return Program::tr("--write-profiles: %1 exists, and this program has not written it").arg(file);
}

// Writes the file of --write-profiles, unless another program has put its own work there meanwhile.
// Returns one line with the fault; empty on success.
template <typename Projectors>
QString WriteProfiles(const Projectors& projectors, const Arguments& arguments) {
  ProfileLock lock(arguments.writeProfiles);
  if (QString error = lock.Take(std::chrono::seconds(5)); !error.isEmpty()) return error;
  if (QString error = RefuseToReplace(arguments); !error.isEmpty()) return error;
  QFile original(ProfileFile(arguments));
  if (!original.open(QIODevice::ReadOnly)) return original.errorString();
  return WriteProfileText(arguments.writeProfiles, projectors.Profiles(original.readAll()));
}

// Writes the profiles, prints the addresses, and serves until a signal ends the program.
template <typename Projectors>
int Serve(Projectors& projectors, const Arguments& arguments, int endingSignals) {
  if (!arguments.writeProfiles.isEmpty()) {
    const QString error = WriteProfiles(projectors, arguments);
    if (!error.isEmpty()) return Fail(error);
  }
  std::fputs(projectors.Addresses().c_str(), stdout);
  ControlServer control(projectors, arguments.service.seed);
  if (arguments.control) {
    const int port = control.Listen(arguments.controlPort);
    if (port == 0) return Fail(Program::tr("--control: the port is not available"));
    std::printf("control: 127.0.0.1:%d\n", port);
  }
  std::puts("ready");
  std::fflush(stdout);

  const QSocketNotifier ended(endingSignals, QSocketNotifier::Read);
  QObject::connect(&ended, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
  return QCoreApplication::exec();
}

int Run(const Arguments& arguments, int endingSignals) {
  ProfileList contents = ReadProfileList(ProfileFile(arguments));
  if (!contents.error.isEmpty()) return Fail(contents.error);
  if (const auto unknown = Choose(contents.profiles, arguments.projectors)) {
    return Fail(Program::tr("there is no projector '%1'").arg(*unknown));
  }
  if (const QString error = RefuseToReplace(arguments); !error.isEmpty()) return Fail(error);
  if (arguments.fleet) {
    RaiseDescriptorLimit();
    FleetService fleet(std::move(contents.profiles), *arguments.fleet);
    if (const QString error = fleet.Start(); !error.isEmpty()) return Fail(error);
    const int status = Serve(fleet, arguments, endingSignals);
    const QString error = fleet.WriteCounts();
    return error.isEmpty() ? status : Fail(error);
  }
  ServedProjectors projectors(contents.profiles, arguments.service);
  if (!projectors.ErrorText().isEmpty()) return Fail(projectors.ErrorText());
  const SimulatorNotice notice(ProfileFile(arguments), projectors.WireAddresses());
  return Serve(projectors, arguments, endingSignals);
}

}  // namespace

int main(int argc, char* argv[]) {
  EndConsoleProgramWhenOutOfMemory("advanced-control-simulator");
  const int endingSignals = SignalFile({SIGTERM, SIGINT, SIGHUP});
  const QCoreApplication application(argc, argv);
  const auto language = NamedLanguage(QCoreApplication::arguments());
  InstallTranslations(language.value_or(SystemLanguageId()));
  const Arguments arguments = ParseArguments(QCoreApplication::arguments());
  if (!arguments.error.isEmpty()) return Fail(arguments.error);
  if (!arguments.help.isEmpty()) {
    std::fputs(qUtf8Printable(arguments.help), stdout);
    return 0;
  }
  try {
    return Run(arguments, endingSignals);
  } catch (const std::bad_alloc&) {
    EndOutOfMemory();
  } catch (const std::exception& error) {
    return Fail(QString::fromLocal8Bit(error.what()));
  }
}
