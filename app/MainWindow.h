#pragma once

#include <memory>
#include <vector>

#include <QMainWindow>
#include <QTimer>

#include "app/ProjectorSession.h"

class CAdvanceDlg;
class CommandLog;
class FaultPanel;
class QPushButton;
class QTableWidget;

/// The list of projectors, from which a dialog is opened on each, with the log of their commands
/// and the controls of their simulations. Dialogs are open beside it, one per projector.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(std::vector<ProjectorProfile> profiles);
  ~MainWindow() override;

  /// Opens the dialog of a projector or brings the open one to the front. Null when it could not be
  /// opened, or was closed while it was read; owned by the window.
  CAdvanceDlg* OpenDialog(std::size_t projector);

  /// The projector's open dialog, or null.
  CAdvanceDlg* Dialog(std::size_t projector) const { return entries_[projector].dialog.get(); }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Entry {
    std::unique_ptr<ProjectorSession> session;
    std::unique_ptr<CAdvanceDlg> dialog;
  };

  QWidget* MakeTable();
  void OpenCurrent();
  void Place(CAdvanceDlg& dialog) const;
  void RetireDialog(std::size_t projector);
  void DeleteRetired();

  QTableWidget* table_ = nullptr;
  QPushButton* open_ = nullptr;
  CommandLog* log_ = nullptr;
  FaultPanel* faults_ = nullptr;
  std::vector<Entry> entries_;
  /// Closed dialogs whose handlers may still be running.
  std::vector<std::unique_ptr<CAdvanceDlg>> retired_;
  QTimer deleteRetired_;
};
