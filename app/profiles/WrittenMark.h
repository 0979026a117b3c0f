#pragma once

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1String>

/// The member that marks an entry of a profile file as one that the simulator has written, and may
/// replace. An entry that somebody has changed does not have it.
inline constexpr QLatin1String kWrittenMark("x-written-by");

inline void MarkWritten(QJsonObject& entry) {
  entry[kWrittenMark] = QLatin1String("advanced-control-simulator");
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
