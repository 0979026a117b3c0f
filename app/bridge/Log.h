#pragma once

#include <cstdio>

#include <QString>

/// Writes a line to standard error, where a service manager adds the time.
inline void Log(const QString& line) {
  std::fprintf(stderr, "advanced-control-bridge: %s\n", qUtf8Printable(line));
}
