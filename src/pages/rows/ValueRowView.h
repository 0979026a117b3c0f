#pragma once

#include "Namespace.h"
#include "pages/rows/NumberControls.h"
#include "pages/rows/RowView.h"
#include "settings/RowUse.h"

namespace AdvancedControl {

/// A setting with a number: − button, slider, + button and number field, or a field with two arrow
/// buttons and no slider. It remembers the last known value, which it restores after a refused
/// change. Values are shown values unless stated otherwise.
class ValueRowView final : public RowView {
 public:
  ValueRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<ValueRow>(row)) {}

  std::vector<int> Controls() const override;
  std::vector<OperatedControl> OperatedControls() const override;
  void Bind() override;
  void Prepare() override;
  void Read(Source source) override;
  void Act(int control) override;
  std::optional<int> Position() const override { return controls_.Number(); }
  QString TextAt(int position) const override;
  bool CanMoveTo(int position) const override;
  void MoveTo(int position) override;
  std::optional<Range> Numbers() const override;
  bool IsUsable() const override { return controls_.AreEnabled(); }

  /// Reads and shows the value after a reset, without remembering it.
  void ShowAgain();
  /// Sends the position of the released slider. False if the projector refused it.
  bool Release();

  // For what else shows and changes the number.
  NumberControls& Widgets() { return controls_; }
  std::int16_t Remembered() const { return remembered_; }

 private:
  /// Shows a device value, and returns the shown value.
  int ShowDevice(int value);
  Stepped Step(bool upwards);
  void StepTo(int number);
  void Refuse(int position, const QString& tried, bool showMessage);
  void RunReset(const RowReset& reset);

  const ValueRow& row_;
  NumberControls controls_;
  std::int16_t remembered_ = 0;
};

}  // namespace AdvancedControl
