#pragma once

#include "pages/common/CTabPage.h"

/// Input settings of the oldest page set.
class CInputTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CInputTabDlg(CWnd* parent);

  /// The input that the projector starts with: only some can be chosen.
  void OnSelchangePowerUpInput();

 protected:
  std::vector<Notification> OwnNotifications() const override;
};
