#include "app/acctl/ProjectorLock.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "fleet/JobLoop.h"

namespace {

constexpr std::chrono::milliseconds kPause{20};

QString TextOf(const std::string& host, int port) {
  return QString::fromStdString(host).toLower() + QLatin1Char(':') + QString::number(port);
}
QString TextOf(const AddressError&) { return {}; }
QString TextOf(const TcpAddress& address) { return TextOf(address.host, address.port); }
QString TextOf(const PjLinkAddress& address) { return TextOf(address.host, address.port); }
QString TextOf(const SerialAddress& address) {
  const QString device = QString::fromStdString(address.device);
  const QString real = QFileInfo(device).canonicalFilePath();  // it may have several names
  return real.isEmpty() ? device : real;
}

// In the cache folder rather than the session's, so that runs without a session, as from cron, wait
// too.
QString FileOf(const ProjectorAddress& address) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                    QStringLiteral("/advanced-control/locks"));
  folder.mkpath(QStringLiteral("."));
  const QString text = std::visit([](const auto& way) { return TextOf(way); }, address);
  // An address may have slashes, and be too long for a name.
  const auto name = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
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
