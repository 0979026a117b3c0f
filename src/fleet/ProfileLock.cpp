#include "fleet/ProfileLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

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

ProfileLock::ProfileLock(const QString& fileName) : folder_(OpenFolderOf(fileName)) {
  constexpr std::chrono::seconds kLongest{5};
  constexpr std::chrono::milliseconds kPause{20};
  const auto end = std::chrono::steady_clock::now() + kLongest;
  while (flock(folder_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
         std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(kPause);
  }
}

ProfileLock::~ProfileLock() {
  if (folder_ >= 0) close(folder_);
}

}  // namespace AdvancedControl
