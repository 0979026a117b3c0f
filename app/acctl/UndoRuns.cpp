#include "app/acctl/UndoRuns.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include "app/acctl/Message.h"
#include "app/acctl/Report.h"
#include "fleet/FleetUndo.h"
#include "fleet/WholeFile.h"

namespace {

constexpr const char* kFormat = "advanced-control-undo";
const QString kSuffix = QStringLiteral(".acctl-undo");

QByteArray LineOf(const QJsonObject& json) {
  return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

/// Takes one line of a file; false if it is none of ours.
bool TakeLine(const QJsonObject& json, RecordedRun& run) {
  if (json["format"].toString() == kFormat) {
    run.time = json["time"].toString().toStdString();
    run.command = json["command"].toString().toStdString();
    run.address = json["connect"].toString().toStdString();
    run.isUndo = json["isUndo"].toBool();
    return json["version"].toInt() == 1;
  }
  if (json.contains("undone")) return run.isUndone = true;
  const auto read = ReadSnapshot(QJsonDocument(json["snapshot"].toObject()).toJson());
  const std::string id = json["id"].toString().toStdString();
  if (id.empty() || !read.error.isEmpty()) return false;
  run.undo[id] = std::make_shared<const Snapshot>(read.snapshot);
  return true;
}

// Whole lines are appended, so only the last one may be incomplete. `MarkUndone` ends that one.
void TakeLines(const QByteArray& text, RecordedRun& run) {
  const QByteArrayList lines = text.split('\n');
  for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
    if (TakeLine(QJsonDocument::fromJson(lines[i]).object(), run)) continue;
    if (lines[i + 1].startsWith("{\"undone\"")) continue;
    run.error = Acctl::tr("%1:%2: not a line of an undo file").arg(run.path).arg(i + 1);
    return;
  }
}

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
  for (const QFileInfo& file : QDir(folder).entryInfoList({u'*' + kSuffix}, QDir::Files)) {
    if (file.lastModified() < oldest) QFile::remove(file.filePath());
  }
}

}  // namespace

RecordedRun ReadRun(const QString& path) {
  constexpr qsizetype kMost = qsizetype{1} << 30;
  RecordedRun run{.path = path, .name = QFileInfo(path).completeBaseName().toStdString()};
  const FileBytes file = ReadToEnd(path, kMost);
  if (!file.error.isEmpty()) {
    run.error = Acctl::tr("cannot read %1: %2").arg(path, file.error);
  } else if (file.bytes.startsWith("{\"")) {
    TakeLines(file.bytes, run);
  } else {
    FleetUndoContents job = ReadFleetUndo(file.bytes);
    run.isOfJob = true;
    run.undo = std::move(job.undo);
    if (!job.error.isEmpty()) run.error = path + QStringLiteral(": ") + job.error;
  }
  if (run.error.isEmpty() && run.undo.empty()) {
    run.error = Acctl::tr("%1: there is nothing to undo").arg(path);
  }
  return run;
}

std::vector<RecordedRun> ListRuns(const QString& folder) {
  std::vector<RecordedRun> runs;
  for (const QFileInfo& file :
       QDir(folder).entryInfoList({u'*' + kSuffix}, QDir::Files, QDir::Name)) {
    runs.push_back(ReadRun(file.filePath()));
  }
  return runs;
}

QString MarkUndone(const RecordedRun& run) {
  if (run.isOfJob) return {};
  const int file = open(QFile::encodeName(run.path).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
  const QString time = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
  const bool isWritten = file >= 0 && WriteAndSync(file, '\n' + LineOf({{"undone", time}}));
  const QString error = isWritten ? QString() : QString::fromLocal8Bit(std::strerror(errno));
  if (file >= 0) close(file);
  return error;
}

QString UndoFolder() {
  const QString state = qEnvironmentVariable("XDG_STATE_HOME", QDir::homePath() + "/.local/state");
  return state + QStringLiteral("/advanced-control/undo");
}

UndoRecorder::UndoRecorder(QString folder, int days, RecordedRun run)
    : folder_(std::move(folder)), days_(days), run_(std::move(run)) {}

UndoRecorder::~UndoRecorder() {
  if (file_ >= 0) close(file_);
}

bool UndoRecorder::Keep(const std::string& id, const Snapshot& undo) {
  Snapshot kept = undo;
  kept.isUndo = true;
  const QByteArray line =
      LineOf({{"id", QString::fromStdString(id)},
              {"snapshot", QJsonDocument::fromJson(WriteSnapshot(kept)).object()}});
  const std::lock_guard lock(mutex_);
  return file_ < 0 ? Create(line) : Append(line);
}

bool UndoRecorder::Create(const QByteArray& line) {
  QDir().mkpath(folder_);
  RemoveOlder(folder_, days_);
  const QString stamp = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss.zzz'Z'");
  QJsonObject header{{"format", kFormat},
                     {"version", 1},
                     {"time", Wide(run_.time)},
                     {"command", Wide(run_.command)}};
  if (!run_.address.empty()) header["connect"] = Wide(run_.address);
  if (run_.isUndo) header["isUndo"] = true;
  const NewFile made = WriteNewFile(QDir(folder_).filePath(stamp + kSuffix), LineOf(header) + line);
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
