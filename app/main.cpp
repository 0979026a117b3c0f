#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <variant>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTabBar>
#include <QTranslator>

#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/Pictures.h"
#include "app/ProfileFile.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "settings/PageSets.h"

namespace {

constexpr int kWrongArguments = 2;
constexpr int kNoDisplay = 1;

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

ProfileFileContents ReadProfiles(const CommandLine& line) {
  if (!line.profiles.isEmpty()) return ReadProfileFile(line.profiles);
  const QStringList places = ProfileFilePlaces();
  const auto place = std::ranges::find_if(places, qOverload<const QString&>(&QFileInfo::exists));
  if (place != places.end()) return ReadProfileFile(*place);
  return {.projectors = {},
          .error = QStringLiteral("no profiles at %1; name a file with --profiles")
                       .arg(places.join(QStringLiteral(" or ")))};
}

// The catalog was chosen when the library was loaded, by the environment of that time.
void ChooseLanguage(int language) {
  qputenv("LC_ALL",
          language == static_cast<int>(kChineseSimplified) ? "zh_CN.UTF-8" : "en_US.UTF-8");
  LoadCatalog();
}

// For the texts of the toolkit's own, such as the buttons of messages.
void TranslateToolkit() {
  static QTranslator translator;
  const QLocale locale(SystemLanguageId() == kChineseSimplified ? QLocale::Chinese
                                                                : QLocale::English);
  if (translator.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&translator);
  }
}

// Tab 0 is the status page, which every projector has.
int LastTab(const ProjectorProfile& profile) {
  return static_cast<int>(TabsOf(profile.Model.DialogType, profile.Model.ModelCode).size());
}

void PrintList(const std::vector<ProjectorProfile>& profiles) {
  std::printf("%-24s %-16s %4s %4s  %s\n", "Name", "Model", "Type", "Code", "Connection");
  for (const ProjectorProfile& profile : profiles) {
    std::printf("%-24s %-16s %4d %4d  %s\n", profile.Name.c_str(), profile.Model.ModelName.c_str(),
                profile.Model.DialogType, profile.Model.ModelCode,
                qUtf8Printable(ConnectionText(profile.Model)));
  }
}

int RunTour(const std::vector<ProjectorProfile>& profiles, const QString& folder) {
  const TourResult tour = SaveTour(profiles, folder);
  if (!tour.error.isEmpty()) return Fail(tour.error);
  std::printf("%d pictures of %d kinds of projectors saved in %s\n", tour.pictures, tour.projectors,
              qUtf8Printable(folder));
  return 0;
}

int RunWindow(const CommandLine& line, std::vector<ProjectorProfile> profiles, std::size_t opened) {
  MainWindow window(std::move(profiles));
  window.show();
  if (!line.open.isEmpty()) {
    const CAdvanceDlg* dialog = window.OpenDialog(opened);
    if (dialog == nullptr) return Fail(QStringLiteral("the dialog cannot be created"));
    dialog->findChild<QTabBar*>()->setCurrentIndex(line.tab.value_or(0));
  }
  return QApplication::exec();
}

/// What the arguments ask for, found right.
struct Request {
  CommandLine line;
  std::vector<ProjectorProfile> profiles;
  std::size_t opened = 0;  ///< Position of the projector that --open names.
};

/// Reads and checks all that needs no window, and does what needs none: then the result is an exit
/// code.
std::variant<Request, int> Prepare(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  Request request{.line = ParseCommandLine(QCoreApplication::arguments()), .profiles = {}};
  const CommandLine& line = request.line;
  if (!line.error.isEmpty()) return Fail(line.error);
  if (line.action == CommandLine::Action::Help) {
    std::fputs(qUtf8Printable(line.help), stdout);
    return 0;
  }
  if (line.action == CommandLine::Action::Version) {
    std::printf("advanced-control %s\n", ADVANCED_CONTROL_VERSION);
    return 0;
  }

  ProfileFileContents contents = ReadProfiles(line);
  if (!contents.error.isEmpty()) return Fail(contents.error);
  request.profiles = std::move(contents.projectors);
  if (line.action == CommandLine::Action::List) {
    PrintList(request.profiles);
    return 0;
  }
  if (line.action == CommandLine::Action::Tour) {
    const QString error = MakePictureFolder(line.target);
    if (!error.isEmpty()) return Fail(error);
  }
  if (line.open.isEmpty()) return request;

  const auto opened =
      std::ranges::find(request.profiles, line.open.toStdString(), &ProjectorProfile::Name);
  if (opened == request.profiles.end()) {
    return Fail(
        QStringLiteral("--open: there is no projector '%1'; --list names all.").arg(line.open));
  }
  request.opened = static_cast<std::size_t>(opened - request.profiles.begin());
  if (const int last = LastTab(*opened), tab = line.tab.value_or(0); tab < 0 || tab > last) {
    return Fail(QStringLiteral("--tab: there is no tab %1; '%2' has tabs 0 to %3.")
                    .arg(tab)
                    .arg(line.open)
                    .arg(last));
  }
  if (line.action == CommandLine::Action::Screenshot) {
    const QString error = CheckPictureFile(line.target);
    if (!error.isEmpty()) return Fail(error);
  }
  return request;
}

int Run(int argc, char* argv[]) {
  auto prepared = Prepare(argc, argv);
  if (const int* exitCode = std::get_if<int>(&prepared)) return *exitCode;
  auto& [line, profiles, opened] = std::get<Request>(prepared);

  if (!HasDisplay()) {
    if (line.action == CommandLine::Action::Window) {
      return Fail(QStringLiteral("no display; use --list, --tour or --screenshot without one."),
                  kNoDisplay);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (line.language.has_value()) ChooseLanguage(*line.language);
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  TranslateToolkit();

  switch (line.action) {
    case CommandLine::Action::Tour:
      return RunTour(profiles, line.target);
    case CommandLine::Action::Screenshot: {
      const QString error = SaveScreenshot(profiles[opened], line.tab.value_or(0), line.target);
      return error.isEmpty() ? 0 : Fail(error);
    }
    default:
      return RunWindow(line, std::move(profiles), opened);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "advanced-control: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
