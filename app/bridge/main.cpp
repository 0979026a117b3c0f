#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>

#include "app/bridge/Bridge.h"
#include "app/bridge/Broker.h"
#include "app/bridge/Log.h"
#include "app/bridge/OptionReading.h"
#include "app/bridge/Options.h"
#include "app/profiles/DescriptorLimit.h"
#include "app/profiles/OutOfMemory.h"
#include "app/profiles/SignalFile.h"
#include "app/profiles/Translations.h"
#include "fleet/ProfileFile.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

namespace {

constexpr int kWrongUse = 2;
constexpr int kRestart = 128 + SIGHUP;  // as if the signal had ended it; the service begins anew

int Fail(const QString& message) {
  Log(message);
  return kWrongUse;
}

/// Reads the file, in which each tag of the share must occur.
ProfileList ReadProfiles(const Options& options) {
  ProfileList list = ReadProfileList(options.profiles);
  for (const std::string& tag : options.share.tags) {
    const auto hasIt = [&tag](const FleetProfile& profile) {
      return std::ranges::find(profile.tags, tag) != profile.tags.end();
    };
    if (!list.error.isEmpty() || std::ranges::any_of(list.profiles, hasIt)) continue;
    list.error =
        "--tag: " +
        BridgeOptions::tr("no projector has the tag '%1'").arg(QString::fromStdString(tag));
  }
  return list;
}

/// Ends the program with a failure, so that the service starts it again with the present profiles.
/// Goes on if these are wrong.
void Restart(const Options& options) {
  const QString error = ReadProfiles(options).error;
  Log(error.isEmpty() ? QStringLiteral("a signal asks for a restart")
                      : "goes on with the earlier projectors: " + error);
  if (error.isEmpty()) QCoreApplication::exit(kRestart);
}

void TakeSignals(int file, bool isInTerminal, const Options& options, Bridge& bridge) {
  signalfd_siginfo signal{};
  while (read(file, &signal, sizeof signal) == sizeof signal) {
    if (signal.ssi_signo == SIGUSR1) {
      bridge.SwitchCommands(false);
    } else if (signal.ssi_signo == SIGUSR2) {
      bridge.SwitchCommands(true);
    } else if (signal.ssi_signo == SIGHUP && !isInTerminal) {  // else the terminal was closed
      Restart(options);
    } else {
      QCoreApplication::quit();
    }
  }
}

/// Ends the program without its exit handlers if it must.
int End(int code) {
  if (!Broker::HasThreadLeft()) return code;
  std::fflush(nullptr);
  std::_Exit(code);
}

int Run(const Options& options, int signals) {
  ProfileList profiles = ReadProfiles(options);
  if (!profiles.error.isEmpty()) return Fail(profiles.error);
  RaiseDescriptorLimit();
  InstallTranslations(options.language);  // also of the names in discovery messages
  const SettingTexts texts(CatalogFolders(), options.language);
  Bridge bridge(options, std::move(profiles.profiles), texts);
  profiles = {};
  if (const QString error = bridge.Start(); !error.isEmpty()) return Fail(error);
  const QSocketNotifier signalled(signals, QSocketNotifier::Read);
  QObject::connect(&signalled, &QSocketNotifier::activated, qApp,
                   [&, isInTerminal = isatty(STDERR_FILENO) == 1] {
                     TakeSignals(signals, isInTerminal, options, bridge);
                   });
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  EndWhenOutOfMemory("advanced-control-bridge");
  std::signal(SIGPIPE, SIG_IGN);
  const int signals = SignalFile({SIGTERM, SIGINT, SIGHUP, SIGUSR1, SIGUSR2});
  const QCoreApplication application(argc, argv);
  const auto language = NamedLanguage(QCoreApplication::arguments());
  InstallTranslations(language.value_or(SystemLanguageId()));
  const Options options = ParseOptions(QCoreApplication::arguments());
  if (!options.error.isEmpty()) return Fail(options.error);
  if (!options.help.isEmpty()) {
    std::fputs(qUtf8Printable(options.help), stdout);
    return 0;
  }
  try {
    return End(Run(options, signals));
  } catch (const std::bad_alloc&) {
    EndOutOfMemory();
  } catch (const std::exception& error) {
    return Fail(QString::fromLocal8Bit(error.what()));
  }
}
