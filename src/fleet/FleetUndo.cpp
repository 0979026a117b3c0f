#include "fleet/FleetUndo.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "fleet/OneLine.h"

namespace AdvancedControl {

namespace {

constexpr QLatin1String kProjectors("undoOfJob");
constexpr QLatin1String kId("id");
constexpr QLatin1String kSnapshot("snapshot");

}  // namespace

QByteArray WriteFleetUndo(const SnapshotsById& undo) {
  QJsonArray projectors;
  for (const auto& [id, snapshot] : undo) {
    projectors.append(
        QJsonObject{{kId, QString::fromStdString(id)},
                    {kSnapshot, QJsonDocument::fromJson(WriteSnapshot(*snapshot)).object()}});
  }
  return QJsonDocument(QJsonObject{{kProjectors, projectors}}).toJson();
}

FleetUndoContents ReadFleetUndo(const QByteArray& text) {
  FleetUndoContents contents;
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(text, &error);
  if (error.error != QJsonParseError::NoError) {
    contents.error = error.errorString();
    return contents;
  }
  const QJsonValue projectors = document.object().value(kProjectors);
  if (!projectors.isArray()) {
    contents.error = QStringLiteral("this is no undo of a job");
    return contents;
  }
  for (const auto& value : projectors.toArray()) {
    const QJsonObject entry = value.toObject();
    const std::string id = entry.value(kId).toString().toStdString();
    const auto read = ReadSnapshot(QJsonDocument(entry.value(kSnapshot).toObject()).toJson());
    if (id.empty() || !read.error.isEmpty()) {
      const QString what =
          id.empty() ? QStringLiteral("a projector without an identity")
                     : OneLine(QString::fromStdString(id)) + QLatin1String(": ") + read.error;
      return {.undo = {}, .error = what};
    }
    contents.undo.emplace(id, std::make_shared<const Snapshot>(read.snapshot));
  }
  return contents;
}

}  // namespace AdvancedControl
