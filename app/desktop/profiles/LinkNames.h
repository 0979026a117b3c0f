#pragma once

#include <QString>

// How a profile file calls connections and links.
inline const QString kSimulated = QStringLiteral("simulated");
inline const QString kNetwork = QStringLiteral("network");
inline const QString kPjLink = QStringLiteral("pjlink");
inline const QString kSerial = QStringLiteral("serial");
