#include "app/profiles/SimulatorNotice.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include "fleet/WholeFile.h"

namespace {

/// Empty without a folder for it.
QString NoticePath(const QString& profiles) {
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (folder.isEmpty()) return {};
  const QByteArray path = QFileInfo(profiles).canonicalFilePath().toUtf8();
  const auto name = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  return folder + QStringLiteral("/advanced-control/simulator-") + QString::fromLatin1(name);
}

struct flock Lock() {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return lock;
}

/// The file, locked by this process; −1 if that fails.
int OpenLocked(const QString& path) {
  while (true) {
    const int file = open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0) return -1;
    auto lock = Lock();
    struct stat status {};
    const bool isLocked = fcntl(file, F_SETLK, &lock) == 0;
    // unreachable: an open file has a status
    const bool isHeld = fstat(file, &status) == 0 && isLocked;
    // unreachable: the previous simulator would have to remove it just now
    if (isHeld && status.st_nlink > 0) return file;
    close(file);
    // unreachable: a lock on a file that was removed just now
    if (!isHeld) return -1;
  }
}

}  // namespace

SimulatorNotice::SimulatorNotice(const QString& profiles, const ServedAddresses& served)
    : path_(NoticePath(profiles)) {
  if (path_.isEmpty()) return;
  QDir().mkpath(QFileInfo(path_).path());
  file_ = OpenLocked(path_);
  if (file_ < 0) return;
  QJsonObject json;
  for (const auto& [name, address] : served) {
    json[QString::fromStdString(name)] = QString::fromStdString(address);
  }
  // What was not written completely is no JSON, and tells nobody anything.
  QFile file;
  file.open(file_, QFile::WriteOnly, QFile::DontCloseHandle);
  file.resize(0);
  file.write(QJsonDocument(json).toJson(QJsonDocument::Compact));
}

SimulatorNotice::~SimulatorNotice() {
  if (file_ < 0) return;
  QFile::remove(path_);
  close(file_);
}

ServedAddresses FindServed(const QString& profiles) {
  constexpr qsizetype kMost = qsizetype{16} << 20;
  const QString path = NoticePath(profiles);
  const int file =
      path.isEmpty() ? -1 : open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  // Only tests for a lock: holding one would keep out a simulator that starts now.
  auto lock = Lock();
  // unreachable: asking fails only on a file system without locks
  const bool isHeld = fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
  close(file);
  if (!isHeld) return {};
  ServedAddresses served;
  const QJsonObject json = QJsonDocument::fromJson(ReadToEnd(path, kMost).bytes).object();
  for (auto entry = json.begin(); entry != json.end(); ++entry) {
    served.emplace(entry.key().toStdString(), entry.value().toString().toStdString());
  }
  return served;
}
