#pragma once

#include <cstdint>
#include <optional>

#include "settings/Range.h"
#include "settings/Rows.h"

class CDialog;
class CSliderCtrl;
class QAbstractButton;
class QLineEdit;

/// − button, slider, + button and number field of one setting, and the last value known of it.
/// Values are shown values; what is sent, and what a refusal does, is the user's business. A row of
/// two arrow buttons and a field has no slider.
class ValueControls {
 public:
  /// Finds the row's controls in `dialog`, which owns them and outlives the row's use.
  void Bind(const CDialog& dialog, const ValueIds& ids);

  /// Slider bounds and the distance of its ticks.
  void SetRange(Range range, int tickFrequency);
  Range Bounds() const { return bounds_; }

  bool Owns(const CSliderCtrl& slider) const { return slider_ == &slider; }
  int Position() const;
  /// The number in the field; nothing where that is empty.
  std::optional<int> Number() const;

  /// Slider and field show `value`.
  void Show(int value);
  void MoveSlider(int value);
  void ShowNumber(int value);
  void ClearNumber();

  /// Takes −, slider and + in or out of use; a disabled row's field is empty.
  void Enable();
  void Disable();
  /// Greys the number field or not; `Enable` and `Disable` leave it.
  void EnableField(bool enable);

  /// Last value known, which a refused change goes back to. Pages decide what they remember.
  std::int16_t current = 0;

 private:
  void EnableButtons(bool enable);

  QAbstractButton* minus_ = nullptr;
  CSliderCtrl* slider_ = nullptr;
  QAbstractButton* plus_ = nullptr;
  QLineEdit* field_ = nullptr;
  Range bounds_;
};
