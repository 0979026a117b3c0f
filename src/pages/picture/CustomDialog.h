#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "pages/common/GenericSliderRow.h"
#include "pages/common/SettingsDialog.h"

class CComboBox;

/// What the two custom pop-ups share: a test pattern and a column of slider rows, each with a
/// button that resets it. Every change goes to the projector at once.
class CustomDialog : public SettingsDialog {
  Q_OBJECT

 public:
  /// One row: its controls, its reset button and its setting.
  struct RowSpec {
    tmpl::SliderIds ids;
    int resetId;
    GenericSliderRow::Setting setting;
  };

  const NotificationMap& Notifications() const override = 0;

 protected:
  /// `rows` outlives the dialog. The rows' range texts follow each other from `firstRange`;
  /// `defaultRange` serves an empty one, and always bounds the − and + buttons.
  CustomDialog(int templateNumber, bool hideResets, CWnd* parent, std::span<const RowSpec> rows,
               std::size_t firstRange, Range defaultRange, int tickFrequency);

  static NotificationMap MakeNotifications(std::span<const RowSpec> rows);

  void DoDataExchange() override;
  bool OnInitDialog() override;

  virtual void StepUp(std::size_t row) = 0;
  virtual void StepDown(std::size_t row) = 0;
  virtual void Reset(std::size_t row) = 0;

  GenericSliderRow& RowAt(std::size_t row) { return rows_[row]; }
  Range ButtonBounds() const { return defaultRange_; }

  /// Shows what a reset gave, if it is a value that the row can have. The remembered value stays
  /// as it was, so the next step's bound test still uses the value from before the reset.
  void ShowReset(std::size_t row, short deviceValue);

 private:
  void Refresh();
  void OnPattern();
  void OnHScroll(CSliderCtrl& slider);

  bool hideResets_;
  std::span<const RowSpec> specs_;
  std::size_t firstRange_;
  Range defaultRange_;
  int tickFrequency_;
  std::vector<GenericSliderRow> rows_;
  CComboBox* pattern_ = nullptr;
};
