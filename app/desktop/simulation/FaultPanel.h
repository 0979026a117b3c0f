#pragma once

#include <QGroupBox>

#include "app/desktop/projectors/ProjectorSession.h"

class CComboBox;
class QListWidget;
class QPushButton;
class QSpinBox;

/// Controls the simulation of one projector: faults of its commands, its power state and its error
/// status. Changes take effect at once, even for an open dialog.
class FaultPanel : public QGroupBox {
  Q_OBJECT

 public:
  explicit FaultPanel(QWidget* parent = nullptr);

  /// `session` is not owned; null disables the panel.
  void SetSession(ProjectorSession* session);

  /// Shows the present states of the simulation.
  void RefreshStates();

 Q_SIGNALS:
  /// The user has changed the simulation.
  void Changed(const ProjectorSession* session);

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
