#pragma once

#include "AdvancedControlExport.h"
#include "pages/picture/PicturePage.h"

/// Picture settings of the newest page set: brightness, contrast, color, tint and sharpness; gamma
/// and color temperature with their custom pop-ups; active iris; memories; resets.
class ADVANCED_CONTROL_EXPORT CPictureTabType5Dlg final : public PicturePage {
  Q_OBJECT

 public:
  explicit CPictureTabType5Dlg(CWnd* parent);

  /// Device value of a position of the active-iris list, which must be inside it.
  static short ActIrisIdxToValue(short index);
  /// Position of a device value in the active-iris list, or −1.
  static short ActIrisValueToIdx(short value);

  // What the user does with each control, by name.
  void OnBnClickedPicBgpBtn() { Act(20135); }
  void OnBnClickedPicBgnBtn() { Act(20134); }
  void OnBnClickedPicCnpBtn() { Act(20139); }
  void OnBnClickedPicCnnBtn() { Act(20137); }
  void OnBnClickedPicClrpBtn() { Act(20149); }
  void OnBnClickedPicClrnBtn() { Act(20147); }
  void OnBnClickedPicTintpBtn() { Act(21063); }
  void OnBnClickedPicTintnBtn() { Act(21061); }
  void OnBnClickedPicShppBtn() { Act(20150); }
  void OnBnClickedPicShpnBtn() { Act(20148); }
  void OnBnClickedPicMyldBtn() { Act(21065); }
  void OnCbnSelchangePic5ActilisCombo() { Act(20293); }
  void OnBnClickedPicRstBtn() { Act(21070); }
  using PicturePage::OnHScroll;

 protected:
  bool IsCustomGamma(const CComboBox& list) const override;
  bool IsCustomColorTemp(const CComboBox& list) const override;
};
