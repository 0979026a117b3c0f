#pragma once

#include <chrono>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "app/desktop/log/CommandLogModel.h"

class QAction;
class QHeaderView;
class QLineEdit;

/// The command log as a table, with the newest row at the bottom. It scrolls along unless the user
/// has scrolled back. Rows can be copied, saved, and limited to changes.
class CommandLog : public QWidget {
  Q_OBJECT

 public:
  explicit CommandLog(QWidget* parent = nullptr);

  /// Adds an entry. Entries that arrive in quick succession are shown together.
  void Add(CommandLogModel::Entry entry);
  void Clear();

  /// Writes all shown rows, below a line of titles. Returns a one-line error, or an empty text.
  QString Save(const QString& fileName) const;

  QHeaderView& Columns() const;

  /// Actions for menus; owned by the log.
  QAction* ChangesOnly() const { return changesOnly_; }
  QAction* ErrorsOnly() const { return errorsOnly_; }
  QAction* SaveAs() const { return saveAs_; }
  QAction* ClearAll() const { return clear_; }

 Q_SIGNALS:
  /// New entries are shown.
  void Updated();

 private:
  class Cells;
  class RowsAtFoot;

  void MakeColumns();
  void ShowPending();
  void CopySelected() const;
  void AskAndSave();
  void AskAndClear();

  CommandLogModel* model_;
  CommandLogFilter* shown_;
  RowsAtFoot* view_;
  QAction* changesOnly_;
  QAction* errorsOnly_;
  QAction* saveAs_;
  QAction* clear_;
  QLineEdit* filter_;
  std::vector<CommandLogModel::Entry> pending_;
  QTimer gather_;
};
