#pragma once

#include <QString>

// The names of connections and links in a profile file.
inline const QString kSimulated = QStringLiteral("simulated");
inline const QString kNetwork = QStringLiteral("network");
inline const QString kPjLink = QStringLiteral("pjlink");
inline const QString kSerial = QStringLiteral("serial");
