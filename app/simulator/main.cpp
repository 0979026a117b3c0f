#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <new>
#include <optional>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>

#include "app/profiles/OutOfMemory.h"
#include "app/simulator/Arguments.h"
#include "app/simulator/ControlServer.h"
#include "app/simulator/ServedProjectors.h"

namespace {

int Fail(const QString& message) {
  std::fprintf(stderr, "advanced-control-simulator: %s\n", qUtf8Printable(message));
  return 2;
}

// A file descriptor that reports the signals that end the program. To be called before any thread
// starts.
int EndingSignals() {
  sigset_t ending;
  sigemptyset(&ending);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&ending, signal);
  pthread_sigmask(SIG_BLOCK, &ending, nullptr);
  return signalfd(-1, &ending, SFD_CLOEXEC | SFD_NONBLOCK);
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
std::optional<QString> Choose(std::vector<ProjectorProfile>& profiles, const QStringList& names) {
  for (const QString& name : names) {
    if (std::ranges::find(profiles, name.toStdString(), &ProjectorProfile::Name) ==
        profiles.end()) {
      return name;
    }
  }
  if (names.isEmpty()) return std::nullopt;
  std::erase_if(profiles, [&names](const ProjectorProfile& profile) {
    return !names.contains(QString::fromStdString(profile.Name));
  });
  return std::nullopt;
}

int Run(const Arguments& arguments, int endingSignals) {
  const QString fileName = ProfileFile(arguments);
  ProfileFileContents contents = ReadProfileFile(fileName);
  if (!contents.error.isEmpty()) return Fail(contents.error);
  if (const auto unknown = Choose(contents.projectors, arguments.projectors)) {
    return Fail(QStringLiteral("there is no projector '%1'").arg(*unknown));
  }
  ServedProjectors projectors(contents.projectors, arguments.service);
  if (!projectors.ErrorText().isEmpty()) return Fail(projectors.ErrorText());

  if (!arguments.writeProfiles.isEmpty()) {
    QFile original(fileName);
    const bool read = original.open(QIODevice::ReadOnly);
    const QString error =
        read ? WriteProfileText(arguments.writeProfiles, projectors.Profiles(original.readAll()))
             : original.errorString();
    if (!error.isEmpty()) return Fail(error);
  }
  std::fputs(projectors.Addresses().c_str(), stdout);
  ControlServer control(projectors);
  if (arguments.control) {
    const int port = control.Listen(arguments.controlPort);
    if (port == 0) return Fail(QStringLiteral("--control: the port cannot be had"));
    std::printf("control: 127.0.0.1:%d\n", port);
  }
  std::puts("ready");
  std::fflush(stdout);

  const QSocketNotifier ended(endingSignals, QSocketNotifier::Read);
  QObject::connect(&ended, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  EndWhenOutOfMemory("advanced-control-simulator");
  const int endingSignals = EndingSignals();
  const QCoreApplication application(argc, argv);
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
