#pragma once

#include <QAction>
#include <QTimer>

#include "pages/common/CTabPage.h"

/// The first tab of every page set: eight states of the projector, read-only, and the reset of the
/// lamp and filter times. The user can have it read again every few seconds.
class CStatusTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CStatusTabDlg(CWnd* parent);

  QAction* PageAction() override { return &keepsUpToDate_; }

 protected:
  bool OnInitDialog() override;

 private:
  void ReadIfQuiet();

  QAction keepsUpToDate_;
  QTimer next_{this};
};
