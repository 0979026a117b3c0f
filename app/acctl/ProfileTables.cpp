#include "app/acctl/ProfileTables.h"

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

int FailWrong(const Arguments& arguments, const QString& error) {
  return ReportError(
      arguments,
      {.code = ProblemCode::WrongUse, .text = error.toStdString(), .exitCode = ExitCode::WrongUse});
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

/// `file` is what the profile file has now.
QString AddFound(const Arguments& arguments, const ProfileFileText& file,
                 const std::vector<FoundProjector>& found, const std::string& password,
                 QJsonObject& result, std::string& text) {
  const TakenProjectors taken = TakeFound(file.text, found, password);
  result["added"] = QJsonArray::fromStringList(taken.added);
  result["moved"] = QJsonArray::fromStringList(taken.moved);
  //: Numbers of projectors: new ones, those with a new address, and those that the file has
  //: already.
  text += Message(Acctl::tr("%1 added, %2 moved, %3 known"), taken.added.size(), taken.moved.size(),
                  taken.known) +
          '\n';
  return taken.text == file.text ? QString() : WriteProfileText(Wide(arguments.file), taken.text);
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
    if (!range.error.isEmpty()) return FailWrong(arguments, range.error);
    options.addresses = std::move(range.addresses);
  }
  if (arguments.connecting.port != 0) options.port = arguments.connecting.port;
  if (!arguments.file.empty()) {
    const ProfileFileText file = ReadOrBegin(arguments.file);
    if (!file.error.isEmpty()) return FailWrong(arguments, file.error);
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
    code = problem.exitCode;
  };
  if (!search.Problem().isEmpty()) fail({ProblemCode::Internal, search.Problem().toStdString()});
  const int signal = ReceivedSignal();
  if (signal != 0) {
    Problem problem = InterruptionOf();
    problem.exitCode = ExitCode::Signalled + signal;
    fail(problem);
  }
  if (!errors.isEmpty()) result["errors"] = errors;
  std::string text = table.Text();
  // What is missing may have the serial number of another, which is then no identity.
  if (!arguments.file.empty() && signal == 0) {
    const ProfileLock lock(Wide(arguments.file));
    const ProfileFileText file = ReadOrBegin(arguments.file);  // others may have changed it
    if (!file.error.isEmpty()) return FailWrong(arguments, file.error);
    const QString error = AddFound(arguments, file, found, password, result, text);
    if (!error.isEmpty()) return ReportError(arguments, {ProblemCode::File, error.toStdString()});
  }
  return Finish(arguments, text, result, code);
}

int Import(const Arguments& arguments) {
  constexpr qsizetype kMost = qsizetype{64} << 20;
  if (arguments.profiles.empty()) {
    return ReportError(arguments,
                       {.code = ProblemCode::WrongUse,
                        .text = Message(Acctl::tr("name the profile file with --profiles")),
                        .exitCode = ExitCode::WrongUse});
  }
  const FileBytes csv = ReadToEnd(Wide(arguments.file), kMost);  // perhaps from a slow pipe
  const ProfileLock lock(Wide(arguments.profiles));
  WatchSignals();
  const ProfileFileText file = ReadOrBegin(arguments.profiles);
  if (!file.error.isEmpty()) return FailWrong(arguments, file.error);
  if (!csv.error.isEmpty()) {
    const QString error = Acctl::tr("cannot read %1: %2").arg(Wide(arguments.file), csv.error);
    return ReportError(arguments, {ProblemCode::File, error.toStdString()});
  }
  const CsvImport import = ImportCsv(file.text, csv.bytes);
  QString error = import.error;
  if (error.isEmpty() && import.text != file.text && !arguments.dryRun) {
    error = WriteProfileText(Wide(arguments.profiles), import.text);
  }
  if (!error.isEmpty()) return ReportError(arguments, {ProblemCode::File, error.toStdString()});
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
