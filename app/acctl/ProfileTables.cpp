#include "app/acctl/ProfileTables.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include <QEventLoop>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>

#include "app/acctl/Message.h"
#include "app/acctl/Output.h"
#include "app/acctl/Signals.h"
#include "app/acctl/Uses.h"
#include "fleet/ProfileCsv.h"
#include "fleet/ProfileEdits.h"
#include "fleet/ProfileFile.h"
#include "fleet/ProfileLock.h"
#include "fleet/SearchDriver.h"
#include "fleet/SearchProfiles.h"
#include "fleet/SearchRange.h"
#include "fleet/WholeFile.h"

namespace {

/// Prints the result of a command in the format of the arguments.
int Finish(const Arguments& arguments, const std::string& text, const QJsonObject& result,
           int code) {
  std::string output = text;
  if (arguments.format != Format::Text) {
    QJsonObject json = Envelope(arguments.command);
    for (const QString& member : result.keys()) json[member] = result[member];
    const bool isLine = arguments.format == Format::JsonLines;
    output = QJsonDocument(json)
                 .toJson(isLine ? QJsonDocument::Compact : QJsonDocument::Indented)
                 .toStdString();
    if (isLine) output += '\n';
  }
  return Print(output) ? code : ExitCode::Refused;
}

/// The text of a profile file, or that of an empty one if there is no file.
ProfileFileText ReadOrBegin(const std::string& path) {
  if (!QFileInfo::exists(Wide(path))) return {ProfileEdits::kNoProfiles, {}};
  ProfileFileText file = ReadProfileText(Wide(path));
  if (!file.error.isEmpty()) return file;
  file.error = ParseProfileList(file.text, Wide(path)).error;
  return file;
}

Problem WrongUse(const QString& error) {
  return {
      .code = ProblemCode::WrongUse, .text = error.toStdString(), .exitCode = ExitCode::WrongUse};
}

QJsonObject Describe(const FoundProjector& found) {
  QJsonObject json{{"address", Wide(found.address)}, {"port", found.port}};
  const auto add = [&json](const char* member, const std::string& text) {
    if (!text.empty()) json[member] = Wide(text);
  };
  add("name", found.name);
  add("maker", found.maker);
  add("model", found.model);
  add("serial", found.serial);
  add("mac", found.mac);
  if (found.needsPassword) json["needsPassword"] = true;
  return json;
}

Problem FileProblem(const QString& error) { return {ProblemCode::File, error.toStdString()}; }

Problem Interruption() {
  Problem problem = InterruptionOf();
  problem.exitCode = ExitCode::Signalled + ReceivedSignal();
  return problem;
}

/// Waits for other programs that change the file, and says so if that takes long. Returns one line
/// if that does not end, or not before a signal.
QString TakeLock(ProfileLock& lock, const std::string& file) {
  constexpr int kQuietly = 3;
  constexpr int kLongest = 60;
  for (int seconds = 1;; ++seconds) {
    QString error = lock.Take(std::chrono::seconds(1));
    if (error.isEmpty() || seconds == kLongest || ReceivedSignal() != 0) return error;
    if (seconds == kQuietly) {
      Complain(Message(Acctl::tr("waiting for another program that is changing %1"), file));
    }
  }
}

/// Adds what was found to the profile file.
std::optional<Problem> AddFound(const Arguments& arguments,
                                const std::vector<FoundProjector>& found,
                                const std::string& password, QJsonObject& result,
                                std::string& text) {
  const QString path = Wide(arguments.file);
  ProfileLock lock(path);
  if (const QString error = TakeLock(lock, arguments.file); !error.isEmpty()) {
    return ReceivedSignal() != 0 ? Interruption() : FileProblem(error);
  }
  const ProfileFileText file = ReadOrBegin(arguments.file);  // others may have changed it
  if (!file.error.isEmpty()) return WrongUse(file.error);
  const TakenProjectors taken = TakeFound(file.text, found, password);
  if (taken.text != file.text) {
    const QString error = WriteProfileText(path, taken.text);
    if (!error.isEmpty()) return FileProblem(error);
  }
  result["added"] = QJsonArray::fromStringList(taken.added);
  result["moved"] = QJsonArray::fromStringList(taken.moved);
  //: Numbers of projectors: new ones, those with a new address, and those that the file has
  //: already.
  text += Message(Acctl::tr("%1 added, %2 moved, %3 known"), taken.added.size(), taken.moved.size(),
                  taken.known) +
          '\n';
  return std::nullopt;
}

}  // namespace

int Find(const Arguments& arguments, const std::string& password) {
  WatchSignals();
  SearchOptions options{.password = password};
  options.limits.connect = arguments.connecting.timeOut;
  if (arguments.words.empty()) {
    options.broadcasts = NetworkBroadcasts();
  } else {
    QStringList words;
    for (const std::string& word : arguments.words) words += Wide(word);
    SearchRange range = ParseSearchRange(words.join(' '));
    if (!range.error.isEmpty()) return ReportError(arguments, WrongUse(range.error));
    options.addresses = std::move(range.addresses);
  }
  if (arguments.connecting.port != 0) options.port = arguments.connecting.port;
  if (!arguments.file.empty()) {
    const ProfileFileText file = ReadOrBegin(arguments.file);
    if (!file.error.isEmpty()) return ReportError(arguments, WrongUse(file.error));
    const QString error = CheckWholeFile(Wide(arguments.file));
    if (!error.isEmpty()) return ReportError(arguments, FileProblem(error));
    options.hostNames =
        HostNamesOf(ParseProfileList(file.text, Wide(arguments.file)).profiles, options.port);
  }
  std::vector<FoundProjector> found;
  QEventLoop loop;
  SearchDriver search(
      options, [&found](const FoundProjector& projector) { found.push_back(projector); },
      [&loop] { loop.quit(); });
  QTimer interruption;
  QObject::connect(&interruption, &QTimer::timeout, [&loop] {
    if (ReceivedSignal() != 0) loop.quit();
  });
  interruption.start(100);
  QTimer::singleShot(0, &loop, [&search] { search.Start(); });
  loop.exec();
  int code = ExitCode::Done;
  Table table;
  QJsonArray json;
  for (const FoundProjector& projector : found) {
    table.Add(
        {projector.address, projector.name, projector.maker, projector.model,
         projector.needsPassword ? Message(Acctl::tr("needs a password")) : projector.serial});
    json.append(Describe(projector));
  }
  QJsonObject result{{"found", json}};
  QJsonArray errors;
  const auto fail = [&](const Problem& problem) {
    Complain(problem.text);
    errors.append(Describe(problem));
    code = std::max(code, problem.exitCode);
  };
  if (!search.Problem().isEmpty()) fail({ProblemCode::Internal, search.Problem().toStdString()});
  std::string text = table.Text();
  if (ReceivedSignal() != 0) {
    // What is missing may have the serial number of another, which is then no identity.
    fail(Interruption());
  } else if (!arguments.file.empty()) {
    const auto problem = AddFound(arguments, found, password, result, text);
    if (problem) fail(*problem);
  }
  if (!errors.isEmpty()) result["errors"] = errors;
  return Finish(arguments, text, result, code);
}

int Import(const Arguments& arguments) {
  constexpr qsizetype kMost = qsizetype{64} << 20;
  if (arguments.profiles.empty()) {
    return ReportError(arguments, WrongUse(Acctl::tr("name the profile file with --profiles")));
  }
  const FileBytes csv = ReadToEnd(Wide(arguments.file), kMost);  // perhaps from a slow pipe
  ProfileLock lock(Wide(arguments.profiles));
  const QString busy = TakeLock(lock, arguments.profiles);
  if (!busy.isEmpty()) return ReportError(arguments, FileProblem(busy));
  WatchSignals();
  const ProfileFileText file = ReadOrBegin(arguments.profiles);
  if (!file.error.isEmpty()) return ReportError(arguments, WrongUse(file.error));
  if (!csv.error.isEmpty()) {
    const QString error = Acctl::tr("cannot read %1: %2").arg(Wide(arguments.file), csv.error);
    return ReportError(arguments, FileProblem(error));
  }
  const CsvImport import = ImportCsv(file.text, csv.bytes);
  QString error = import.error;
  if (error.isEmpty() && import.text != file.text && !arguments.dryRun) {
    error = WriteProfileText(Wide(arguments.profiles), import.text);
  }
  if (!error.isEmpty()) return ReportError(arguments, FileProblem(error));
  QJsonArray faults;
  QJsonArray errors;
  for (const CsvFault& fault : import.faults) {
    const std::string text =
        arguments.file + ':' + std::to_string(fault.line) + ": " + fault.reason.toStdString();
    Complain(text);
    faults.append(QJsonObject{{"line", fault.line}, {"text", fault.reason}});
    errors.append(QJsonObject{{"code", ProblemCode::WrongFile}, {"text", Wide(text)}});
  }
  if (!import.unused.isEmpty()) {
    const QString unused = Acctl::tr("columns not used: %1").arg(import.unused.join(", "));
    Complain(arguments.file + ": " + unused.toStdString());
  }
  //: Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.
  const std::string text = Message(Acctl::tr("%1 added, %2 known, %3 wrong"), import.added,
                                   import.changed, import.faults.size()) +
                           '\n';
  QJsonObject result{{"added", static_cast<int>(import.added)},
                     {"changed", static_cast<int>(import.changed)},
                     {"unused", QJsonArray::fromStringList(import.unused)},
                     {"faults", faults}};
  if (!errors.isEmpty()) result["errors"] = errors;
  return Finish(arguments, text, result,
                import.faults.empty() ? ExitCode::Done : ExitCode::Refused);
}

void Export(const Projectors& projectors, Printer& printer) {
  std::vector<FleetProfile> profiles;
  for (const FleetProfile* profile : projectors) profiles.push_back(*profile);
  printer.AddTable(ExportCsv(profiles).toStdString());
}
