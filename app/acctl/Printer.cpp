#include "app/acctl/Printer.h"

#include <algorithm>
#include <utility>

#include <QJsonDocument>

#include "app/acctl/Message.h"
#include "app/acctl/Output.h"

namespace {

/// The list in an entry that has one object for each value or change; null if there is none.
const char* RecordsOf(Command command) {
  switch (command) {
    case Command::Settings:
    case Command::Get:
    case Command::Status:
    case Command::Reset:
      return "settings";
    case Command::Set:
      return "changes";
    default:
      return nullptr;
  }
}

std::string Line(const QJsonObject& json) {
  return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString() + '\n';
}

/// A cell of a table separated by tabs, which must have neither tabs nor line breaks.
std::string Cell(const QJsonValue& value) {
  std::string text = value.toVariant().toString().toStdString();
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\n'; }, ' ');
  return text;
}

QJsonObject EntryOf(const std::string& name, bool isSimulated, const Report& report) {
  QJsonObject entry = report.json;
  entry["name"] = Wide(name);
  entry["simulated"] = isSimulated;
  QJsonArray errors;
  QJsonArray notes;
  for (const Problem& problem : report.problems) {
    (problem.exitCode == ExitCode::Done ? notes : errors).append(Describe(problem));
  }
  entry["errors"] = errors;
  if (!notes.isEmpty()) entry["notes"] = notes;
  return entry;
}

}  // namespace

QJsonObject Envelope(Command command) {
  return {{"format", "acctl"}, {"version", 1}, {"command", Wide(FormOf(command).name)}};
}

QJsonObject Describe(const Problem& problem) {
  QJsonObject json{{"code", problem.code}, {"text", Wide(problem.text)}};
  if (!problem.key.empty()) json["key"] = Wide(problem.key);
  return json;
}

int ReportErrors(const Arguments& arguments, std::span<const Problem> problems) {
  Printer printer(arguments, 0);
  int code = ExitCode::Done;
  for (const Problem& problem : problems) {
    printer.Add(problem);
    code = std::max(code, problem.exitCode);
  }
  printer.Finish();
  return code;
}

std::string ShownName(const std::string& name, bool isSimulated) {
  return isSimulated ? Message(Acctl::tr("%1 (simulated)"), name) : name;
}

void Printer::Write(std::string_view text) {
  if (isPrinted_ && !text.empty()) isPrinted_ = Print(text);
}

void Printer::AddText(const std::string& name, bool isSimulated, const std::string& text) {
  std::string prefix = ShownName(name, isSimulated);
  const int gap = std::max(0, nameWidth_ - DisplayWidth(prefix)) + 2;
  prefix.append(static_cast<std::size_t>(gap), ' ');
  std::string lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
    lines += prefix + text.substr(begin, end - begin);
    begin = end;
  }
  Write(lines);
}

void Printer::AddNewLines(std::string_view text) {
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    if (const auto [line, isNew] = lines_.emplace(text.substr(0, size)); isNew) Write(*line);
    text.remove_prefix(size);
  }
}

void Printer::AddLines(const QJsonObject& entry) {
  const char* const records = RecordsOf(arguments_.command);
  if (records == nullptr) {
    Write(Line(entry));
    return;
  }
  const auto write = [&](QJsonObject line) {
    line["name"] = entry["name"];
    line["simulated"] = entry["simulated"];
    Write(Line(line));
  };
  for (const auto& record : entry[records].toArray()) write(record.toObject());
  for (const auto& error : entry["errors"].toArray()) write({{"error", error}});
  for (const auto& note : entry["notes"].toArray()) write({{"note", note}});
}

void Printer::AddValues(const QJsonObject& entry) {
  const bool isTable = arguments_.format == Format::Tsv;
  if (isTable && !std::exchange(isBegun_, true)) {
    Write("projector\tkey\tvalue\tcode\ttext\tsimulated\n");
  }
  for (const auto& value : entry["settings"].toArray()) {
    const QJsonObject setting = value.toObject();
    std::string line;
    if (isTable) {
      line = Cell(entry["name"]) + '\t' + Cell(setting["key"]) + '\t' + Cell(setting["value"]) +
             '\t' + Cell(setting["code"]) + '\t' + Cell(setting["text"]) + '\t' +
             Cell(entry["simulated"]);
    } else {
      line = Cell(setting["text"]);
    }
    Write(line + '\n');
  }
}

void Printer::Add(const std::string& name, bool isSimulated, const Report& report) {
  const std::string shown = ShownName(name, isSimulated);
  for (const Problem& problem : report.problems) Complain(shown + ": " + problem.Line());
  // This format has only the texts of the values.
  if (isSimulated && arguments_.format == Format::Value) Complain(shown);
  const bool isFile = arguments_.command == Command::Save && arguments_.file == "-";
  if (isFile) {
    Write(report.text);
  } else if (arguments_.format == Format::Text && arguments_.brief) {
    AddNewLines(report.text);
  } else if (arguments_.format == Format::Text) {
    AddText(name, isSimulated, report.text);
  } else if (arguments_.format == Format::Json) {
    projectors_.append(EntryOf(name, isSimulated, report));
  } else if (arguments_.format == Format::JsonLines) {
    AddLines(EntryOf(name, isSimulated, report));
  } else {
    AddValues(EntryOf(name, isSimulated, report));
  }
}

void Printer::AddTable(std::string_view text) {
  if (arguments_.format == Format::Text) Write(text);
}

void Printer::Add(const Problem& problem) {
  Complain(problem.Line());
  if (arguments_.format == Format::JsonLines) Write(Line({{"error", Describe(problem)}}));
  errors_.append(Describe(problem));
}

bool Printer::Finish() {
  const bool isFile = arguments_.command == Command::Save && arguments_.file == "-";
  if (arguments_.format != Format::Json || (isFile && errors_.isEmpty())) return isPrinted_;
  QJsonObject json = Envelope(arguments_.command);
  json["projectors"] = projectors_;
  if (!errors_.isEmpty()) json["errors"] = errors_;
  Write(QJsonDocument(json).toJson().toStdString());
  return isPrinted_;
}
