#pragma once

#include <string>

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTcpSocket>
#include <gtest/gtest.h>

// Runs programs as separate processes, and reads the files that they write.

struct Outcome {
  int exitCode;  ///< −1 if it did not end by itself.
  std::string output;
  std::string errors;
};

inline Outcome Finish(QProcess& process) {
  const bool finished = process.waitForFinished(60'000);
  return {finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          process.readAllStandardOutput().toStdString(),
          process.readAllStandardError().toStdString()};
}

inline Outcome Run(
    const QString& program, const QStringList& arguments, const QByteArray& input = {},
    const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(program, arguments);
  process.write(input);
  if (!input.isEmpty()) process.closeWriteChannel();
  return Finish(process);
}

inline QByteArray Contents(const QString& path) {
  QFile file(path);
  return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("cannot read");
}

inline void Write(const QString& path, const QByteArray& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(text) == text.size());
}

#ifdef SIMULATOR_PROGRAM
/// The simulator as a process, ready after construction.
class SimulatorProcess {
 public:
  explicit SimulatorProcess(const QStringList& arguments) {
    EXPECT_TRUE(IsReady(arguments))
        << "the simulator is not ready: " << process_.readAllStandardError().data();
  }
  ~SimulatorProcess() {
    process_.terminate();
    EXPECT_EQ(Finish(process_).exitCode, 0);
  }

  /// The address that it reports for "tcp", "serial", "pjlink" or "control".
  QString Address(const char* transport) const { return addresses_.value(transport); }

  /// Its answer to a line at the address for "control".
  std::string Control(const QByteArray& line) const {
    QTcpSocket control;
    control.connectToHost("127.0.0.1", Address("control").section(':', 1).toUShort());
    control.write(line + '\n');
    EXPECT_TRUE(control.waitForReadyRead(60'000)) << line.data();
    return control.readLine().trimmed().toStdString();
  }

 private:
  bool IsReady(const QStringList& arguments) {
    process_.start(SIMULATOR_PROGRAM, arguments);
    while (process_.canReadLine() || process_.waitForReadyRead(60'000)) {
      const QString line = QString::fromUtf8(process_.readLine()).trimmed();
      if (line == "ready") return true;
      const QString address = line.section(": ", 1);
      addresses_[line.startsWith("control") ? "control" : address.section(':', 0, 0)] = address;
    }
    process_.waitForFinished();
    return false;
  }

  QProcess process_;
  QMap<QString, QString> addresses_;
};
#endif
