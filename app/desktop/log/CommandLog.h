#pragma once

#include <chrono>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "app/desktop/log/CommandLogModel.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QHeaderView;

/// Shows the log, whose newest row stands at the foot and is followed unless the user has scrolled
/// back. Its rows can be copied, saved and reduced to those that asked for a change.
class CommandLog : public QWidget {
  Q_OBJECT

 public:
  explicit CommandLog(QWidget* parent = nullptr);

  /// Takes an entry; entries that come close upon each other are shown together.
  void Add(CommandLogModel::Entry entry);
  void Clear();

  /// Writes all that is shown, with a line of titles. Empty, or one line on what went wrong.
  QString Save(const QString& fileName) const;

  QHeaderView& Columns() const;

  /// Where on the screen the last few rows stand; nowhere while it is hidden.
  QRect NewestRows() const;

  /// For a menu; owned by the log.
  QAction* ChangesOnly() const { return changesOnly_; }
  QAction* SaveAs() const { return saveAs_; }
  QAction* ClearAll() const { return clear_; }

 Q_SIGNALS:
  /// New entries are shown.
  void Updated();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Cells;
  class RowsAtFoot;

  void MakeColumns();
  void ShowPending();
  void CopySelected() const;
  void AskAndSave();

  CommandLogModel* model_;
  CommandLogFilter* shown_;
  RowsAtFoot* view_;
  QAction* changesOnly_;
  QAction* saveAs_;
  QAction* clear_;
  QLabel* caption_;
  QHBoxLayout* buttons_;
  std::vector<CommandLogModel::Entry> pending_;
  QTimer gather_;
};
