#pragma once

#include "pages/picture/CustomDialog.h"

/// The pop-up that shapes the user gamma curve: eight points and a test pattern.
class CGammaDlg final : public CustomDialog {
  Q_OBJECT

 public:
  /// `hidePointResets` leaves out the points' Reset buttons. Without a parent the dialog belongs
  /// to the dialog that runs it.
  explicit CGammaDlg(bool hidePointResets, CWnd* parent = nullptr);

 protected:
  std::optional<int> Reset(std::size_t point) override;
  std::vector<CurveView::Line> LinesOf(const Values& values) const override;
};
