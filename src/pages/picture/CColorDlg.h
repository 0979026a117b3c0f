#pragma once

#include "pages/picture/CustomDialog.h"

/// The pop-up that adjusts the white balance of the user colour temperature: gain and offset of
/// red, green and blue, and a test pattern.
class CColorDlg final : public CustomDialog {
  Q_OBJECT

 public:
  /// `hideResets` leaves out the rows' Reset buttons. Without a parent the dialog belongs to the
  /// dialog that runs it.
  explicit CColorDlg(bool hideResets, CWnd* parent = nullptr);

 protected:
  std::vector<Notification> OwnNotifications() const override;
  std::optional<int> Reset(std::size_t row) override;
  std::vector<CurveView::Line> LinesOf(const Values& values) const override;

 private:
  void StepUp(std::size_t row);
  void StepDown(std::size_t row);
  using Stepper = short (CPjtInterface::*)(int channel, short value);
  void Step(std::size_t row, Stepper stepper);
};
