#pragma once

#include <gmock/gmock.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "tests/support/Programs.h"

inline const QString kRoom = "Projector 5-30";

/// What the program remembers of projectors is gone with the tests, which use their ports.
inline const QTemporaryDir kCache;
inline const bool kIsCacheSet = qputenv("XDG_CACHE_HOME", kCache.path().toUtf8());

inline Outcome Acctl(const QStringList& arguments, const char* locale = "C",
                     const QString& program = ACCTL_PROGRAM) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("LC_ALL", locale);
  return Run(program, arguments, environment);
}

/// A line of the shell, with the program as "$0" and further arguments from "$1".
inline Outcome Shell(const QString& line, const QStringList& arguments) {
  return Acctl(QStringList{"-c", line, ACCTL_PROGRAM} + arguments, "C", "bash");
}

/// The simulator as a process of its own, so that what one run changes is there for the next.
struct Simulator : SimulatorProcess {
  explicit Simulator(const QStringList& options = {})
      : SimulatorProcess(QStringList{"--projector", kRoom} + options) {}
  QStringList At(const QStringList& arguments) const {
    return QStringList{"--connect", Address("tcp")} + arguments;
  }
};

MATCHER_P2(Ends, exitCode, errors, "") {
  *result_listener << arg.exitCode << " and " << arg.errors;
  return arg.exitCode == exitCode && testing::Value(arg.errors, errors);
}

/// The entry of the only projector in an output as JSON.
inline QJsonObject Entry(const Outcome& run) {
  const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(run.output));
  return json["projectors"][0].toObject();
}

/// Saves a projector's settings and changes many of them in the file.
inline void SaveOthers(const QString& file) {
  ASSERT_EQ(Acctl({"save", kRoom, file}).exitCode, 0);
  const QByteArray between = ",\n            \"value\": ";
  Write(file, Contents(file).replace("\"0\"" + between + "128", "\"1\"" + between + "129"));
}
