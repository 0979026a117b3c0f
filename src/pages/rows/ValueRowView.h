#pragma once

#include "Namespace.h"
#include "pages/rows/RowView.h"
#include "settings/RowUse.h"

class CSliderCtrl;
class QAbstractButton;
class QLineEdit;

namespace AdvancedControl {

/// A setting with a number: − button, slider, + button and number field, or a field with two arrow
/// buttons and no slider. It remembers the last known value, which it restores after a refused
/// change. Values are shown values unless stated otherwise.
class ValueRowView final : public RowView {
 public:
  ValueRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<ValueRow>(row)) {}

  std::vector<int> Controls() const override;
  std::vector<Operated> OperatedControls() const override;
  void Bind() override;
  void Prepare() override;
  void Read(Source source) override;
  void Act(int control) override;
  std::optional<int> Position() const override { return number_; }
  std::optional<int> PositionOfValue(int value) const override { return value - row_.bias; }
  bool CanMoveTo(int position) const override;
  void MoveTo(int position) override;
  std::optional<Range> Numbers() const override;
  bool IsUsable() const override;

  /// Reads and shows the value after a reset, without remembering it.
  void ShowAgain();
  /// Sends the position of the released slider. False if the projector refused it.
  bool Release();

  /// What the user has asked for and the projector was not told yet.
  struct Pending {
    std::optional<int> number{};  ///< To be shown instead of the projector's number.
    bool keepsSlider = false;     ///< The slider stays where the user has left it.

    friend bool operator==(const Pending&, const Pending&) = default;
  };
  /// Shows it until the next call.
  void ShowPending(const Pending& pending);

  /// Whether the control is −, + or the slider.
  bool ChangesNumber(const QWidget& control) const;
  bool IsUpwards(int control) const { return control == row_.ids.plus; }

  // For pages with their own rules.
  std::int16_t Remembered() const { return remembered_; }
  void MoveSlider(int value);
  void ShowNumber(int value);
  /// Enables or disables −, slider and +. The field of a disabled row is empty.
  void Enable() { EnableControls(true); }
  void Disable();

 private:
  void EnableControls(bool enable);
  /// Shows a device value, and returns the shown value.
  int ShowDevice(int value);
  Stepped Step(bool upwards);
  void StepTo(int number);
  void Refuse(int position, const QString& tried, bool showMessage);
  void ClearNumber();
  void ShowField();
  void RunReset();

  const ValueRow& row_;
  QAbstractButton* minus_ = nullptr;
  CSliderCtrl* slider_ = nullptr;
  QAbstractButton* plus_ = nullptr;
  QLineEdit* field_ = nullptr;
  std::int16_t remembered_ = 0;
  std::optional<int> number_;  // the number shown, apart from a pending one
  Pending pending_;
  std::optional<int> heldBack_;  // where the slider goes when nothing is pending
};

}  // namespace AdvancedControl
