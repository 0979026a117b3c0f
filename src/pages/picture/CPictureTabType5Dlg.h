#pragma once

#include "pages/common/CTabPage.h"
#include "pages/common/GenericSliderRow.h"

class CComboBox;
class QAbstractButton;

/// Picture settings of the newest page set: brightness, contrast, colour, tint, sharpness, gamma,
/// colour temperature, active iris, memories and resets.
class CPictureTabType5Dlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CPictureTabType5Dlg(CWnd* parent);

  void InitDisp() override;
  const NotificationMap& Notifications() const override;

  /// Device value of a position 0..2 of the active-iris list.
  static short ActIrisIdxToValue(short index);
  /// Position of a device value in the active-iris list, or −1.
  static short ActIrisValueToIdx(short value);

  // What the controls report: + and − of each slider, the pop-ups, lists, memories and resets.
  // Each acts on the projector at once.
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
  void OnBnClickedPicGammaBtn();
  void OnBnClickedPicColorBtn();
  void OnBnClickedPicMyldBtn();
  void OnCbnSelchangePicGammaComb();
  void OnCbnSelchangePicCctComb();
  void OnCbnSelchangePic5ActilisCombo();
  void OnBnClickedPicRstBtn();
  void OnHScroll(CSliderCtrl& slider);

 protected:
  void DoDataExchange() override;
  bool OnInitDialog() override;

 private:
  void StepUp(GenericSliderRow& row);
  void StepDown(GenericSliderRow& row);
  void EnableCustomButtons();

  GenericSliderRow brightness_;
  GenericSliderRow contrast_;
  GenericSliderRow color_;
  GenericSliderRow tint_;
  GenericSliderRow sharpness_;
  CComboBox* gamma_ = nullptr;
  QAbstractButton* customGamma_ = nullptr;
  CComboBox* colorTemp_ = nullptr;
  QAbstractButton* customColorTemp_ = nullptr;
  CComboBox* activeIris_ = nullptr;
  CComboBox* myMemory_ = nullptr;
  CComboBox* reset_ = nullptr;
  bool hasActiveIris_ = false;
};
