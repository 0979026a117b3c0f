#pragma once

#include <array>
#include <optional>

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

/// Sound settings of the newest page set: volume, treble, bass and surround of the source that
/// plays now, the audio input of every source, speaker and standby. No refusal is told in words.
class ADVANCED_CONTROL_EXPORT CAudioType5Dlg final : public CTabPage {
  Q_OBJECT

 public:
  /// The rows with a slider: volume, treble and bass.
  static constexpr std::size_t kToneCount = 3;

  explicit CAudioType5Dlg(CWnd* parent);

  void InitDisp() override;
  std::vector<PjtCommand> Reads() const override;

  // What the user does with each control, by name.
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

  void OnHScroll(CSliderCtrl& slider);
  void OnBnClickedAud5Btnvolneg();
  void OnBnClickedAud5Btnvolpos();
  void OnBnClickedAud5Btntreneg();
  void OnBnClickedAud5Btntrepos();
  void OnBnClickedAud5Btnbasneg();
  void OnBnClickedAud5Btnbaspos();
  void OnCbnSelchangeAud5Srswcomb();

 protected:
  std::vector<Notification> OwnNotifications() const override;
  void DoDataExchange() override;
  bool OnInitDialog() override;

 private:
  /// The source that the tone rows work on: the current input, or the standby source of models that
  /// have one and do not run. Nothing when the projector does not say enough; asked afresh each
  /// time.
  std::optional<int> ActiveSource() const;
  void RefreshTones(std::optional<int> source);
  void RefreshSurround(int source);
  void Step(std::size_t tone, bool up);

  std::array<ValueControls, kToneCount> tones_;
};
