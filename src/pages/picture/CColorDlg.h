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

  const NotificationMap& Notifications() const override;

 protected:
  void StepUp(std::size_t row) override;
  void StepDown(std::size_t row) override;
  void Reset(std::size_t row) override;

 private:
  using Stepper = short (CPjtInterface::*)(int channel, short value);
  void Step(std::size_t row, Stepper stepper);
};
