#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QDialog>

#include "app/desktop/projectors/ProjectorSession.h"
#include "snapshots/Restoration.h"

class OutcomeTable;
class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeView;

/// Runs work on projectors now, or as soon as no dialog waits for one; whether it has run now. It
/// never runs once `context` is gone.
using WhenQuiet = std::function<bool(QObject* context, std::function<void()> work)>;

/// A file of settings beside what projectors have: every setting with both values. For restoring,
/// each difference has a check box; afterwards each setting says what became of it.
///
/// It works on the user-interface thread, as the settings dialog does: the channels keep it
/// painting, and it can be stopped after each setting.
class RestoreDialog : public QDialog {
  Q_OBJECT

 public:
  enum class Purpose { Compare, Restore };

  /// `file` is where `snapshot` was read from, and where the values that are replaced are kept
  /// beside. What the user asks for is done through `whenQuiet`.
  RestoreDialog(Purpose purpose, Snapshot snapshot, QString file, const ProjectorSessions& sessions,
                WhenQuiet whenQuiet, QWidget* parent = nullptr);
  ~RestoreDialog() override;

  /// Reads all projectors and shows what differs; those that were silent before are asked again.
  /// Done by itself when the dialog is shown.
  void Compare();
  /// Sends the differences that are checked.
  void Restore();

  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct Room;
  class Working;

  void Start(void (RestoreDialog::*work)());
  void Lay();
  void AddBeforehandRow(Room& room);
  void AddRow(const Room& room, const RestoredSetting& restored);
  void ShowOutcome(const RestoredSetting& restored, int row);
  void ShowBeforehand(const Restoration& restoration, int row);
  QString RestoreRoom(Room& room);
  void ShowSummary();
  Progress WorkOn(Room& room);
  void UpdateButtons();

  const Purpose purpose_;
  const Snapshot snapshot_;
  const QString file_;
  const WhenQuiet whenQuiet_;
  const SettingTexts texts_;
  std::vector<std::unique_ptr<Room>> rooms_;
  OutcomeTable* model_ = nullptr;
  QTreeView* table_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QCheckBox* differencesOnly_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QLabel* summary_ = nullptr;
  QPushButton* compare_ = nullptr;
  QPushButton* restore_ = nullptr;
  QPushButton* close_ = nullptr;
  bool working_ = false;
  bool stopped_ = false;
  bool compared_ = false;
};
