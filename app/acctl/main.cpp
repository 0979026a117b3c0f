#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <new>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "app/acctl/Help.h"
#include "app/acctl/Message.h"
#include "app/acctl/Output.h"
#include "app/acctl/ParseArguments.h"
#include "app/acctl/Printer.h"
#include "app/acctl/ProgramRun.h"
#include "app/profiles/OutOfMemory.h"
#include "fleet/ProfileFile.h"

namespace {

// If nobody reads the output any more, what is being sent must still be finished. And if a standard
// stream is closed, its number must not become that of a file or a connection.
void GuardOutput() {
  std::signal(SIGPIPE, SIG_IGN);
  int opened = 0;
  while (opened >= 0 && opened <= STDERR_FILENO) opened = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(opened);
}

/// Reads the file that comes with the program if none is named, and names it.
ProfileList ReadProfiles(Arguments& arguments) {
  if (!arguments.profiles.empty()) return ReadProfileList(Wide(arguments.profiles));
  const QDir folder(QCoreApplication::applicationDirPath());
  const QStringList places{
      folder.filePath("projectors.json"),
      QDir::cleanPath(folder.filePath("../share/advanced-control/projectors.json"))};
  const auto place = std::ranges::find_if(places, qOverload<const QString&>(&QFileInfo::exists));
  if (place != places.end()) {
    arguments.profiles = place->toStdString();
    return ReadProfileList(*place);
  }
  return {.profiles = {},
          .error = Acctl::tr("no profiles at %1; name a file with --profiles")
                       .arg(places.join(QStringLiteral(", ")))};
}

std::string VersionText() { return "acctl " ADVANCED_CONTROL_VERSION "\n"; }

int PrintPage(const Arguments& arguments) {
  std::string text;
  switch (arguments.command) {
    case Command::Help:
      text = HelpText(arguments.topic);
      break;
    case Command::Man:
      text = ManPage(arguments.topic);
      break;
    default:
      text = VersionText();
  }
  return Print(text) ? ExitCode::Done : ExitCode::Refused;
}

int Main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const std::vector<std::string> words(argv + 1, argv + argc);
  Arguments arguments = ParseArguments(words);
  if (!arguments.error.empty()) return FailWrongUse(arguments, arguments.error);
  const bool isPage = arguments.command == Command::Help || arguments.command == Command::Man ||
                      arguments.command == Command::Version;
  if (isPage) return PrintPage(arguments);
  const ProfileList profiles = NeedsProfiles(arguments) ? ReadProfiles(arguments) : ProfileList();
  if (!profiles.error.isEmpty()) return FailWrongUse(arguments, profiles.error.toStdString());
  return RunProgram(arguments, words, profiles.profiles);
}

}  // namespace

int main(int argc, char* argv[]) {
  EndConsoleProgramWhenOutOfMemory("acctl");
  try {
    GuardOutput();
    return Main(argc, argv);
  } catch (const std::bad_alloc&) {
    EndOutOfMemory();
  } catch (const std::exception& error) {
    Complain(error.what());
    return ExitCode::Refused;
  }
}
