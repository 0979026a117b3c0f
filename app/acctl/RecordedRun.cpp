#include "app/acctl/RecordedRun.h"

#include <memory>

#include <QDateTime>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include "app/acctl/Message.h"
#include "fleet/FleetUndo.h"

namespace {

constexpr const char* kFormat = "advanced-control-undo";

QByteArray LineOf(const QJsonObject& json) {
  return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

/// Takes one line of a file; false if it is none of ours.
bool TakeLine(const QJsonObject& json, RecordedRun& run) {
  if (json["format"].toString() == kFormat) {
    run.time = json["time"].toString().toStdString();
    run.command = json["command"].toString().toStdString();
    run.address = json["connect"].toString().toStdString();
    run.isUndo = json["isUndo"].toBool();
    return json["version"].toInt() == 1;
  }
  if (json.contains("undone")) return run.isUndone = true;
  const auto read = ReadSnapshot(QJsonDocument(json["snapshot"].toObject()).toJson());
  const std::string id = json["id"].toString().toStdString();
  if (id.empty() || !read.error.isEmpty()) return false;
  const std::string place = json["place"].toString().toStdString();
  if (!place.empty()) run.places[id] = place;
  run.undo[id] = std::make_shared<const Snapshot>(read.snapshot);
  return true;
}

// Whole lines are appended, so only the last one may be incomplete. `MarkUndone` ends that one.
void TakeLines(const QByteArray& text, RecordedRun& run) {
  const QByteArrayList lines = text.split('\n');
  for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
    if (TakeLine(QJsonDocument::fromJson(lines[i]).object(), run)) continue;
    if (lines[i + 1].startsWith("{\"undone\"")) continue;
    run.error = Acctl::tr("%1:%2: not a line of an undo file").arg(run.path).arg(i + 1);
    return;
  }
}

}  // namespace

RecordedRun ParseRun(const QByteArray& text, const QString& path) {
  RecordedRun run{.path = path, .name = QFileInfo(path).completeBaseName().toStdString()};
  if (text.startsWith("{\"")) {
    TakeLines(text, run);
  } else {
    FleetUndoContents job = ReadFleetUndo(text);
    run.isOfJob = true;
    run.undo = std::move(job.undo);
    if (!job.error.isEmpty()) run.error = path + QStringLiteral(": ") + job.error;
  }
  return run;
}

QByteArray HeaderLine(const RecordedRun& run) {
  QJsonObject line{{"format", kFormat},
                   {"version", 1},
                   {"time", Wide(run.time)},
                   {"command", Wide(run.command)}};
  if (!run.address.empty()) line["connect"] = Wide(run.address);
  if (run.isUndo) line["isUndo"] = true;
  return LineOf(line);
}

QByteArray ChangeLine(const UndoId& projector, const Snapshot& undo) {
  QJsonObject line{{"id", Wide(projector.id)},
                   {"snapshot", QJsonDocument::fromJson(WriteSnapshot(undo)).object()}};
  if (!projector.place.empty()) line["place"] = Wide(projector.place);
  return LineOf(line);
}

QByteArray UndoneLine() {
  // The last line may be incomplete.
  return '\n' + LineOf({{"undone", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)}});
}
