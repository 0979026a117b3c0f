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
  void OnCbnSelchangeAud5Spekcomb() { Act(20354); }
  void OnCbnSelchangeAud5Argb1comb() { Act(20356); }
  void OnCbnSelchangeAud5Acomp1comb() { Act(20365); }
  void OnCbnSelchangeAud5Argb2comb() { Act(20358); }
  void OnCbnSelchangeAud5Acomp2comb() { Act(20366); }
  void OnCbnSelchangeAud5Am1dcomb() { Act(20359); }
  void OnCbnSelchangeAud5Ahdmicomb() { Act(20367); }
  void OnCbnSelchangeAud5Avidcomb() { Act(20360); }
  void OnCbnSelchangeAud5Asvidcomb() { Act(20361); }
  void OnCbnSelchangeAud5Acompcomb() { Act(20362); }
  void OnCbnSelchangeAud5Amiucomb() { Act(20363); }
  void OnCbnSelchangeAud5Aoutstbcomb() { Act(20368); }
  void OnCbnSelchangeAud5Hdmiaudiocomb() { Act(20364); }

  void OnHScroll(CSliderCtrl& slider);
  void OnBnClickedAud5Btnvolneg() { Step(0, false); }
  void OnBnClickedAud5Btnvolpos() { Step(0, true); }
  void OnBnClickedAud5Btntreneg() { Step(1, false); }
  void OnBnClickedAud5Btntrepos() { Step(1, true); }
  void OnBnClickedAud5Btnbasneg() { Step(2, false); }
  void OnBnClickedAud5Btnbaspos() { Step(2, true); }
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
