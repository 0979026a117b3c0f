#include "app/acctl/ProjectorLock.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <variant>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "fleet/JobLoop.h"
#include "fleet/MakeVisit.h"

namespace {

constexpr std::chrono::milliseconds kPause{20};

QString TextOf(const ProjectorAddress& address) {
  const auto [host, port] = PlaceOf({.id = {}, .address = address});
  const QString text = QString::fromStdString(host);
  if (!std::holds_alternative<SerialAddress>(address)) {
    return text + QLatin1Char(':') + QString::number(port);
  }
  const QString real = QFileInfo(text).canonicalFilePath();  // it may have several names
  return real.isEmpty() ? text : real;
}

// In the cache folder rather than the session's, so that runs without a session, as from cron, wait
// too.
QString FileOf(const ProjectorAddress& address) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                    QStringLiteral("/advanced-control/locks"));
  folder.mkpath(QStringLiteral("."));
  // An address may have slashes, and be too long for a name.
  const auto name =
      QCryptographicHash::hash(TextOf(address).toUtf8(), QCryptographicHash::Sha1).toHex();
  return folder.filePath(QString::fromLatin1(name));
}

}  // namespace

ProjectorLock::ProjectorLock(const ProjectorAddress& address, std::chrono::milliseconds timeOut,
                             const std::function<bool()>& isInterrupted)
    : file_(open(QFile::encodeName(FileOf(address)).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                 0600)) {
  if (file_ < 0) return;
  const auto end = std::chrono::steady_clock::now() + timeOut;
  while (flock(file_, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;  // the file system has no locks
    const auto left = end - std::chrono::steady_clock::now();
    isHeld_ = left > left.zero() && !isInterrupted();
    if (!isHeld_) return;
    JobLoop::Pause(std::min(end, std::chrono::steady_clock::now() + kPause));
  }
}

ProjectorLock::~ProjectorLock() {
  if (file_ >= 0) close(file_);
}
