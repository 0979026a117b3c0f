#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "pages/common/CTabPage.h"
#include "pages/common/ModelRows.h"
#include "pages/common/SliderRow.h"

class CComboBox;

/// Sound of the newest page set: volume, tone and surround of the source that plays now, speaker,
/// and the audio input that goes with each video input.
///
/// The projector keeps volume, treble, bass and surround for each source; the page works on the
/// active one, which it asks for afresh each time.
class CAudioType5Dlg final : public CTabPage {
  Q_OBJECT

 public:
  static constexpr std::size_t kToneCount = 3;
  static constexpr std::size_t kRowCount = 17;

  explicit CAudioType5Dlg(CWnd* parent);

  void InitDisp() override;
  const NotificationMap& Notifications() const override;

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
  void OnHScroll(CSliderCtrl& slider);

 protected:
  void DoDataExchange() override;
  bool OnInitDialog() override;

 private:
  std::optional<int> ActiveSource() const;
  void RefreshTones(std::optional<int> source);
  void RefreshSurround(int source);
  void Step(std::size_t tone, bool up);
  void ShowValue(std::size_t row, int value);
  void SendChoice(std::size_t row);
  void TellChoice(const CComboBox& list);

  RowSet rows_;
  std::array<SliderRow, kToneCount> tones_;
  CComboBox* surround_ = nullptr;
};
