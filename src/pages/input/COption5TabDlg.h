#pragma once

#include <span>
#include <vector>

#include "pages/common/CTabPage.h"
#include "pages/common/ModelRows.h"
#include "pages/common/SliderRow.h"

class CComboBox;

/// Options of the newest page set: automatic functions, my buttons, my source, closed captions and
/// the way to the service settings.
class COption5TabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit COption5TabDlg(CWnd* parent);

  void InitDisp() override;
  const NotificationMap& Notifications() const override;

  /// Index of a function code among the codes of the my-button lists, or −1.
  int GetMyBtnIdx(int code) const;
  /// The function code at an index, or −1 for an index without one.
  int GetMyBtnVal(int index) const;

  void OnCbnSelchangeOpt5Atseacomb();
  void OnCbnSelchangeOpt5Atkscomb();
  void OnCbnSelchangeOpt5Atoncomb();
  void OnBnClickedOpt5Btnatoffneg();
  void OnBnClickedOpt5Btnatoffpos();
  void OnCbnSelchangeOpt5Mybtn1comb();
  void OnCbnSelchangeOpt5Mybtn2comb();
  void OnCbnSelchangeOpt5Mysrccomb();
  void OnBnClickedOpt5Btnsvc();
  void OnCbnSelchangeOth4CcdisplayComb();
  void OnCbnSelchangeOth4CcmodeComb();
  void OnCbnSelchangeOth4CcchannelComb();
  void OnHScroll(CSliderCtrl& slider);

 protected:
  void DoDataExchange() override;
  bool OnInitDialog() override;

 private:
  struct MyButton {
    int (CPjtInterface::*set)(short code);
    int (CPjtInterface::*get)(short* code);
    CComboBox* list = nullptr;
  };

  void UseTemplateMyButtons();
  void FillMyButtons(std::span<const int> codes);
  void ShowMyButton(const MyButton& button);
  void SendMyButton(const MyButton& button);
  void StepAutoOff(int (CPjtInterface::*step)(short* value));
  void ShowAutoOff(int value);

  RowSet rows_;
  CComboBox* autoSearch_ = nullptr;
  CComboBox* autoKeystone_ = nullptr;
  CComboBox* autoOn_ = nullptr;
  SliderRow autoOff_;
  MyButton myButton1_{&CPjtInterface::SetMyButton1, &CPjtInterface::GetMyButton1};
  MyButton myButton2_{&CPjtInterface::SetMyButton2, &CPjtInterface::GetMyButton2};
  std::vector<int> myButtonCodes_;
  CComboBox* mySource_ = nullptr;
  CComboBox* ccDisplay_ = nullptr;
  CComboBox* ccMode_ = nullptr;
  CComboBox* ccChannel_ = nullptr;
};
