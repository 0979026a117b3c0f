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

/// Runs work on projectors now, or as soon as no dialog waits for a projector. Returns whether the
/// work has run already. It never runs after `context` is destroyed.
using WhenQuiet = std::function<bool(QObject* context, std::function<void()> work)>;

/// Compares a file of settings with the settings of projectors: shows every setting with both
/// values. For restoring, each difference has a check box; afterwards each setting shows its
/// outcome.
///
/// It works on the user-interface thread. While a command waits, the channels keep windows
/// painting. The user can stop the work after each setting.
class RestoreDialog : public QDialog {
  Q_OBJECT

 public:
  enum class Purpose { Compare, Restore };

  /// `file` is the file that `snapshot` was read from; replaced values are saved beside it. All
  /// work is done through `whenQuiet`.
  RestoreDialog(Purpose purpose, Snapshot snapshot, QString file, const ProjectorSessions& sessions,
                WhenQuiet whenQuiet, QWidget* parent = nullptr);
  ~RestoreDialog() override;

  /// Reads all projectors and shows the differences. Projectors that were silent before are asked
  /// again. Runs automatically when the dialog is shown.
  void Compare();
  /// Sends the checked differences.
  void Restore();

  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct ProjectorPart;
  class WorkingScope;

  void Start(void (RestoreDialog::*work)());
  void CreateLayout();
  void AddBeforehandRow(ProjectorPart& projector);
  void AddRow(const ProjectorPart& projector, const RestoredSetting& restored);
  void ShowOutcome(const RestoredSetting& restored, int row);
  void ShowBeforehand(const Restoration& restoration, int row);
  QString RestoreProjector(ProjectorPart& projector);
  void ShowSummary();
  Progress WorkOn(ProjectorPart& projector);
  void UpdateButtons();

  const Purpose purpose_;
  const Snapshot snapshot_;
  const QString file_;
  const WhenQuiet whenQuiet_;
  const SettingTexts texts_;
  std::vector<std::unique_ptr<ProjectorPart>> projectors_;
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
