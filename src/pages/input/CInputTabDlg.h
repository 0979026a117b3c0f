#pragma once

#include "pages/common/CTabPage.h"

/// Input settings of the oldest page set.
class CInputTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CInputTabDlg(CWnd* parent);

  /// Sends the input that the projector selects when it is switched on. Only some inputs can be
  /// chosen.
  void OnSelchangePowerUpInput();

 protected:
  std::vector<Notification> OwnNotifications() const override;
};
