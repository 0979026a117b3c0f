#pragma once

#include "pages/picture/CustomDialog.h"
#include "resources/TemplateId.h"
#include "settings/PageTables.h"

/// The pop-up that shapes the user gamma curve: eight points and a test pattern.
class CGammaDlg final : public CustomDialog {
  Q_OBJECT

 public:
  /// `hidePointResets` leaves out the points' Reset buttons. Without a parent the dialog belongs
  /// to the dialog that runs it.
  explicit CGammaDlg(bool hidePointResets, CWnd* parent = nullptr)
      : CustomDialog(TemplateId::Gamma, kGammaRows, hidePointResets, parent) {}

 protected:
  std::vector<CurveView::Line> LinesOf(const Values& values) const override;
  int ValueAt(std::size_t row, double height) const override;
};
