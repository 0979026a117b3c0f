#pragma once

#include <QByteArray>
#include <QString>

/// Writes a file as a whole, or leaves the one that is there untouched; a device or a pipe is
/// written to, and never replaced. One line that says what is wrong; empty when all is well.
QString WriteWholeFile(const QString& path, const QByteArray& bytes);

/// Says whether a file could be written there, in the same way; changes nothing.
QString CheckWholeFile(const QString& path);
