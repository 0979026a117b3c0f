#pragma once

#include <gmock/gmock.h>

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "tests/support/Programs.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

inline const QString kRoom = "Projector 5-30";
/// It as output names it, if the program simulates it itself.
inline const std::string kSimulated = "Projector 5-30 (simulated)  ";
/// What a change of it is noted with.
inline const std::string kNothingLasting =
    "acctl: Projector 5-30 (simulated): simulated by acctl itself, nothing lasting was changed\n";

/// What the program keeps is gone with the tests, whose ports the next ones use.
inline const QTemporaryDir kCache;
inline const QTemporaryDir kState;
inline const bool kAreFoldersSet = qputenv("XDG_CACHE_HOME", kCache.path().toUtf8()) &&
                                   qputenv("XDG_STATE_HOME", kState.path().toUtf8()) &&
                                   qputenv("XDG_CONFIG_HOME", kState.path().toUtf8()) &&
                                   qunsetenv("XDG_RUNTIME_DIR");  // no simulator is looked for

/// A profile that names no inputs, so that the projector is asked for them.
inline constexpr char kAnyProfile[] = R"({"projectors": [
    {"name": "Any", "model": "M", "dialogType": 5, "modelCode": 30,
     "connection": {"network": {"address": "192.0.2.1", "port": 4352}}}]})";

/// The undo files of the runs so far.
inline QStringList UndoFiles() {
  const QDir folder(kState.filePath("advanced-control/undo"));
  QStringList files;
  for (const QString& name : folder.entryList(QDir::Files)) files += folder.filePath(name);
  return files;
}

inline Outcome Acctl(const QStringList& arguments, const char* locale = "C",
                     const QString& program = ACCTL_PROGRAM) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("LC_ALL", locale);
  return Run(program, arguments, {}, environment);
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

/// A file of a projector's settings in which many are changed, in a folder of its own.
struct OtherSettings {
  OtherSettings() {
    EXPECT_EQ(Acctl({"save", kRoom, file}).exitCode, 0);
    const QByteArray between = ",\n            \"value\": ";
    Write(file, Contents(file).replace("\"0\"" + between + "128", "\"1\"" + between + "129"));
  }
  const QTemporaryDir folder{};
  const QString file = folder.filePath("good.json");
};
