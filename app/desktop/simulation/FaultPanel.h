#pragma once

#include <QGroupBox>

#include "app/desktop/projectors/ProjectorSession.h"

class CComboBox;
class QListWidget;
class QPushButton;
class QSpinBox;

/// Disturbs the simulation of one projector: faults of its commands, its power state, its error
/// status. Everything takes effect at once, also for a dialog that is open.
class FaultPanel : public QGroupBox {
  Q_OBJECT

 public:
  explicit FaultPanel(QWidget* parent = nullptr);

  /// Not owned; null disables the panel.
  void SetSession(ProjectorSession* session);

  /// Shows the states that the simulation has now.
  void RefreshStates();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsSimulated() const;
  void FillTargets();
  void SetFault();
  void RemoveSelected();
  void ShowFaults();
  void UpdateButtons();

  ProjectorSession* session_ = nullptr;
  CComboBox* power_;
  CComboBox* error_;
  CComboBox* target_;
  CComboBox* kind_;
  QSpinBox* delay_;
  QPushButton* set_;
  QListWidget* faults_;
  QPushButton* remove_;
  QPushButton* clear_;
};
