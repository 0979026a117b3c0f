#pragma once

#include "pages/common/ModelRows.h"
#include "pages/common/SettingsDialog.h"

/// The pop-up with the settings of installers: automatic adjustment, remote-control receivers and
/// frequencies, focus lock. Each change applies at once; a refused one is silently undone.
class CServiceDlg final : public SettingsDialog {
  Q_OBJECT

 public:
  explicit CServiceDlg(CWnd* parent);

  /// Decides which rows there are; set by the opener, like the projector, before the dialog runs.
  int ModelCode = 0;

  const NotificationMap& Notifications() const override;

  void OnCbnSelchangeSvcAtadjenbcomb();
  void OnBnClickedSvcIrfrontchk();
  void OnBnClickedSvcIrrearchk();
  void OnBnClickedSvcIrtopchk();
  void OnCbnSelchangeSvcIrfreqncomb();
  void OnCbnSelchangeSvcIrfreqhcomb();
  void OnCbnSelchangeSvcFocuslockcomb();
  void OnBnClickedSvcBtnclose();

 protected:
  bool OnInitDialog() override;

 private:
  void FillLists();
  void Refresh();
  int Shown(int control) const;
  void Show(int control, int value);
  void UndoIfRefused(int control, int result);
};
