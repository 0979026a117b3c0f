#pragma once

#include <mutex>
#include <string>
#include <vector>

#include <QString>

#include "app/acctl/RecordedRun.h"

/// Reads an undo file of this program, or one of a job of the host application.
RecordedRun ReadRun(const QString& path);
/// The runs of a folder, the oldest first. Those whose files cannot be read have an `error`.
std::vector<RecordedRun> ListRuns(const QString& folder);
/// Lets the days after which other runs remove the file of a run begin anew, as it is going to be
/// undone, perhaps not completely. A file of the host application is left as it is.
void KeepForNow(const RecordedRun& run);
/// Records in its file that all of a run was undone. A file of the host application is left as it
/// is. One line that says what is wrong, or empty.
QString MarkUndone(const RecordedRun& run);

/// The user's folder for undo files.
QString UndoFolder();

/// Writes the undo file of a run. The file has a line for the run and then one for each change,
/// appended before the change is sent; the last one of a projector counts. Any thread may call it.
class UndoRecorder {
 public:
  /// `run` gives time, command and address. The file is made when there is something to keep; then
  /// files older than `days` are removed, unless that is 0 or the run is an undo, which may be of
  /// one of them.
  UndoRecorder(QString folder, int days, RecordedRun run);
  ~UndoRecorder();
  UndoRecorder(const UndoRecorder&) = delete;
  UndoRecorder& operator=(const UndoRecorder&) = delete;

  /// Keeps what a change of the projector replaces. Returns whether it is on the disk.
  bool Keep(const UndoId& projector, const Snapshot& undo);
  /// Makes the file of a run that changes what cannot be restored, so that `undo` does not take an
  /// earlier run for the last one.
  void KeepRun();

  /// Empty while nothing is kept.
  QString Path() const;
  /// Why something could not be kept; empty if all could.
  QString Error() const;

 private:
  bool Create(const QByteArray& line);
  bool Append(const QByteArray& line);

  const QString folder_;
  const int days_;
  const RecordedRun run_;
  mutable std::mutex mutex_;
  int file_ = -1;
  QString path_;
  QString error_;
};
