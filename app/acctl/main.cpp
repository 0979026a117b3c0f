#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include "app/acctl/Output.h"
#include "app/acctl/Preflight.h"
#include "app/acctl/Uses.h"
#include "app/profiles/SettingsFile.h"
#include "device/Connect.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

namespace {

using Command = Arguments::Command;

std::atomic<int> receivedSignal{0};
static_assert(std::atomic<int>::is_always_lock_free);

// The first Ctrl+C lets the work tell what was done, the second ends the program. What whoever
// started us wants ignored, as nohup does, stays so.
void WatchSignals() {
  struct sigaction action {};
  action.sa_handler = [](int signal) { receivedSignal = signal; };
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction inherited {};
    sigaction(signal, nullptr, &inherited);
    if (inherited.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
  }
}

// A reader that left must not cut off what is being sent, and what is printed where nothing is open
// must not reach a file or a projector that is opened in its place.
void GuardOutput() {
  std::signal(SIGPIPE, SIG_IGN);
  int opened = 0;
  while (opened >= 0 && opened <= STDERR_FILENO) opened = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(opened);
}

int Fail(std::string_view message) {
  Complain(message);
  return ExitCode::WrongUse;
}

ProfileFileContents ReadProfiles(const Arguments& arguments) {
  if (!arguments.profiles.empty()) return ReadProfileFile(Wide(arguments.profiles));
  const QDir folder(QCoreApplication::applicationDirPath());
  const QStringList places{
      folder.filePath("projectors.json"),
      QDir::cleanPath(folder.filePath("../share/advanced-control/projectors.json"))};
  const auto place = std::ranges::find_if(places, qOverload<const QString&>(&QFileInfo::exists));
  if (place != places.end()) return ReadProfileFile(*place);
  return {.projectors = {},
          .error = QStringLiteral("no profiles at %1; name a file with --profiles")
                       .arg(places.join(QStringLiteral(" or ")))};
}

int List(const Arguments& arguments, const std::vector<ProjectorProfile>& profiles) {
  Table table;
  QJsonArray json;
  for (const ProjectorProfile& profile : profiles) {
    const CModelInfo2& model = profile.Model;
    const std::string connection = ConnectionText(model).toStdString();
    if (arguments.brief) {
      table.Add({profile.Name});
    } else {
      table.Add({profile.Name, model.ModelName, std::to_string(model.DialogType),
                 std::to_string(model.ModelCode), connection});
    }
    json.append(QJsonObject{{"name", Wide(profile.Name)},
                            {"model", Wide(model.ModelName)},
                            {"dialogType", model.DialogType},
                            {"modelCode", model.ModelCode},
                            {"connection", Wide(connection)}});
  }
  const QByteArray text = QJsonDocument(QJsonObject{{"projectors", json}}).toJson();
  return Print(arguments.json ? text.toStdString() : table.Text()) ? ExitCode::Done
                                                                   : ExitCode::Refused;
}

/// The projectors that the command names, each once, in the order of the names.
std::string Choose(const std::vector<std::string>& names,
                   const std::vector<ProjectorProfile>& profiles,
                   std::vector<const ProjectorProfile*>& chosen) {
  for (const std::string& name : names) {
    const auto add = [&chosen](const ProjectorProfile& profile) {
      if (std::ranges::find(chosen, &profile) == chosen.end()) chosen.push_back(&profile);
    };
    // A name may look like a pattern.
    const auto exact = std::ranges::find(profiles, name, &ProjectorProfile::Name);
    bool found = exact != profiles.end();
    if (found) add(*exact);
    for (const ProjectorProfile& profile : profiles) {
      if (found && exact != profiles.end()) break;
      if (!IsLike(profile.Name, {name})) continue;
      add(profile);
      found = true;
    }
    if (!found) return "there is no projector '" + name + "'; acctl list names all";
  }
  return {};
}

/// The projector of the profile, or what is at the address that was given.
std::shared_ptr<ProjectorChannel> ChannelTo(const ProjectorProfile& profile,
                                            const Arguments& arguments) {
  const bool isGiven = !arguments.address.empty();
  if (!isGiven && profile.Link == ProjectorLink::Simulated) {
    return std::make_shared<SimulatedProjector>(SimulatedModelOf(profile));
  }
  return MakeUnboundedChannel(
      isGiven ? ParseAddress(arguments.address, arguments.password) : AddressOf(profile),
      arguments.timeOut);
}

using Run = Report (*)(const Work&, ProjectorAccess&);

Run RunOf(Command command) {
  switch (command) {
    case Command::Settings:
      return RunSettings;
    case Command::Get:
      return RunGet;
    case Command::Set:
      return RunSet;
    case Command::Reset:
      return RunReset;
    case Command::Status:
      return RunStatus;
    case Command::Save:
      return RunSave;
    case Command::Diff:
      return RunDiff;
    case Command::Apply:
      return RunApply;
    default:
      return RunWatch;
  }
}

/// A line for one of several projectors, or its own text behind its name.
std::string Titled(const std::string& name, const std::string& text) {
  const bool oneLine = std::ranges::count(text, '\n') == 1;
  return name + (oneLine ? ": " : "\n") + text;
}

int RunOnProjectors(const Work& work, const std::vector<const ProjectorProfile*>& projectors) {
  const Arguments& arguments = work.arguments;
  const bool several = projectors.size() > 1;
  const Run run = RunOf(arguments.command);
  Meter meter(several && isatty(STDERR_FILENO) == 1, static_cast<int>(projectors.size()));
  int code = ExitCode::Done;
  bool printed = true;
  const bool isSaved = arguments.command == Command::Save && arguments.file == "-";
  const bool asJson = arguments.json && arguments.command != Command::Watch && !isSaved;
  QJsonArray json;
  const auto reach = [&](int number) {
    const ProjectorProfile& profile = *projectors[static_cast<std::size_t>(number)];
    return ProjectorAccess(profile, ChannelTo(profile, arguments), arguments.timeOut);
  };
  const auto ask = [&](ProjectorAccess& projector, const auto& act) {
    projector.AskForInputs(InputsNeededBy(work, TargetOf(projector)));
    if (!projector.Channel().IsGone() || arguments.command == Command::Settings) {
      return act(work, projector);
    }
    Report report;
    report.Complain(NoAnswerText(projector), ExitCode::NoAnswer);
    return report;
  };
  const auto checked = CheckWords(work, projectors, meter, [&](int number) {
    ProjectorAccess projector = reach(number);
    return ask(projector, CheckAsked);
  });
  RunParallel(
      static_cast<int>(projectors.size()), arguments.jobs, meter,
      [&](int number) {
        if (const auto& report = checked[static_cast<std::size_t>(number)]) return *report;
        ProjectorAccess projector = reach(number);
        Report report = ask(projector, run);
        // Nothing was sent to this one; but to others, perhaps.
        if (several && report.code == ExitCode::WrongUse) report.code = ExitCode::Refused;
        return report;
      },
      [&](int number, Report report) {
        const std::string& name = projectors[static_cast<std::size_t>(number)]->Name;
        for (const std::string& complaint : report.complaints) {
          Complain(std::string(name).append(": ").append(complaint));
        }
        code = std::max(code, report.code);
        if (asJson) {
          report.json["name"] = Wide(name);
          json.append(report.json);
        } else if (printed && !report.text.empty()) {
          printed = Print(several ? Titled(name, report.text) : report.text);
        }
      });
  if (asJson)
    printed = Print(QJsonDocument(QJsonObject{{"projectors", json}}).toJson().toStdString());
  if (const int signal = receivedSignal; signal != 0 && arguments.command != Command::Watch) {
    Complain("cut off; what was done is told above");
    return ExitCode::Signalled + signal;
  }
  return printed ? code : std::max(code, ExitCode::Refused);
}

int Main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const Arguments arguments = ParseArguments({argv + 1, argv + argc});
  if (!arguments.error.empty()) return Fail(arguments.error);
  if (arguments.command == Command::Help) return Print(HelpText()) ? 0 : ExitCode::Refused;
  if (arguments.command == Command::Version) {
    return Print("acctl " ADVANCED_CONTROL_VERSION "\n") ? 0 : ExitCode::Refused;
  }
  const ProfileFileContents profiles = ReadProfiles(arguments);
  if (!profiles.error.isEmpty()) return Fail(profiles.error.toStdString());
  if (arguments.command == Command::List) return List(arguments, profiles.projectors);

  std::vector<const ProjectorProfile*> projectors;
  const std::string error = Choose(arguments.projectors, profiles.projectors, projectors);
  if (!error.empty()) return Fail(error);
  const bool takesOne = arguments.command == Command::Save || arguments.command == Command::Watch;
  if (projectors.size() > 1 && (takesOne || !arguments.address.empty())) {
    return Fail("this takes one projector, not " + std::to_string(projectors.size()));
  }
  if (const auto address = ParseAddress(arguments.address, arguments.password);
      !arguments.address.empty() && std::holds_alternative<AddressError>(address)) {
    return Fail("--connect: " + std::get<AddressError>(address).text);
  }
  const std::vector<std::string> folders = CatalogFolders();
  const SettingTexts texts(folders, arguments.language.value_or(SystemLanguageId()));
  Work work{.arguments = arguments,
            .texts = texts,
            .profiles = profiles.projectors,
            .file = {},
            .isInterrupted = [] { return receivedSignal != 0; },
            .step = [] {}};
  if (arguments.command == Command::Diff || arguments.command == Command::Apply) {
    work.file = ReadSettingsFile(Wide(arguments.file));
    if (!work.file.error.isEmpty()) return Fail(work.file.error.toStdString());
    Snapshot& snapshot = work.file.snapshot;
    for (const std::string& pattern : arguments.only) {
      const bool isNone = std::ranges::none_of(
          snapshot.settings,
          [&pattern](const SavedSetting& saved) { return IsLike(saved.key, {pattern}); });
      if (isNone) return Fail("--only " + pattern + ": the file has no such setting");
    }
    // A part of it would be put back under a source or mode that it does not belong to.
    if (!arguments.only.empty()) snapshot.beforehand.clear();
    if (const int code = CheckFile(work, projectors); code != ExitCode::Done) return code;
  }
  WatchSignals();
  return RunOnProjectors(work, projectors);
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    GuardOutput();
    return Main(argc, argv);
  } catch (const std::exception& error) {
    Complain(error.what());
    return ExitCode::Refused;
  }
}
