#pragma once

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1String>

/// Marks an entry of a profile file as one that this program has written.
inline void MarkWritten(QJsonObject& entry) {
  entry[QLatin1String("x-written-by")] = QLatin1String("advanced-control-simulator");
}

/// Whether a profile file has marked projectors and no others, which somebody may have added.
inline bool IsWritten(const QByteArray& text) {
  const QJsonArray entries = QJsonDocument::fromJson(text).object()["projectors"].toArray();
  return !entries.isEmpty() && std::ranges::all_of(entries, [](const QJsonValue& value) {
    QJsonObject marked = value.toObject();
    MarkWritten(marked);
    return marked == value.toObject();
  });
}
