#pragma once

#include "AdvancedControlExport.h"
#include "pages/picture/PicturePage.h"

/// Picture settings of the newest page set: brightness, contrast, color, tint and sharpness; gamma
/// and color temperature with their custom pop-ups; active iris; memories; resets. User-interface
/// thread only.
class ADVANCED_CONTROL_EXPORT CPictureTabType5Dlg final : public AdvancedControl::PicturePage {
  Q_OBJECT

 public:
  explicit CPictureTabType5Dlg(CWnd* parent);

  /// Device value of a position of the active-iris list; 0xFFFF for one outside it.
  static short ActIrisIdxToValue(short index);
  /// Position of a device value in the active-iris list, or −1.
  static short ActIrisValueToIdx(short value);

  // Handlers, one for each control.
  void OnBnClickedPicBgpBtn();
  void OnBnClickedPicBgnBtn();
  void OnBnClickedPicCnpBtn();
  void OnBnClickedPicCnnBtn();
  void OnBnClickedPicClrpBtn();
  void OnBnClickedPicClrnBtn();
  void OnBnClickedPicTintpBtn();
  void OnBnClickedPicTintnBtn();
  void OnBnClickedPicShppBtn();
  void OnBnClickedPicShpnBtn();
  void OnBnClickedPicMyldBtn();
  void OnCbnSelchangePic5ActilisCombo();
  void OnBnClickedPicRstBtn();
  void OnHScroll(CSliderCtrl& slider);

 protected:
  bool IsCustomGamma(const CComboBox& list) const override;
  bool IsCustomColorTemp(const CComboBox& list) const override;
};
