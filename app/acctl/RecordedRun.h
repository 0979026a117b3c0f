#pragma once

#include <map>
#include <string>

#include <QByteArray>
#include <QString>

#include "fleet/FleetWork.h"

/// What tells a projector from others in undo files.
struct UndoId {
  std::string id;
  std::string place{};  ///< Its address if the id is only its name, which another one may have.
};

/// What one run of the program replaced, from its undo file.
struct RecordedRun {
  QString path{};
  std::string name{};     ///< The file's name without its suffix; runs sort by it.
  std::string time{};     ///< ISO 8601, UTC.
  std::string command{};  ///< As it was typed, without passwords.
  std::string address{};  ///< Of --connect; empty without.
  std::map<std::string, std::string> places{};  ///< Of `UndoId`, by id.
  SnapshotsById undo{};   ///< Empty if nothing that the run changed can be restored.
  bool isUndo = false;    ///< The run was itself an undo.
  bool isUndone = false;  ///< The whole run was undone.
  bool isOfJob = false;   ///< The host application wrote the file.
  QString error{};        ///< One line; empty if the file could be read.
};

/// Parses an undo file of this program, or one of a job of the host application. `path` is for the
/// error.
RecordedRun ParseRun(const QByteArray& text, const QString& path);
/// The line that begins an undo file.
QByteArray HeaderLine(const RecordedRun& run);
/// The line that records what a run replaced on a projector.
QByteArray ChangeLine(const UndoId& projector, const Snapshot& undo);
/// What is appended when all of a run was undone at the present time.
QByteArray UndoneLine();
