#pragma once

#include <cstdio>

#include <QString>

/// A line on standard error, which a service manager keeps with its time.
inline void Log(const QString& line) {
  std::fprintf(stderr, "advanced-control-bridge: %s\n", qUtf8Printable(line));
}
