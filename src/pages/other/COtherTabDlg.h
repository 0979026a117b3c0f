#pragma once

#include <optional>

#include "pages/common/CTabPage.h"

/// Power, input source, blank, mute and freeze. Turning the projector on or off and changing the
/// input may change every setting, so the page is read again after them.
class COtherTabDlg : public CTabPage {
  Q_OBJECT

 public:
  explicit COtherTabDlg(CWnd* parent);

  void OnBnClickedOtherPowerOn();
  void OnBnClickedOtherPowerOff();
  void OnCbnSelchangeOtherInput();

 protected:
  COtherTabDlg(int templateNumber, const PageTable& table, CWnd* parent)
      : CTabPage(templateNumber, table, parent) {}

  std::vector<Notification> OwnNotifications() const override;
  void ShowState(int control, std::optional<int> value) override;

 private:
  void ShowPowerRefused(int button);

  std::optional<int> runningState_;  // nothing if it could not be read
};

/// The same with the settings of lens and screen.
class COther4TabDlg final : public COtherTabDlg {
  Q_OBJECT

 public:
  explicit COther4TabDlg(CWnd* parent);
};
