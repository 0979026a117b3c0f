#include "app/acctl/UndoRuns.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "app/acctl/Message.h"
#include "fleet/WholeFile.h"

namespace {

const QString kSuffix = QStringLiteral(".acctl-undo");

/// Appends a line to a file. If that fails, no part of it is left.
bool WriteAndSync(int file, const QByteArray& line) {
  const off_t end = lseek(file, 0, SEEK_END);
  qsizetype done = 0;
  while (done < line.size()) {
    const auto left = static_cast<std::size_t>(line.size() - done);
    const ssize_t written = write(file, line.constData() + done, left);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) break;
    done += written;
  }
  if (done == line.size() && fsync(file) == 0) return true;
  const int error = errno;
  if (ftruncate(file, end) != 0) return false;
  errno = error;
  return false;
}

void RemoveOlder(const QString& folder, int days) {
  if (days == 0) return;
  const QDateTime oldest = QDateTime::currentDateTimeUtc().addDays(-days);
  for (const QFileInfo& file :
       QDir(folder).entryInfoList({u'*' + kSuffix, kUnfinishedFiles}, QDir::Files | QDir::Hidden)) {
    if (file.lastModified() < oldest) QFile::remove(file.filePath());
  }
}

}  // namespace

RecordedRun ReadRun(const QString& path) {
  constexpr qsizetype kMost = qsizetype{1} << 30;
  const FileBytes file = ReadToEnd(path, kMost);
  if (file.error.isEmpty()) return ParseRun(file.bytes, path);
  return {.path = path,
          .name = QFileInfo(path).completeBaseName().toStdString(),
          .error = Acctl::tr("cannot read %1: %2").arg(path, file.error)};
}

std::vector<RecordedRun> ListRuns(const QString& folder) {
  std::vector<RecordedRun> runs;
  for (const QFileInfo& file :
       QDir(folder).entryInfoList({u'*' + kSuffix}, QDir::Files, QDir::Name)) {
    runs.push_back(ReadRun(file.filePath()));
  }
  return runs;
}

void KeepForNow(const RecordedRun& run) {
  if (!run.isOfJob) utimensat(AT_FDCWD, QFile::encodeName(run.path).constData(), nullptr, 0);
}

QString MarkUndone(const RecordedRun& run) {
  if (run.isOfJob) return {};
  const int file = open(QFile::encodeName(run.path).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
  const bool isWritten = file >= 0 && WriteAndSync(file, UndoneLine());
  QString error = isWritten ? QString() : QString::fromLocal8Bit(std::strerror(errno));
  if (file >= 0) close(file);
  return error;
}

QString UndoFolder() {
  QString state = qEnvironmentVariable("XDG_STATE_HOME");
  if (!state.startsWith(QLatin1Char('/')))
    state = QDir::homePath() + QStringLiteral("/.local/state");
  return state + QStringLiteral("/advanced-control/undo");
}

UndoRecorder::UndoRecorder(QString folder, int days, RecordedRun run)
    : folder_(std::move(folder)), days_(days), run_(std::move(run)) {}

UndoRecorder::~UndoRecorder() {
  if (file_ >= 0) close(file_);
}

bool UndoRecorder::Keep(const UndoId& projector, const Snapshot& undo) {
  Snapshot kept = undo;
  kept.isUndo = true;
  const QByteArray line = ChangeLine(projector, kept);
  const std::lock_guard lock(mutex_);
  return file_ < 0 ? Create(line) : Append(line);
}

void UndoRecorder::KeepRun() {
  const std::lock_guard lock(mutex_);
  if (file_ < 0) Create({});
}

bool UndoRecorder::Create(const QByteArray& line) {
  QDir().mkpath(folder_);
  if (!run_.isUndo) RemoveOlder(folder_, days_);
  const QString stamp = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss.zzz'Z'");
  const NewFile made =
      WriteNewFile(QDir(folder_).filePath(stamp + kSuffix), HeaderLine(run_) + line);
  error_ = made.error;
  if (!error_.isEmpty()) return false;
  path_ = made.path;
  file_ = open(QFile::encodeName(path_).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
  return file_ >= 0;
}

bool UndoRecorder::Append(const QByteArray& line) {
  if (WriteAndSync(file_, line)) return true;
  error_ =
      Acctl::tr("cannot write %1: %2").arg(path_, QString::fromLocal8Bit(std::strerror(errno)));
  return false;
}

QString UndoRecorder::Path() const {
  const std::lock_guard lock(mutex_);
  return path_;
}

QString UndoRecorder::Error() const {
  const std::lock_guard lock(mutex_);
  return error_;
}
