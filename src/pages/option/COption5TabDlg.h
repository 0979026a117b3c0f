#pragma once

#include <vector>

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

/// Options of the newest page set: automatic functions, my buttons, my source, closed captions and
/// a button for the service settings. User-interface thread only.
class ADVANCED_CONTROL_EXPORT COption5TabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit COption5TabDlg(CWnd* parent);

  /// Index of a function code among the codes of the my-button lists, or −1.
  int GetMyBtnIdx(int code) const;
  /// The function code at an index, or −1 for an index without one.
  int GetMyBtnVal(int index) const;

  // Handlers, one for each control.
  void OnCbnSelchangeOpt5Atseacomb();
  void OnCbnSelchangeOpt5Atkscomb();
  void OnCbnSelchangeOpt5Atoncomb();
  void OnBnClickedOpt5Btnatoffneg();
  void OnBnClickedOpt5Btnatoffpos();
  void OnCbnSelchangeOpt5Mysrccomb();
  void OnCbnSelchangeOth4CcdisplayComb();
  void OnCbnSelchangeOth4CcmodeComb();
  void OnCbnSelchangeOth4CcchannelComb();
  void OnHScroll(CSliderCtrl& slider);

  void OnCbnSelchangeOpt5Mybtn1comb();
  void OnCbnSelchangeOpt5Mybtn2comb();
  void OnBnClickedOpt5Btnsvc();

 protected:
  std::vector<AdvancedControl::Notification> OwnNotifications() const override;
  bool OnInitDialog() override;

 private:
  std::vector<int> myButtonCodes_;
};
