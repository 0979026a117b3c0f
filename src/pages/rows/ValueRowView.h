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
  std::optional<int> Position() const override;
  bool CanMoveTo(int position) const override;
  void MoveTo(int position) override;
  std::optional<Range> Numbers() const override;
  bool IsUsable() const override;

  /// Reads and shows the value after a reset, without remembering it.
  void ShowAgain();
  /// Sends the position of the released slider. False if the projector refused it.
  bool Release();

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
  void Refuse(int position, bool showMessage);
  void RunReset();

  const ValueRow& row_;
  QAbstractButton* minus_ = nullptr;
  CSliderCtrl* slider_ = nullptr;
  QAbstractButton* plus_ = nullptr;
  QLineEdit* field_ = nullptr;
  std::int16_t remembered_ = 0;
};

}  // namespace AdvancedControl
