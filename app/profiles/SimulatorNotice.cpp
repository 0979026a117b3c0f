#include "app/profiles/SimulatorNotice.h"

#include <fcntl.h>
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
  const int file = open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  auto lock = Lock();
  if (file < 0 || fcntl(file, F_SETLK, &lock) == 0) return file;
  close(file);
  return -1;
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
  const QByteArray text = QJsonDocument(json).toJson(QJsonDocument::Compact);
  // unreachable: a file that can be written can be emptied
  if (ftruncate(file_, 0) != 0) return;
  const auto written = write(file_, text.constData(), static_cast<std::size_t>(text.size()));
  if (written == text.size()) return;
  close(file_);
  file_ = -1;
}

SimulatorNotice::~SimulatorNotice() {
  if (file_ >= 0) close(file_);
}

ServedAddresses FindServed(const QString& profiles) {
  constexpr qsizetype kMost = qsizetype{16} << 20;
  const QString path = NoticePath(profiles);
  const int file =
      path.isEmpty() ? -1 : open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  // Only tests for a lock: holding one would keep out a simulator that starts now.
  auto lock = Lock();
  fcntl(file, F_GETLK, &lock);
  const bool isHeld = lock.l_type != F_UNLCK;
  close(file);
  if (!isHeld) return {};
  ServedAddresses served;
  const QJsonObject json = QJsonDocument::fromJson(ReadToEnd(path, kMost).bytes).object();
  for (auto entry = json.begin(); entry != json.end(); ++entry) {
    served.emplace(entry.key().toStdString(), entry.value().toString().toStdString());
  }
  return served;
}
