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
#include <QJsonArray>
#include <QJsonDocument>

#include "app/acctl/OpenProjectors.h"
#include "app/acctl/Output.h"
#include "app/acctl/Password.h"
#include "app/acctl/Preflight.h"
#include "app/acctl/Signals.h"
#include "app/acctl/Uses.h"
#include "app/profiles/OutOfMemory.h"
#include "app/profiles/SettingsFile.h"
#include "device/Connect.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

namespace {

using Command = Arguments::Command;

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

/// What an undo file puts back was another projector's, in an order that was right there.
std::string CheckUndo(const Arguments& arguments, const Snapshot& file,
                      const std::vector<const ProjectorProfile*>& projectors) {
  const bool isUndo = file.isUndo || !file.beforehand.empty();
  const bool changes = arguments.command == Command::Apply && !arguments.dryRun;
  if (!isUndo || !changes || arguments.force) return {};
  const auto other = std::ranges::find_if(projectors, [&file](const ProjectorProfile* profile) {
    return profile->Name != file.projector;
  });
  if (other == projectors.end()) return {};
  return arguments.file + ": undoes a change of " + file.projector + "; --force applies it to " +
         (*other)->Name;
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

/// Where the projector of the profile is; nowhere while it is only simulated.
std::optional<ProjectorAddress> AddressOf(const ProjectorProfile& profile, const Work& work,
                                          const std::string& password) {
  const bool isGiven = !work.arguments.address.empty();
  if (!isGiven && profile.Link == ProjectorLink::Simulated) return std::nullopt;
  ProjectorAddress address = isGiven ? ParseAddress(work.arguments.address) : AddressOf(profile);
  auto* const pjLink = std::get_if<PjLinkAddress>(&address);
  if (pjLink != nullptr && pjLink->password.empty()) pjLink->password = password;
  return address;
}

std::shared_ptr<ProjectorChannel> ChannelTo(const ProjectorProfile& profile,
                                            const std::optional<ProjectorAddress>& address,
                                            std::chrono::milliseconds timeOut) {
  if (address) return MakeUnboundedChannel(*address, timeOut);
  return std::make_shared<SimulatedProjector>(SimulatedModelOf(profile));
}

using Act = Report (*)(const Work&, ProjectorAccess&);

Act RunOf(Command command) {
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

/// What is done with a projector.
struct Action {
  Act act;
  OpenProjectors& open;
  int number;    ///< In `open`.
  bool isCheck;  ///< Keeps the projector open for the run unless something is wrong.
};

/// `password` is for a projector whose profile has none; `lacksPassword` becomes whether it wants
/// one and neither has it.
Report ActOver(const Work& work, const ProjectorProfile& profile, const Action& action,
               const std::string& password, bool& lacksPassword) {
  const Arguments& arguments = work.arguments;
  const auto address = AddressOf(profile, work, password);
  // Lists need next to nothing of the projector, and who watches would never let another one in.
  const bool isListed = arguments.command == Command::Settings;
  auto open = action.open.Take(action.number);
  if (!open) open = std::make_unique<OpenProjector>();
  if (!open->lock && address && !isListed && arguments.command != Command::Watch) {
    open->lock.emplace(*address, arguments.timeOut, [&] {
      action.open.CloseAll();
      return work.isInterrupted();
    });
  }
  Report report;
  if (open->lock && !open->lock->IsHeld()) {
    report.Complain("another run of acctl works on it", ExitCode::NoAnswer);
    return report;
  }
  if (!open->access) {
    open->access.emplace(profile, ChannelTo(profile, address, arguments.timeOut),
                         arguments.timeOut);
  }
  ProjectorAccess& projector = *open->access;
  projector.AskForInputs(InputsNeededBy(work, TargetOf(projector)));
  if (projector.Channel().IsGone() && !isListed) {
    report.Complain(NoAnswerText(projector), ExitCode::NoAnswer);
  } else {
    report = action.act(work, projector);
  }
  const auto* const pjLink = address ? std::get_if<PjLinkAddress>(&*address) : nullptr;
  lacksPassword = pjLink != nullptr && pjLink->password.empty() &&
                  projector.Channel().Connection() == ConnectionState::PasswordRequired;
  if (action.isCheck && report.code == ExitCode::Done) {
    action.open.Keep(action.number, std::move(open));
  }
  return report;
}

/// A password that nobody has given is asked for, unless `typed` is null, and kept there.
Report ActOnProjector(const Work& work, const ProjectorProfile& profile, const Action& action,
                      std::string* typed) {
  bool lacksPassword = false;
  const bool isKnown = typed != nullptr && !typed->empty();
  Report report = ActOver(work, profile, action, isKnown ? *typed : work.password, lacksPassword);
  if (!lacksPassword || typed == nullptr) return report;
  // The projector has done nothing so far.
  *typed = AskForPassword(profile.Name, work.isInterrupted).value_or(std::string());
  return typed->empty() ? report : ActOver(work, profile, action, *typed, lacksPassword);
}

/// A line for one of several projectors, or its own text behind its name.
std::string Titled(const std::string& name, const std::string& text) {
  const bool oneLine = std::ranges::count(text, '\n') == 1;
  return name + (oneLine ? ": " : "\n") + text;
}

int RunOnProjectors(const Work& work, const std::vector<const ProjectorProfile*>& projectors) {
  const Arguments& arguments = work.arguments;
  const bool several = projectors.size() > 1;
  Meter meter(several && isatty(STDERR_FILENO) == 1, static_cast<int>(projectors.size()));
  int code = ExitCode::Done;
  bool printed = true;
  const bool isSaved = arguments.command == Command::Save && arguments.file == "-";
  const bool asJson = arguments.json && arguments.command != Command::Watch && !isSaved;
  QJsonArray json;
  std::string typed;
  OpenProjectors open;
  const auto act = [&](int number, Act doing, bool isCheck) {
    return ActOnProjector(work, *projectors[static_cast<std::size_t>(number)],
                          {doing, open, number, isCheck}, several ? nullptr : &typed);
  };
  const auto checked = CheckWords(work, projectors, meter,
                                  [&](int number) { return act(number, CheckAsked, true); });
  RunParallel(
      static_cast<int>(projectors.size()), arguments.jobs, meter,
      [&](int number) {
        if (const auto& report = checked[static_cast<std::size_t>(number)]) return *report;
        Report report = act(number, RunOf(arguments.command), false);
        // Nothing was sent to this one, but perhaps to others.
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
  if (const int signal = ReceivedSignal(); signal != 0 && arguments.command != Command::Watch) {
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
  if (const auto address = ParseAddress(arguments.address);
      !arguments.address.empty() && std::holds_alternative<AddressError>(address)) {
    return Fail("--connect: " + std::get<AddressError>(address).text);
  }
  std::string passwordError;
  const std::string password = GivenPassword(arguments, passwordError);
  if (!passwordError.empty()) return Fail(passwordError);
  const std::vector<std::string> folders = CatalogFolders();
  const SettingTexts texts(folders, arguments.language.value_or(SystemLanguageId()));
  if (!texts.Problem().empty()) Complain(texts.Problem());
  Work work{.arguments = arguments,
            .texts = texts,
            .profiles = profiles.projectors,
            .file = {},
            .password = password,
            .isInterrupted = [] { return ReceivedSignal() != 0; },
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
    const std::string undoError = CheckUndo(arguments, snapshot, projectors);
    if (!undoError.empty()) return Fail(undoError);
    // A part of it would be put back under a source or mode that it does not belong to.
    if (!arguments.only.empty()) snapshot.beforehand.clear();
    if (const int code = CheckFile(work, projectors); code != ExitCode::Done) return code;
  }
  WatchSignals();
  return RunOnProjectors(work, projectors);
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
