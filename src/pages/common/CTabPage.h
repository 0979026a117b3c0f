#pragma once

#include "pages/common/SettingsDialog.h"

/// A page behind a tab.
class CTabPage : public SettingsDialog {
  Q_OBJECT

 public:
  using SettingsDialog::SettingsDialog;

  /// Reads the projector and shows what it says; runs each time the page is brought to the front.
  virtual void InitDisp() {}
};
