#pragma once

#include <optional>

#include <QString>

#include "Namespace.h"
#include "settings/Rows.h"

class CSliderCtrl;
class QAbstractButton;
class QWidget;

namespace AdvancedControl {

class NumberField;

class SettingsDialog;

/// The controls of a row with a number, and the number they show. Numbers are shown values.
/// User-interface thread only.
class NumberControls {
 public:
  NumberControls() = default;
  /// The row's controls, which the dialog must have. They show no number.
  NumberControls(const SettingsDialog& dialog, const ValueRow& row);

  /// Whether the control is −, + or the slider.
  bool Change(const QWidget& control) const;
  bool IsPlus(const QWidget& control) const;
  /// The sign on a button: "+", "−" or an arrow.
  QString SignOf(bool plus) const;
  /// Null for a row that is `stepsOnly`.
  CSliderCtrl* Slider() const { return slider_; }
  NumberField& Field() const { return *field_; }

  bool AreEnabled() const;
  /// Enables or disables −, slider and +. The field of a disabled row is empty.
  void Enable();
  void Disable();

  /// The number of the projector that the field shows, or would show if none were pending.
  std::optional<int> Number() const { return number_; }
  void ShowNumber(std::optional<int> number);
  /// Moves the slider, or remembers to do so while the user moves it.
  void MoveSlider(int value);
  /// Moves the slider away from where the user has left it, because that position is not sent.
  void ReturnSlider();

  /// What the user has asked for and what was not sent yet.
  struct Pending {
    std::optional<int> number{};  ///< Shown in a lighter colour instead of the projector's.
    bool keepsSlider = false;     ///< The slider stays where the user has left it.

    friend bool operator==(const Pending&, const Pending&) = default;
  };
  /// Shows it until the next call.
  void ShowPending(const Pending& pending);
  /// Whether the row takes further input while it waits.
  void Collect(bool collects);

 private:
  void EnableAll(bool enable);
  void ShowField();

  QAbstractButton* minus_ = nullptr;
  CSliderCtrl* slider_ = nullptr;
  QAbstractButton* plus_ = nullptr;
  NumberField* field_ = nullptr;
  std::optional<int> number_;
  Pending pending_;
  bool collects_ = false;
  std::optional<int> heldBack_;  // where the slider goes when nothing is pending
};

}  // namespace AdvancedControl
