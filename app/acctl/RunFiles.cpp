#include "app/acctl/RunFiles.h"

#include <algorithm>
#include <set>

#include <QDir>
#include <QFileInfo>

#include "app/acctl/Message.h"
#include "app/acctl/Printer.h"
#include "app/acctl/Selection.h"
#include "app/profiles/PresetFolder.h"
#include "fleet/MakeVisit.h"
#include "fleet/WholeFile.h"

namespace {

const FleetProfile* FindProfile(const std::vector<FleetProfile>& profiles,
                                const std::string& name) {
  const auto found = std::ranges::find(profiles, name, &FleetProfile::name);
  return found != profiles.end() ? &*found : nullptr;
}

/// An undo file holds values of another projector, for the order in which that one was changed.
std::string CheckUndo(const Arguments& arguments, const Snapshot& file,
                      const Projectors& projectors) {
  const bool isUndo = file.isUndo || !file.beforehand.empty();
  const bool changes = arguments.command == Command::Apply && !arguments.dryRun;
  if (!isUndo || !changes || arguments.force) return {};
  const auto other = std::ranges::find_if(
      projectors, [&file](const FleetProfile* profile) { return profile->name != file.projector; });
  if (other == projectors.end()) return {};
  return Message(Acctl::tr("%1: undoes a change of %2; --force applies it to %3"), arguments.file,
                 file.projector, (*other)->name);
}

/// Whether a file that could not be read as one of settings is the undo file of a whole run.
bool IsOfWholeRun(const SettingsFileContents& file) {
  if (file.name.isEmpty() || !QFileInfo(file.name).isFile()) return false;
  const RecordedRun run = ReadRun(file.name);
  return run.error.isEmpty() && !run.undo.empty();
}

/// What is wrong with a file that could not be read as one of settings. An undo file is for another
/// command.
std::string ErrorOf(const SettingsFileContents& file) {
  std::string error = file.error.toStdString();
  if (!IsOfWholeRun(file)) return error;
  return error + "; " + Message(Acctl::tr("use: %1"), "acctl undo " + file.name.toStdString());
}

/// Takes the settings that --only means, and checks that there are some for each pattern.
std::string CheckOnly(const Arguments& arguments, SettingsFileContents& contents) {
  Snapshot& snapshot = contents.snapshot;
  for (const std::string& pattern : arguments.only) {
    const bool isNone = std::ranges::none_of(
        snapshot.settings,
        [&pattern](const SavedSetting& saved) { return IsLike(saved.key, {pattern}); });
    if (isNone) return Message(Acctl::tr("--only %1: the file has no such setting"), pattern);
  }
  // A part of these would be restored under a source or mode that they do not belong to.
  if (!arguments.only.empty()) snapshot.beforehand.clear();
  return {};
}

std::string LoadFolder(const Arguments& arguments, Projectors& projectors,
                       const std::vector<FleetProfile>& profiles, SettingsFiles& files,
                       std::vector<Problem>& left) {
  const QDir folder(Wide(arguments.file));
  for (const QString& name : folder.entryList({"*.json"}, QDir::Files, QDir::Name)) {
    SettingsFileContents contents = ReadSettingsFile(folder.filePath(name));
    if (!contents.error.isEmpty()) {
      if (IsOfWholeRun(contents)) continue;  // beside the files that were applied
      return contents.error.toStdString();
    }
    const std::string projector = contents.snapshot.projector;
    const std::string path = contents.name.toStdString();
    if (FindProfile(profiles, projector) == nullptr) {
      left.push_back({ProblemCode::NoSuchProjector,
                      Message(Acctl::tr("%1: there is no projector '%2'"), path, projector)});
      continue;
    }
    if (!arguments.only.empty()) contents.snapshot.beforehand.clear();
    const auto [other, isNew] = files.own.try_emplace(projector, std::move(contents));
    if (!isNew) {
      //: Two files, and the projector that both are of.
      return Message(Acctl::tr("%1: %2 is also of %3"), path, other->second.name, projector);
    }
  }
  if (files.own.empty()) {
    return Message(Acctl::tr("%1: the folder has no files of settings"), arguments.file);
  }
  std::erase_if(projectors, [&](const FleetProfile* profile) {
    const bool isMissing = !files.own.contains(profile->name);
    if (isMissing && !arguments.projectors.empty()) {
      left.push_back({ProblemCode::File, Message(Acctl::tr("%1: there is no file of it in %2"),
                                                 profile->name, arguments.file)});
    }
    return isMissing;
  });
  return {};
}

/// Why a file must not be replaced; empty if it may be.
std::string WhyKept(const std::string& path, bool force) {
  const QFileInfo info(Wide(path));
  if (force || path == "-" || !info.isFile() || info.size() == 0) return {};
  if (ReadSettingsFile(Wide(path)).error.isEmpty()) return {};
  return Message(Acctl::tr("%1: is not a file of settings; --force replaces it"), path);
}

/// The file of a projector in a folder: a new one, or its own.
std::string PathIn(const QDir& folder, const std::string& projector,
                   const std::set<std::string>& taken) {
  const QString base = FileNameOf(projector);
  for (int number = 1;; ++number) {
    const QString suffix = number == 1 ? QString() : '-' + QString::number(number);
    const QString file = folder.filePath(base + suffix + QStringLiteral(".json"));
    if (taken.contains(file.toStdString())) continue;
    if (!QFileInfo::exists(file)) return file.toStdString();
    const SettingsFileContents contents = ReadSettingsFile(file);
    const bool isOther = contents.error.isEmpty() && contents.snapshot.projector != projector;
    if (!isOther) return file.toStdString();
  }
}

/// Why a run cannot be undone; empty if it can.
QString ObstacleOf(const RecordedRun& run) {
  const bool isEmpty = run.error.isEmpty() && run.undo.empty();
  return isEmpty ? Acctl::tr("%1: there is nothing to undo").arg(run.path) : run.error;
}

/// Empty for a simulated projector.
std::string ShownPlaceOf(const FleetProfile& profile) {
  if (profile.link == ProjectorLink::Simulated) return {};
  const auto [host, port] = PlaceOf(TargetOf(profile));
  const bool isIpv6 = host.find(':') != std::string::npos;
  const std::string place = isIpv6 ? '[' + host + ']' : host;
  return port != 0 ? place + ':' + std::to_string(port) : place;
}

/// What the run knows a projector by: its name, if it has got an identity since.
std::string IdIn(const RecordedRun& run, const FleetProfile& profile) {
  const std::string id = FleetIdOf(profile);
  return run.undo.contains(id) ? id
                               : FleetIdOf({.name = profile.name, .model = {}, .connection = {}});
}

}  // namespace

std::string LoadSettingsFiles(const Arguments& arguments, Projectors& projectors,
                              const std::vector<FleetProfile>& profiles, SettingsFiles& files,
                              std::vector<Problem>& left) {
  if (QFileInfo(Wide(arguments.file)).isDir()) {
    return LoadFolder(arguments, projectors, profiles, files, left);
  }
  const QString file = PresetFolder::FileMeantBy(Wide(arguments.file));
  if (arguments.projectors.empty()) {
    const bool isMissing = arguments.file != "-" && !QFileInfo::exists(file);
    return isMissing ? Message(Acctl::tr("%1: there is no such file or folder"), arguments.file)
                     : Message(Acctl::tr("name the projectors to which the file is applied"));
  }
  files.common = ReadSettingsFile(file);
  if (!files.common.error.isEmpty()) return ErrorOf(files.common);
  std::string error = CheckOnly(arguments, files.common);
  return error.empty() ? CheckUndo(arguments, files.common.snapshot, projectors) : error;
}

std::string ChooseSavePaths(const Arguments& arguments, const Projectors& projectors,
                            std::map<std::string, std::string>& paths) {
  if (arguments.folder.empty()) {
    if (projectors.size() > 1) {
      return Message(Acctl::tr("one file is for one projector, not %1; -o names a folder"),
                     projectors.size());
    }
    for (const FleetProfile* profile : projectors) paths[profile->name] = arguments.file;
    return WhyKept(arguments.file, arguments.force);
  }
  if (!QDir().mkpath(Wide(arguments.folder))) {
    return Message(Acctl::tr("cannot make the folder %1"), arguments.folder);
  }
  const QDir folder(Wide(arguments.folder));
  std::set<std::string> taken;
  for (const FleetProfile* profile : projectors) {
    const std::string path = PathIn(folder, profile->name, taken);
    if (std::string why = WhyKept(path, arguments.force); !why.empty()) return why;
    taken.insert(path);
    paths[profile->name] = path;
  }
  return {};
}

QString UndoFolderOf(const Arguments& arguments) {
  return arguments.undoFolder.empty() ? UndoFolder() : Wide(arguments.undoFolder);
}

std::string ChooseRun(const Arguments& arguments, RecordedRun& run) {
  const bool isLast = arguments.file.empty() || arguments.file == kLastRun;
  if (!isLast && QFileInfo::exists(Wide(arguments.file))) {
    run = ReadRun(Wide(arguments.file));
    return ObstacleOf(run).toStdString();
  }
  std::vector<RecordedRun> runs = ListRuns(UndoFolderOf(arguments));
  std::ranges::reverse(runs);
  const auto found = std::ranges::find_if(runs, [&](const RecordedRun& recorded) {
    if (!isLast) return recorded.name == arguments.file;
    // One that cannot be read may be the last run.
    return !recorded.error.isEmpty() || (!recorded.isUndo && !recorded.isUndone);
  });
  if (found == runs.end()) {
    return isLast ? Message(Acctl::tr("there is no run to undo"))
                  : Message(Acctl::tr("there is no run '%1'; --list shows them"), arguments.file);
  }
  run = std::move(*found);
  const QString obstacle = ObstacleOf(run);
  return isLast && !obstacle.isEmpty()
             ? Message(Acctl::tr("%1; name an earlier run to undo that one"), obstacle)
             : obstacle.toStdString();
}

void TakeRun(const RecordedRun& run, const std::vector<FleetProfile>& profiles,
             Projectors& projectors, SettingsFiles& files, std::vector<Problem>& left) {
  std::set<std::string> known;
  for (const FleetProfile& profile : profiles) {
    const auto found = run.undo.find(IdIn(run, profile));
    if (found == run.undo.end()) continue;
    known.insert(found->first);
    projectors.push_back(&profile);
    files.own[profile.name] = {.snapshot = *found->second, .name = run.path};
  }
  for (const auto& [id, snapshot] : run.undo) {
    if (known.contains(id)) continue;
    left.push_back(
        {ProblemCode::NoSuchProjector,
         Message(Acctl::tr("%1: is no longer in the profile file"), snapshot->projector)});
  }
}

UndoId UndoIdOf(const FleetProfile& profile) {
  return {FleetIdOf(profile), profile.identity.empty() ? ShownPlaceOf(profile) : std::string()};
}

void LeaveOutOthers(const RecordedRun& run, Projectors& projectors, std::vector<Problem>& left) {
  std::erase_if(projectors, [&](const FleetProfile* profile) {
    const auto changed = run.places.find(IdIn(run, *profile));
    const std::string present = ShownPlaceOf(*profile);
    if (changed == run.places.end() || changed->second == present) return false;
    const auto named = [profile](const std::string& place) {
      return place.empty() ? ShownName(profile->name, true) : profile->name + " (" + place + ')';
    };
    left.push_back({ProblemCode::NoSuchProjector,
                    Message(Acctl::tr("%1: undoes a change of %2; --force applies it to %3"),
                            run.path, named(changed->second), named(present))});
    return true;
  });
}
