#pragma once

#include <memory>

#include <QStandardPaths>
#include <QTemporaryDir>

#include "tests/support/Ports.h"
#include "tests/support/Programs.h"
#include "tests/support/Soon.h"

// Programs that serve until they are stopped, on the loopback address.

/// What stands in PATH, or where Debian has programs for administrators.
inline QString ProgramPath(const QString& name) {
  const QString found = QStandardPaths::findExecutable(name);
  return found.isEmpty() ? "/usr/sbin/" + name : found;
}

/// A process that is stopped with this object. It must end well, and not before.
class Daemon {
 public:
  Daemon(const QString& program, const QStringList& arguments) {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(program.contains('/') ? program : ProgramPath(program), arguments);
    EXPECT_TRUE(process_.waitForStarted()) << program.toStdString();
  }
  ~Daemon() { Stop(); }

  void Stop() {
    if (mayHaveEnded_) return;
    EXPECT_TRUE(Runs()) << "it has ended by itself";
    process_.terminate();
    EXPECT_EQ(ExitCode(), 0) << Said().data();
    EXPECT_FALSE(Said().contains("Sanitizer")) << Said().data();
  }
  void Kill() { process_.kill(), Wait(); }
  /// Waits until it ends by itself; −1 if a signal ends it.
  int ExitCode() {
    Wait();
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
  }
  qint64 Id() const { return process_.processId(); }
  bool Runs() const { return process_.state() == QProcess::Running; }
  /// All that it has said so far.
  const QByteArray& Said() {
    process_.waitForReadyRead(0);
    said_ += process_.readAll();
    return said_;
  }
  bool Says(const char* text) {
    return Soon([&] { return Said().contains(text) || !Runs(); }) && Said().contains(text);
  }

 private:
  void Wait() {
    mayHaveEnded_ = true;
    EXPECT_TRUE(!Runs() || process_.waitForFinished(60'000));
  }

  QProcess process_;
  bool mayHaveEnded_ = false;
  QByteArray said_;
};

inline bool IsListening(quint16 port) {
  QTcpSocket socket;
  socket.connectToHost(QHostAddress::LocalHost, port);
  return socket.waitForConnected(1000);
}

/// The answer to a GET request, without its head; empty if there is none.
inline QByteArray Get(quint16 port, const QByteArray& target) {
  QTcpSocket socket;
  socket.connectToHost(QHostAddress::LocalHost, port);
  socket.write("GET " + target + " HTTP/1.1\r\nHost: x\r\n\r\n");
  QByteArray answer;
  while (socket.waitForReadyRead(20'000)) answer += socket.readAll();
  return answer.mid(answer.indexOf("\r\n\r\n") + 4);
}

/// Debian's message broker, with what it keeps in a folder.
class MosquittoBroker {
 public:
  /// `more` are lines for its file.
  explicit MosquittoBroker(const QString& folder, bool remembers = true,
                           const QByteArray& more = "allow_anonymous true\n")
      : file_(folder + "/broker") {
    Write(file_, "listener " + QByteArray::number(port) +
                     " 127.0.0.1\nuser root\nmax_queued_messages 0\npersistence " +
                     (remembers ? "true" : "false") + "\npersistence_location " + folder.toUtf8() +
                     "/\n" + more);
    Start();
  }
  void Start() {
    daemon_ = std::make_unique<Daemon>("mosquitto", QStringList{"-c", file_});
    ASSERT_TRUE(Soon([&] { return IsListening(port); })) << daemon_->Said().data();
  }
  void Stop() { daemon_.reset(); }

  const quint16 port = LastingPort();

 private:
  const QString file_;
  std::unique_ptr<Daemon> daemon_;
};
