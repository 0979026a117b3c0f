#include "fleet/ProfileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace AdvancedControl {

namespace {

/// The folder is locked rather than the file, which may not be there yet and is replaced when it is
/// written.
int OpenFolderOf(const QString& fileName) {
  const QString behindLinks = QFileInfo(fileName).canonicalFilePath();
  const QString folder = QFileInfo(behindLinks.isEmpty() ? fileName : behindLinks).path();
  return open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

}  // namespace

ProfileLock::ProfileLock(const QString& fileName)
    : fileName_(fileName), folder_(OpenFolderOf(fileName)) {}

ProfileLock::~ProfileLock() {
  if (folder_ >= 0) close(folder_);
}

QString ProfileLock::Take(std::chrono::milliseconds longest) {
  constexpr std::chrono::milliseconds kPause{20};
  const auto end = std::chrono::steady_clock::now() + longest;
  while (flock(folder_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (std::chrono::steady_clock::now() >= end) {
      return QCoreApplication::translate("ProfileLock", "another program is changing %1; try again")
          .arg(fileName_);
    }
    std::this_thread::sleep_for(kPause);
  }
  return {};
}

}  // namespace AdvancedControl
