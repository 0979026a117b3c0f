#pragma once

#include "AdvancedControlExport.h"
#include "pages/common/RowDialog.h"

/// The pop-up with the settings of installers: automatic adjustment, remote-control receivers and
/// frequencies, focus lock. Each change applies at once; a refused one is silently undone.
/// User-interface thread only.
class ADVANCED_CONTROL_EXPORT CServiceDlg final : public AdvancedControl::RowDialog {
  Q_OBJECT

 public:
  explicit CServiceDlg(CWnd* parent);

  /// Decides which rows are present. The opener sets it, like the projector, before the dialog
  /// runs.
  int ModelCode = 0;

  // Handlers, one for each control.
  void OnCbnSelchangeSvcAtadjenbcomb();
  void OnBnClickedSvcIrfrontchk();
  void OnBnClickedSvcIrrearchk();
  void OnBnClickedSvcIrtopchk();
  void OnCbnSelchangeSvcIrfreqncomb();
  void OnCbnSelchangeSvcIrfreqhcomb();
  void OnCbnSelchangeSvcFocuslockcomb();
  void OnBnClickedSvcBtnclose();

 protected:
  const AdvancedControl::ModelData& Model() const override { return model_; }
  std::vector<AdvancedControl::Notification> OwnNotifications() const override;
  bool OnInitDialog() override;

 private:
  AdvancedControl::ModelData model_;  // contains only `ModelCode`
};
