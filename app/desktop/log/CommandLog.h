#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "app/desktop/log/CommandLogModel.h"
#include "fleet/FleetProfile.h"

class CComboBox;
class LogTable;
class QAction;
class QLineEdit;
class SettingNames;

/// The command log as a table, with the newest row at the bottom. It scrolls along unless the user
/// has scrolled back. Rows can be copied, saved, and limited to changes, errors and a projector.
class CommandLog : public QWidget {
  Q_OBJECT

 public:
  explicit CommandLog(QWidget* parent = nullptr);
  ~CommandLog() override;

  /// Adds an entry, at the present time. Entries that arrive in quick succession are shown
  /// together.
  void Add(const FleetProfile& profile, const PjtCommand& command, const PjtReply& reply,
           std::chrono::microseconds elapsed);
  void Add(CommandLogModel::Entry entry);
  void Clear();

  /// Writes all shown rows, below a line of titles. Returns a one-line error, or an empty text.
  QString Save(const QString& fileName) const;

  LogTable& Table() const { return *view_; }

  /// Actions for menus; owned by the log.
  QAction* ChangesOnly() const { return changesOnly_; }
  QAction* ErrorsOnly() const { return errorsOnly_; }
  QAction* SaveAs() const { return saveAs_; }
  QAction* ClearAll() const { return clear_; }

 Q_SIGNALS:
  /// New entries are shown.
  void Updated();

 private:
  void AddProjectors(const std::vector<CommandLogModel::Entry>& entries);
  void ShowPending();
  void AskAndSave();
  void AskAndClear();

  CommandLogModel* model_;
  CommandLogFilter* shown_;
  LogTable* view_;
  QAction* changesOnly_;
  QAction* errorsOnly_;
  QAction* saveAs_;
  QAction* clear_;
  QLineEdit* filter_;
  CComboBox* projectors_;
  std::unique_ptr<SettingNames> names_;  ///< Null before the first command.
  std::vector<CommandLogModel::Entry> pending_;
  QTimer gather_;
};
