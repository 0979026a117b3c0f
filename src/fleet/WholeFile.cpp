#include "fleet/WholeFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

namespace AdvancedControl {

// Plain system calls: QSaveFile does not report that a file could not be brought to the disk, and
// always replaces a file of the same name. Where a function fails, errno says why.

namespace {

constexpr mode_t kPermissions = 07777;
constexpr mode_t kWithoutIds = 0777;  // Programs do not run as the owner or the group.
constexpr mode_t kNewFile = 0666;
constexpr mode_t kOwnerOnly = 0600;
constexpr auto kSameUser = static_cast<uid_t>(-1);
constexpr auto kSameGroup = static_cast<gid_t>(-1);

/// An open file, closed with this.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ > STDERR_FILENO) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  const int number_;
};

int Open(const QString& path, int flags, mode_t mode = 0) {
  return open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOCTTY, mode);
}

bool WriteAll(int file, const QByteArray& bytes) {
  qsizetype written = 0;
  while (written < bytes.size()) {  // a disk that fills up takes a part first
    const ssize_t part =
        write(file, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
    if (part < 0 && errno != EINTR) return false;
    written += std::max<ssize_t>(part, 0);
  }
  return true;
}

// A pipe has no disk behind it, and some file systems cannot be asked.
bool Sync(int file) {
  constexpr std::array kCannotBeAsked{EINVAL, ENOSYS, ENOTSUP};
  return fsync(file) == 0 || std::ranges::find(kCannotBeAsked, errno) != kCannotBeAsked.end();
}

bool SyncFolderOf(const QString& path) {
  const Descriptor folder(Open(QFileInfo(path).path(), O_RDONLY));
  // A folder that may be written to and not be read.
  if (!folder.IsOpen()) return errno == EACCES;
  return Sync(folder.Number());
}

/// Whose a file is, and who may use it.
struct Ownership {
  uid_t user;
  gid_t group;
  mode_t permissions;
};

/// Gives a new file an owner, a group and permissions, or else such as allow nobody more: in a
/// group that is not the wanted one, and among all others, are members of the wanted group and such
/// as are not, so all of them may only do what both might.
bool Give(int file, const Ownership& wanted) {
  // Only root may give files away, and others may only give them to groups of their own.
  [[maybe_unused]] const bool isGiven =
      fchown(file, wanted.user, wanted.group) == 0 || fchown(file, kSameUser, wanted.group) == 0;
  struct stat given {};
  if (fstat(file, &given) != 0) return false;
  mode_t permissions = wanted.permissions;
  if (given.st_uid != wanted.user || given.st_gid != wanted.group) permissions &= kWithoutIds;
  if (given.st_gid != wanted.group) {
    const mode_t common = permissions >> 3 & permissions & S_IRWXO;
    permissions = (permissions & S_IRWXU) | common << 3 | common;
  }
  return fchmod(file, permissions) == 0;
}

/// A file without a name of its own yet, beside the place where it is to appear. Removed with this
/// if it does not.
class StagedFile {
 public:
  /// As this, or as a new file.
  StagedFile(const QString& place, const std::optional<Ownership>& wanted)
      : path_(QFileInfo(place).dir().filePath(
            QString(kUnfinishedFiles)
                .replace('*', QString::number(QRandomGenerator::system()->generate64(), 16)))),
        file_(Open(path_, O_WRONLY | O_CREAT | O_EXCL, wanted ? kOwnerOnly : kNewFile)),
        isThere_(file_.IsOpen() && (!wanted || Give(file_.Number(), *wanted))) {}
  ~StagedFile() {
    if (file_.IsOpen() && !isNamed_) unlink(Encoded().constData());
  }
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;

  bool IsThere() const { return isThere_; }
  /// The disk has it then.
  bool Write(const QByteArray& bytes) {
    return isThere_ && WriteAll(file_.Number(), bytes) && Sync(file_.Number());
  }
  bool Replace(const QString& place) {
    isNamed_ = rename(Encoded().constData(), QFile::encodeName(place).constData()) == 0;
    return isNamed_ && SyncFolderOf(place);
  }
  /// False with EEXIST where somebody has the name.
  bool TakeNewName(const QString& place) {
    const QByteArray name = QFile::encodeName(place);
    isNamed_ = renameat2(AT_FDCWD, Encoded().constData(), AT_FDCWD, name.constData(),
                         RENAME_NOREPLACE) == 0;
    // Some file systems only know the older way.
    if (!isNamed_ && (errno == EINVAL || errno == ENOSYS) &&
        link(Encoded().constData(), name.constData()) == 0) {
      isNamed_ = unlink(Encoded().constData()) == 0;
    }
    return isNamed_;
  }

 private:
  QByteArray Encoded() const { return QFile::encodeName(path_); }

  const QString path_;
  const Descriptor file_;
  const bool isThere_;
  bool isNamed_ = false;
};

bool IsDevice(const QString& path) {
  const QFileInfo target(path);
  return target.exists() && !target.isFile() && !target.isDir();
}

/// Where the file of a path lies, and whose it is; behind links, also behind those that lead to no
/// file yet.
struct Place {
  QString path;
  std::optional<Ownership> present{};  ///< Of the file that is there.
};

/// Nothing where no file can be.
std::optional<Place> PlaceOf(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  struct stat status {};
  if (stat(name.constData(), &status) == 0) {
    if (S_ISDIR(status.st_mode)) errno = EISDIR;
    if (S_ISDIR(status.st_mode) || access(name.constData(), W_OK) != 0) return std::nullopt;
    return Place{QFileInfo(path).canonicalFilePath(),
                 Ownership{status.st_uid, status.st_gid, status.st_mode & kPermissions}};
  }
  if (errno != ENOENT) return std::nullopt;  // links that lead in a circle, among others
  constexpr int kMostLinks = 40;             // as the system follows
  Place place{path};
  for (int links = 0; QFileInfo(place.path).isSymLink(); ++links) {
    if (links == kMostLinks) {
      errno = ELOOP;
      return std::nullopt;
    }
    place.path = QFileInfo(place.path).symLinkTarget();
  }
  return place;
}

QString CannotWrite(const QString& path) {
  return QCoreApplication::translate("WholeFile", "cannot write %1: %2")
      .arg(path, qt_error_string(errno));
}

QString Numbered(const QString& path, int number) {
  const QFileInfo info(path);
  return info.dir().filePath(
      QStringLiteral("%1-%2.%3")
          .arg(info.completeBaseName(), QString::number(number), info.suffix()));
}

}  // namespace

QString WriteWholeFile(const QString& path, const QByteArray& bytes, FileAccess access) {
  if (IsDevice(path)) {
    const Descriptor device(Open(path, O_WRONLY));
    const bool isWritten =
        device.IsOpen() && WriteAll(device.Number(), bytes) && Sync(device.Number());
    return isWritten ? QString() : CannotWrite(path);
  }
  auto place = PlaceOf(path);
  if (!place) return CannotWrite(path);
  if (access == FileAccess::OwnerOnly) {
    if (!place->present) place->present = Ownership{kSameUser, kSameGroup, 0};
    place->present->permissions = kOwnerOnly;
  }
  StagedFile file(place->path, place->present);
  return file.Write(bytes) && file.Replace(place->path) ? QString() : CannotWrite(path);
}

QString CheckWholeFile(const QString& path) {
  if (IsDevice(path)) return {};
  const auto place = PlaceOf(path);
  return place && StagedFile(place->path, place->present).IsThere() ? QString() : CannotWrite(path);
}

NewFile WriteNewFile(const QString& path, const QByteArray& bytes) {
  NewFile made{path, {}};
  StagedFile file(path, std::nullopt);
  if (!file.Write(bytes)) return {path, CannotWrite(path)};
  for (int number = 2; !file.TakeNewName(made.path); ++number) {
    if (errno != EEXIST) return {made.path, CannotWrite(made.path)};
    made.path = Numbered(path, number);
  }
  if (!SyncFolderOf(made.path)) {
    made.error = CannotWrite(made.path);
    QFile::remove(made.path);
  }
  return made;
}

FileBytes ReadToEnd(const QString& path, qsizetype most) {
  const Descriptor file(path == "-" ? STDIN_FILENO : Open(path, O_RDONLY));
  QByteArray bytes;
  std::array<char, 65536> piece{};
  while (file.IsOpen() && bytes.size() < most) {
    const auto wanted = std::min<qsizetype>(piece.size(), most - bytes.size());
    const ssize_t got = read(file.Number(), piece.data(), static_cast<std::size_t>(wanted));
    if (got == 0) return {bytes, {}};
    if (got > 0) {
      bytes.append(piece.data(), got);
    } else if (errno == EAGAIN) {
      // Another process that shares the descriptor has made it non-blocking; this one waits.
      pollfd readable{.fd = file.Number(), .events = POLLIN, .revents = 0};
      poll(&readable, 1, -1);
    } else if (errno != EINTR) {
      return {{}, qt_error_string(errno)};
    }
  }
  return {bytes, file.IsOpen() ? QString() : qt_error_string(errno)};
}

}  // namespace AdvancedControl
