#pragma once

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

/// Sound settings of the newest page set: volume, treble, bass and surround of the source that
/// plays now, the audio input of every source, speaker and standby. Refusals show no message.
/// User-interface thread only.
class ADVANCED_CONTROL_EXPORT CAudioType5Dlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CAudioType5Dlg(CWnd* parent);

  // Handlers, one for each control.
  void OnHScroll(CSliderCtrl& slider);
  void OnBnClickedAud5Btnvolneg();
  void OnBnClickedAud5Btnvolpos();
  void OnBnClickedAud5Btntreneg();
  void OnBnClickedAud5Btntrepos();
  void OnBnClickedAud5Btnbasneg();
  void OnBnClickedAud5Btnbaspos();
  void OnCbnSelchangeAud5Srswcomb();
  void OnCbnSelchangeAud5Spekcomb();
  void OnCbnSelchangeAud5Argb1comb();
  void OnCbnSelchangeAud5Acomp1comb();
  void OnCbnSelchangeAud5Argb2comb();
  void OnCbnSelchangeAud5Acomp2comb();
  void OnCbnSelchangeAud5Am1dcomb();
  void OnCbnSelchangeAud5Ahdmicomb();
  void OnCbnSelchangeAud5Avidcomb();
  void OnCbnSelchangeAud5Asvidcomb();
  void OnCbnSelchangeAud5Acompcomb();
  void OnCbnSelchangeAud5Amiucomb();
  void OnCbnSelchangeAud5Aoutstbcomb();
  void OnCbnSelchangeAud5Hdmiaudiocomb();

 protected:
  bool OnInitDialog() override;
};
