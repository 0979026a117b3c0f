#include "app/acctl/ProgramRun.h"

#include <algorithm>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include "app/acctl/Completion.h"
#include "app/acctl/Listing.h"
#include "app/acctl/Message.h"
#include "app/acctl/Output.h"
#include "app/acctl/ParseArguments.h"
#include "app/acctl/Password.h"
#include "app/acctl/ProfileTables.h"
#include "app/acctl/ProjectorRuns.h"
#include "app/acctl/RunFiles.h"
#include "app/acctl/Selection.h"
#include "app/acctl/Signals.h"
#include "app/acctl/Simulated.h"
#include "app/acctl/Watching.h"
#include "device/Connect.h"
#include "fleet/WholeFile.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

namespace {

/// The command line for the list of runs, without passwords.
std::string CommandLine(const std::vector<std::string>& words) {
  std::string line;
  bool isPassword = false;
  for (const std::string& word : words) {
    const bool hidesNext = word == "--password";
    const bool isHidden = isPassword || word.starts_with("--password=");
    line += (line.empty() ? "" : " ") + (isHidden ? std::string("***") : word);
    isPassword = hidesNext;
  }
  return line;
}

/// Adds the words of --from: lines like KEY=VALUE; '#' begins a comment.
std::string TakeWordsFrom(Arguments& arguments) {
  constexpr qsizetype kMost = qsizetype{1} << 20;
  const FileBytes file = ReadToEnd(Wide(arguments.from), kMost);
  if (!file.error.isEmpty()) {
    return Message(Acctl::tr("cannot read %1: %2"), arguments.from, file.error);
  }
  std::vector<std::string> lines;
  for (const QByteArray& whole : file.bytes.split('\n')) {
    const QByteArray line = whole.trimmed();
    if (!line.isEmpty() && !line.startsWith('#')) lines.push_back(line.toStdString());
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!AddAssignment(lines[i], arguments.words)) {
      return Message(Acctl::tr("%1: '%2' is not KEY=VALUE"), arguments.from, lines[i]);
    }
  }
  return arguments.words.empty() ? Message(Acctl::tr("%1: has no KEY=VALUE"), arguments.from)
                                 : std::string();
}

/// For '-o jsonl'.
std::string LinesOf(const QJsonArray& entries, const QJsonArray& errors) {
  std::string lines;
  const auto add = [&lines](const QJsonObject& line) {
    lines += QJsonDocument(line).toJson(QJsonDocument::Compact).toStdString() + '\n';
  };
  for (const auto& entry : entries) add(entry.toObject());
  for (const auto& error : errors) add({{"error", error}});
  return lines;
}

/// One run of the program for a command that works with projectors.
class ProgramRun {
 public:
  ProgramRun(const Arguments& arguments, const std::vector<std::string>& words,
             const std::vector<FleetProfile>& profiles)
      : arguments_(arguments),
        profiles_(profiles),
        folders_(CatalogFolders()),
        shown_(folders_, arguments.language.value_or(SystemLanguageId())),
        recorded_{.time = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString(),
                  .command = CommandLine(words),
                  .address = arguments.connecting.address,
                  .isUndo = arguments.command == Command::Undo} {
    const bool isEnglish = arguments.language.value_or(SystemLanguageId()) == kEnglishUnitedStates;
    if (!isEnglish) english_.emplace(folders_, kEnglishUnitedStates);
  }

  int Run();

 private:
  std::string Prepare();
  std::string PrepareUndo();
  std::string LimitUndo();
  int RunOnProjectors(const ValueTexts& texts);
  std::vector<std::string> ConditionKeys() const;
  int ListRecordedRuns() const;

  Arguments arguments_;
  const std::vector<FleetProfile>& profiles_;
  const std::vector<std::string> folders_;
  const SettingTexts shown_;
  std::optional<SettingTexts> english_;  // only if that is another language
  RecordedRun recorded_;
  RecordedRun undone_;
  Projectors projectors_;
  SettingsFiles files_;
  std::map<std::string, std::string> paths_;
  std::vector<Condition> conditions_;
  std::vector<Problem> left_;  // what takes no part, and why
  std::string password_;
  ModelCache models_;
  bool isWhole_ = true;  ///< No projector is left out that could take part.
};

std::string ProgramRun::PrepareUndo() {
  std::string error = ChooseRun(arguments_, undone_);
  if (!error.empty()) return error;
  if (!arguments_.dryRun) KeepForNow(undone_);
  // The file contains the projector's address, and the options on which its values depend.
  if (arguments_.connecting.address.empty()) arguments_.connecting.address = undone_.address;
  recorded_.address = arguments_.connecting.address;
  TakeRun(undone_, profiles_, projectors_, files_, left_);
  if (!arguments_.projectors.empty()) error = LimitUndo();
  const bool isThere = arguments_.force || !arguments_.connecting.address.empty();
  if (!isThere) LeaveOutOthers(undone_, projectors_, left_);
  arguments_.lenient = true;
  return error;
}

/// Leaves out projectors that the user did not name.
std::string ProgramRun::LimitUndo() {
  const Selection selection = Select(arguments_.projectors, profiles_);
  if (!selection.error.empty()) return selection.error;
  left_.clear();
  isWhole_ =
      std::erase_if(projectors_, [&](const FleetProfile* profile) {
        return std::ranges::find(selection.projectors, profile) == selection.projectors.end();
      }) == 0;
  return projectors_.empty() ? Message(Acctl::tr("the run has changed none of these projectors"))
                             : std::string();
}

std::string ProgramRun::Prepare() {
  if (!arguments_.from.empty()) {
    if (std::string error = TakeWordsFrom(arguments_); !error.empty()) return error;
  }
  if (!arguments_.where.empty()) {
    ConditionList list = ParseConditions(arguments_.where);
    if (!list.error.empty()) return list.error;
    conditions_ = std::move(list.conditions);
  }
  std::string error;
  if (arguments_.command == Command::Undo) {
    error = PrepareUndo();
  } else {
    Selection selection = Select(arguments_.projectors, profiles_);
    error = std::move(selection.error);
    projectors_ = std::move(selection.projectors);
  }
  const std::string& connect = arguments_.connecting.address;
  if (error.empty() && !connect.empty()) {
    const auto address = ParseAddress(connect);
    if (const auto* const wrong = std::get_if<AddressError>(&address)) {
      return "--connect: " + wrong->text;
    }
    if (projectors_.size() > 1) {
      return Message(Acctl::tr("this takes one projector, not %1"), projectors_.size());
    }
  }
  if (error.empty()) password_ = GivenPassword(arguments_, error);
  if (!error.empty()) return error;
  switch (arguments_.command) {
    case Command::Diff:
    case Command::Apply:
      return LoadSettingsFiles(arguments_, projectors_, profiles_, files_, left_);
    case Command::Save:
      return ChooseSavePaths(arguments_, projectors_, paths_);
    default:
      return {};
  }
}

std::vector<std::string> ProgramRun::ConditionKeys() const {
  std::vector<std::string> keys;
  for (const Condition& condition : conditions_) keys.push_back(condition.key);
  for (const Condition& until : ParseConditions(arguments_.until).conditions) {
    keys.push_back(until.key);
  }
  return keys;
}

int ProgramRun::ListRecordedRuns() const {
  Table table;
  QJsonArray json;
  QJsonArray errors;
  for (const RecordedRun& run : ListRuns(UndoFolderOf(arguments_))) {
    if (!run.error.isEmpty()) {
      Complain(run.error.toStdString());
      errors.append(QJsonObject{{"code", ProblemCode::File}, {"text", run.error}});
      continue;
    }
    const auto count = static_cast<int>(run.undo.size());
    const QDateTime time = QDateTime::fromString(Wide(run.time), Qt::ISODate).toLocalTime();
    //: Of a run of the program: somebody has undone it.
    table.Add({run.name, QLocale().toString(time, QLocale::ShortFormat).toStdString(),
               CountedProjectors(count), run.isUndone ? Message(Acctl::tr("undone")) : "",
               run.command});
    json.append(QJsonObject{{"run", Wide(run.name)},
                            {"time", Wide(run.time)},
                            {"command", Wide(run.command)},
                            {"file", run.path},
                            {"projectors", count},
                            {"isUndo", run.isUndo},
                            {"isUndone", run.isUndone}});
  }
  std::string text = table.Text();
  if (arguments_.format == Format::JsonLines) {
    text = LinesOf(json, errors);
  } else if (arguments_.format != Format::Text) {
    QJsonObject envelope = Envelope(arguments_.command);
    envelope["runs"] = json;
    if (!errors.isEmpty()) envelope["errors"] = errors;
    text = QJsonDocument(envelope).toJson().toStdString();
  }
  return Print(text) && errors.isEmpty() ? ExitCode::Done : ExitCode::Refused;
}

int ProgramRun::RunOnProjectors(const ValueTexts& texts) {
  // A condition may apply to projectors of many kinds, so this is no error.
  const std::string note = ImpossibleValue(conditions_, texts, projectors_, models_);
  if (!note.empty()) Complain("--where " + note);
  JobLoop loop;
  UndoRecorder undo(UndoFolderOf(arguments_), arguments_.undoDays, recorded_);
  Work work{.arguments = arguments_,
            .texts = texts,
            .profiles = profiles_,
            .isForSeveral = projectors_.size() > 1,
            .files = std::move(files_),
            .paths = std::move(paths_),
            .conditionKeys = ConditionKeys(),
            .password = password_,
            .models = &models_,
            .undo = &undo,
            .loop = &loop,
            .isInterrupted = [] { return ReceivedSignal() != 0; }};
  const bool needsSimulator = std::ranges::any_of(projectors_, [this](const FleetProfile* profile) {
    return IsSimulated(*profile, arguments_);
  });
  if (needsSimulator) work.served = FindServed(Wide(arguments_.profiles));
  for (const FleetProfile* profile : projectors_) {
    if (IsSimulatedHere(*profile, work)) continue;
    UndoId& known = work.undoIds[profile->name] = UndoIdOf(*profile);
    if (!arguments_.connecting.address.empty()) known.place.clear();
  }
  if (arguments_.command == Command::Diff || arguments_.command == Command::Apply) {
    const auto mistakes = FileMistakes(work, projectors_, models_);
    std::vector<Problem> problems;
    problems.reserve(mistakes.size());
    for (const std::string& mistake : mistakes) {
      problems.push_back(
          {.code = ProblemCode::WrongFile, .text = mistake, .exitCode = ExitCode::WrongUse});
    }
    if (!problems.empty()) return ReportErrors(arguments_, problems);
  }
  if (arguments_.command == Command::Watch) return Watch(work, projectors_, models_, conditions_);
  ProjectorRuns runs(work, projectors_, models_);
  for (const Problem& problem : left_) runs.Add(problem);
  isWhole_ = runs.Filter(conditions_) && isWhole_;
  runs.Run();
  const bool isUndone = arguments_.command == Command::Undo && !arguments_.dryRun && isWhole_ &&
                        runs.Code() == ExitCode::Done;
  const QString error = isUndone ? MarkUndone(undone_) : QString();
  if (!error.isEmpty()) {
    runs.Add({ProblemCode::File, Message(Acctl::tr("cannot record in %1 that it is undone: %2"),
                                         undone_.path, error)});
  }
  return runs.Finish();
}

int ProgramRun::Run() {
  if (arguments_.list) return ListRecordedRuns();
  if (const std::string error = Prepare(); !error.empty()) return FailWrongUse(arguments_, error);
  if (!shown_.Problem().empty()) Complain(shown_.Problem());
  const ValueTexts texts(shown_, english_ ? *english_ : shown_);
  const Work listing{
      .arguments = arguments_, .texts = texts, .profiles = profiles_, .isInterrupted = [] {
        return false;
      }};
  switch (arguments_.command) {
    case Command::Models:
      return ListModels(listing, models_);
    case Command::Explain:
      return Explain(listing, models_);
    case Command::Complete:
      return Print(Completions(arguments_.words, profiles_, models_, texts)) ? ExitCode::Done
                                                                             : ExitCode::Refused;
    default:
      break;
  }
  return RunOnProjectors(texts);
}

}  // namespace

int FailWrongUse(const Arguments& arguments, const std::string& error) {
  return ReportError(
      arguments, {.code = ProblemCode::WrongUse, .text = error, .exitCode = ExitCode::WrongUse});
}

bool NeedsProfiles(const Arguments& arguments) {
  return arguments.command != Command::Find && arguments.command != Command::Import &&
         !arguments.list;
}

int RunProgram(const Arguments& arguments, const std::vector<std::string>& words,
               const std::vector<FleetProfile>& profiles) {
  if (arguments.command == Command::Import) return Import(arguments);
  if (arguments.command == Command::Find) {
    std::string error;
    const std::string password = GivenPassword(arguments, error);
    return error.empty() ? Find(arguments, password) : FailWrongUse(arguments, error);
  }
  return ProgramRun(arguments, words, profiles).Run();
}
