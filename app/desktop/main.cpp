#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <variant>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>

#include "app/desktop/CommandLine.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/Modal.h"
#include "app/desktop/Preferences.h"
#include "app/desktop/WindowMemory.h"
#include "app/desktop/dialogs/Pictures.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileFileActions.h"
#include "app/profiles/DescriptorLimit.h"
#include "app/profiles/OutOfMemory.h"
#include "app/profiles/SignalFile.h"
#include "app/profiles/Table.h"
#include "app/profiles/Translations.h"
#include "fleet/WholeFile.h"
#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"
#include "settings/PageSets.h"

namespace {

const QString kName = QStringLiteral("advanced-control");
constexpr int kWrongArguments = 2;
constexpr int kNoDisplay = 1;

struct Program {
  Q_DECLARE_TR_FUNCTIONS(Program)
};

int Fail(const QString& message, int exitCode = kWrongArguments) {
  std::fprintf(stderr, "advanced-control: %s\n", qUtf8Printable(message));
  return exitCode;
}

bool HasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

QStringList ProfileFilePlaces() {
  const QDir folder(QCoreApplication::applicationDirPath());
  return {folder.filePath("projectors.json"),
          QDir::cleanPath(folder.filePath("../share/advanced-control/projectors.json"))};
}

/// The checked arguments with what they name.
struct Request {
  CommandLine line;
  ProfileDocument profiles;
  bool areShipped = false;  ///< The profiles that come with the program.
  QString wrongLast{};      ///< Why the file opened last could not be read; empty if it could.
  std::size_t opened = 0;   ///< Position of the projector that --open names.
};

/// Reads the file named by --profiles, else the one opened last, else the one that comes with the
/// program.
QString ReadProfiles(Request& request) {
  const CommandLine& line = request.line;
  if (!line.profiles.isEmpty()) return request.profiles.Load(line.profiles);
  if (line.action == CommandLine::Action::Window && line.open.isEmpty()) {
    const QString last = WindowMemory::LastProfiles(QSettings(kName, kName));
    if (!last.isEmpty()) {
      request.wrongLast = request.profiles.Load(last);
      if (request.wrongLast.isEmpty()) return {};
    }
  }
  const QStringList places = ProfileFilePlaces();
  const auto place = std::ranges::find_if(places, qOverload<const QString&>(&QFileInfo::exists));
  request.areShipped = place != places.end();
  if (request.areShipped) return request.profiles.Load(*place);
  return Program::tr("no profiles at %1; name a file with --profiles")
      .arg(places.join(QStringLiteral(", ")));
}

// The library chose the catalog by the environment when it was loaded, so it has to choose again.
void ChooseLanguage(std::uint32_t language) {
  qputenv("LC_ALL", QByteArray::fromStdString(LocaleOf(language)));
  LoadCatalog();
  InstallTranslations(ShownLanguageId());
}

// Tab 0 is the status page, which every projector has.
int LastTab(const CModelInfo2& model) {
  return static_cast<int>(TabsOf(model.DialogType, model.ModelCode).size());
}

void PrintList(const std::vector<FleetProfile>& profiles) {
  Table table;
  std::vector<std::string> titles;
  for (const char* title :
       {QT_TRANSLATE_NOOP("Program", "Name"), QT_TRANSLATE_NOOP("Program", "Model"),
        QT_TRANSLATE_NOOP("Program", "Type"), QT_TRANSLATE_NOOP("Program", "Code"),
        QT_TRANSLATE_NOOP("Program", "Connection")}) {
    titles.push_back(Program::tr(title).toStdString());
  }
  table.Add(titles);
  for (const FleetProfile& profile : profiles) {
    const CModelInfo2& model = profile.model->info;
    table.Add({profile.name, model.ModelName, std::to_string(model.DialogType),
               std::to_string(model.ModelCode), ConnectionText(profile.connection).toStdString()});
  }
  std::fputs(table.Text().c_str(), stdout);
}

int RunTour(const std::vector<FleetProfile>& profiles, const QString& folder) {
  const TourResult tour = SaveTour(profiles, folder);
  if (!tour.error.isEmpty()) return Fail(tour.error);
  const QString said =
      Program::tr("%n pictures of %1 kinds of projectors saved in %2", nullptr, tour.pictures)
          .arg(tour.projectors)
          .arg(folder);
  std::printf("%s\n", qUtf8Printable(said));
  return 0;
}

/// The signals that end the program. One that was ignored at the start stays so, as with nohup.
std::vector<int> EndingSignals() {
  std::vector<int> ending;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    struct sigaction inherited {};
    sigaction(signal, nullptr, &inherited);
    if (inherited.sa_handler != SIG_IGN) ending.push_back(signal);
  }
  return ending;
}

int RunWindow(Request request, int signals) {
  const auto& [line, profiles, areShipped, wrongLast, opened] = request;
  QSettings settings(kName, kName);
  MainWindow window(profiles, &settings,
                    {.interval = std::chrono::seconds(Preferences::Interval(&settings))});
  Apply(Preferences::ThemeOf(settings));
  if (areShipped) window.Demonstrate();
  window.show();
  if (!wrongLast.isEmpty()) ShowError(window, ProfileFileActions::tr("Open Profiles"), wrongLast);
  QSocketNotifier signalled(signals, QSocketNotifier::Read);
  QObject::connect(&signalled, &QSocketNotifier::activated, &window, [&] {
    signalled.setEnabled(false);
    window.close();
  });
  // The user may close the dialog and the window while the dialog is being read.
  if (!line.open.isEmpty()) {
    QTimer::singleShot(0, &window, [&] { window.OpenDialog(request.opened, request.line.tab); });
  }
  return QApplication::exec();
}

/// Reads and checks everything that needs no window. Returns an exit code if no window is needed.
std::variant<Request, int> Prepare(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  InstallTranslations(ShownLanguageId());
  Request request{.line = ParseCommandLine(QCoreApplication::arguments()), .profiles = {}};
  const CommandLine& line = request.line;
  const int preferred = Preferences::Language(QSettings(kName, kName));
  if (line.language.has_value() || preferred != 0) {
    ChooseLanguage(line.language.value_or(preferred));
    request.line =
        ParseCommandLine(QCoreApplication::arguments());  // errors may need its translations
  }
  if (!line.error.isEmpty()) return Fail(line.error);
  if (line.action == CommandLine::Action::Help) {
    std::fputs(qUtf8Printable(line.help), stdout);
    return 0;
  }
  if (line.action == CommandLine::Action::Version) {
    std::printf("advanced-control %s\n", ADVANCED_CONTROL_VERSION);
    return 0;
  }

  const QString wrongProfiles = ReadProfiles(request);
  if (!wrongProfiles.isEmpty()) return Fail(wrongProfiles);
  const std::vector<FleetProfile>& projectors = request.profiles.Projectors();
  if (line.action == CommandLine::Action::List) {
    PrintList(projectors);
    return 0;
  }
  if (line.action == CommandLine::Action::Tour) {
    const QString error = MakePictureFolder(line.target);
    if (!error.isEmpty()) return Fail(error);
  }
  if (line.open.isEmpty()) return request;

  const auto opened = std::ranges::find(projectors, line.open.toStdString(), &FleetProfile::name);
  if (opened == projectors.end()) {
    return Fail(
        Program::tr("--open: there is no projector '%1'; --list names all.").arg(line.open));
  }
  request.opened = static_cast<std::size_t>(opened - projectors.begin());
  if (const int last = LastTab(opened->model->info), tab = line.tab.value_or(0);
      tab < 0 || tab > last) {
    return Fail(Program::tr("--tab: there is no tab %1; '%2' has tabs 0 to %3.")
                    .arg(QString::number(tab), line.open, QString::number(last)));
  }
  if (line.action == CommandLine::Action::Screenshot) {
    const QString error = CheckWholeFile(line.target);
    if (!error.isEmpty()) return Fail(error);
  }
  return request;
}

int Run(int argc, char* argv[]) {
  auto prepared = Prepare(argc, argv);
  if (const int* exitCode = std::get_if<int>(&prepared)) return *exitCode;
  auto& request = std::get<Request>(prepared);
  const auto& [line, profiles, areShipped, wrongLast, opened] = request;

  if (!line.platform && !HasDisplay()) {
    if (line.action == CommandLine::Action::Window) {
      return Fail(Program::tr("no display; use --list, --tour or --screenshot without one."),
                  kNoDisplay);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const bool hasWindow = line.action == CommandLine::Action::Window;
  const int signals = hasWindow ? SignalFile(EndingSignals()) : -1;
  const QApplication application(argc, argv);
  QGuiApplication::setDesktopFileName(kName);
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/advanced-control.png")));
  // The user's choice of style has precedence.
  if (!line.style && qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE")) {
    QApplication::setStyle(QStringLiteral("Fusion"));
  }
  InstallTranslations(ShownLanguageId());

  switch (line.action) {
    case CommandLine::Action::Tour:
      return RunTour(profiles.Projectors(), line.target);
    case CommandLine::Action::Screenshot: {
      const QString error =
          SaveScreenshot(profiles.Projectors()[opened], line.tab.value_or(0), line.target);
      return error.isEmpty() ? 0 : Fail(error);
    }
    default:
      return RunWindow(std::move(request), signals);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  EndWhenOutOfMemory("advanced-control");
  RaiseDescriptorLimit();
  try {
    return Run(argc, argv);
  } catch (const std::bad_alloc&) {
    EndOutOfMemory();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "advanced-control: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
